#include "quorvane/base/text/textCase.h"

#include <cstddef>

#include "quorvane/base/text/utf8.h"

namespace quorvane {

namespace {

char lowerAscii(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character + 0x20) : character;
}

char32_t takeLowerCode(std::string_view text, std::size_t& position) {
    const Utf8Character character = utf8CharacterAt(text, position);
    position += character.length;
    return lowerCode(character.code);
}

}  // namespace

char32_t lowerCode(char32_t code) noexcept {
    if (code >= U'A' && code <= U'Z') {
        return code + 0x20;
    }
    if (code < 0xC0) {
        return code;
    }
    constexpr char32_t multiplicationSign = 0xD7;
    if (code <= 0xDE) {
        return code == multiplicationSign ? code : code + 0x20;
    }
    switch (code) {
        case 0x0152:
            return 0x0153;
        case 0x0160:
            return 0x0161;
        case 0x0178:
            return 0x00FF;
        case 0x017D:
            return 0x017E;
        default:
            return code;
    }
}

std::string lowerCase(std::string_view text) {
    std::string lowered(text);
    std::size_t position = 0;
    while (position < lowered.size() && static_cast<unsigned char>(lowered[position]) < 0x80) {
        lowered[position] = lowerAscii(lowered[position]);
        ++position;
    }
    lowered.resize(position);
    while (position < text.size()) {
        appendUtf8(takeLowerCode(text, position), lowered);
    }
    return lowered;
}

bool equalIgnoringCase(std::string_view a, std::string_view b) {
    return compareIgnoringCase(a, b) == 0;
}

int compareIgnoringCase(std::string_view a, std::string_view b) {
    std::size_t positionInA = 0;
    std::size_t positionInB = 0;
    while (positionInA < a.size() && positionInB < b.size()) {
        const char32_t codeInA = takeLowerCode(a, positionInA);
        const char32_t codeInB = takeLowerCode(b, positionInB);
        if (codeInA != codeInB) {
            return codeInA < codeInB ? -1 : 1;
        }
    }
    const bool aIsDone = positionInA == a.size();
    const bool bIsDone = positionInB == b.size();
    return aIsDone == bIsDone ? 0 : aIsDone ? -1 : 1;
}

}  // namespace quorvane
