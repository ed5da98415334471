#include "quorvane/rtf/unicodeWords.h"

#include <cstdint>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/text/utf8.h"

namespace quorvane {

namespace {

void appendUnit(std::uint32_t unit, std::string& rtf) {
    rtf += "\\u" + std::to_string(static_cast<std::int16_t>(unit)) + "?";
}

bool isBeyondCodePage1252(std::string_view character) {
    return codePage1252FromUtf8(character) == "?" && character != "?";
}

}  // namespace

void appendUnicodeWords(char32_t code, std::string& rtf) {
    if (code > 0xFFFF) {
        appendUnit(0xD800 + ((code - 0x10000) >> 10U), rtf);
        appendUnit(0xDC00 + ((code - 0x10000) & 0x3FFU), rtf);
    } else {
        appendUnit(code, rtf);
    }
}

std::string withUnicodeWords(std::string_view text) {
    std::string rtf;
    std::size_t at = 0;
    while (at < text.size()) {
        const std::optional<std::string_view> found = findBeyondCodePage1252(text.substr(at));
        const std::size_t plainEnd =
            found ? static_cast<std::size_t>(found->data() - text.data()) : text.size();
        rtf += text.substr(at, plainEnd - at);
        at = plainEnd;
        if (found) {
            rtf += "{\\uc1";
            Utf8Character character = utf8CharacterAt(text, at);
            do {
                appendUnicodeWords(character.code, rtf);
                at += character.length;
                character = at < text.size() ? utf8CharacterAt(text, at) : Utf8Character();
            } while (at < text.size() && isBeyondCodePage1252(text.substr(at, character.length)));
            rtf += '}';
        }
    }
    return rtf;
}

std::optional<std::string_view> findBeyondCodePage1252(std::string_view text) {
    for (std::size_t at = asciiRunEnd(text, 0); at < text.size(); at = asciiRunEnd(text, at)) {
        const std::string_view character = text.substr(at, utf8CharacterAt(text, at).length);
        if (isBeyondCodePage1252(character)) {
            return character;
        }
        at += character.size();
    }
    return std::nullopt;
}

}  // namespace quorvane
