#include "quorvane/base/text/codePage1252.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "quorvane/base/text/utf8.h"

namespace quorvane {

namespace {

// What the bytes 80 to 9F stand for. All other bytes stand for the character of the same number.
constexpr std::array<char16_t, 32> charactersFrom80{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t characterOf(unsigned char byte) {
    const std::size_t index = byte - std::size_t{0x80};
    return index < charactersFrom80.size() ? charactersFrom80[index] : byte;
}

char byteOf(char32_t code) {
    if (code >= 0xA0 && code <= 0xFF) {
        return static_cast<char>(code);
    }
    const auto* found = std::find(charactersFrom80.begin(), charactersFrom80.end(), code);
    if (found == charactersFrom80.end()) {
        return '?';
    }
    return static_cast<char>(0x80 + (found - charactersFrom80.begin()));
}

}  // namespace

std::string utf8FromCodePage1252(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    std::size_t position = 0;
    while (position < bytes.size()) {
        const std::size_t runEnd = asciiRunEnd(bytes, position);
        text.append(bytes, position, runEnd - position);
        position = runEnd;
        if (position < bytes.size()) {
            appendUtf8(characterOf(static_cast<unsigned char>(bytes[position])), text);
            ++position;
        }
    }
    return text;
}

std::string codePage1252FromUtf8(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    appendCodePage1252(text, bytes);
    return bytes;
}

void appendCodePage1252(std::string_view text, std::string& bytes) {
    std::size_t position = 0;
    while (position < text.size()) {
        const std::size_t runEnd = asciiRunEnd(text, position);
        bytes.append(text, position, runEnd - position);
        position = runEnd;
        if (position < text.size()) {
            const Utf8Character character = utf8CharacterAt(text, position);
            bytes.push_back(byteOf(character.code));
            position += character.length;
        }
    }
}

}  // namespace quorvane
