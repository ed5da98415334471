#include "quorvane/rtf/unicodeWords.h"

#include <cstdint>
#include <utility>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/text/utf16Units.h"
#include "quorvane/base/text/utf8.h"

namespace quorvane {

namespace {

/// False for bytes that are not UTF-8, which no control word can stand for.
bool isBeyondCodePage1252(std::string_view character) {
    const char32_t code = utf8CharacterAt(character, 0).code;
    const bool isCharacter = code < strayByte && (code < 0xD800 || code >= 0xE000);
    return isCharacter && character != "?" && codePage1252FromUtf8(character) == "?";
}

}  // namespace

void appendUnicodeWords(char32_t code, std::string& rtf) {
    std::u32string units;
    appendUtf16Units(code, units);
    for (const char32_t unit : units) {
        rtf += std::string_view("\\u");
        rtf += std::to_string(static_cast<std::int16_t>(unit));
        rtf += '?';
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

std::string nameWithUnicodeWords(std::string_view name) {
    std::string rtf;
    std::string_view uc = "\\uc1";
    while (const std::optional<std::string_view> found = findBeyondCodePage1252(name)) {
        const auto plain = static_cast<std::size_t>(found->data() - name.data());
        rtf += name.substr(0, plain);
        rtf += std::exchange(uc, {});
        appendUnicodeWords(utf8CharacterAt(*found, 0).code, rtf);
        name.remove_prefix(plain + found->size());
    }
    return rtf + std::string(name);
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
