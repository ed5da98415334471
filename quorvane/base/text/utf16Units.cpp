#include "quorvane/base/text/utf16Units.h"

#include "quorvane/base/text/utf8.h"

namespace quorvane {

namespace {

constexpr char32_t firstSupplementary = 0x10000;
constexpr char32_t firstHighSurrogate = 0xD800;
constexpr char32_t firstLowSurrogate = 0xDC00;
constexpr char32_t surrogateCount = 0x400;

bool isSurrogate(char32_t unit, char32_t first) {
    return unit >= first && unit < first + surrogateCount;
}

}  // namespace

void appendUtf16Units(std::string_view text, std::u32string& units) {
    for (std::size_t at = 0; at < text.size();) {
        const Utf8Character character = utf8CharacterAt(text, at);
        appendUtf16Units(character.code, units);
        at += character.length;
    }
}

void appendUtf16Units(char32_t code, std::u32string& units) {
    if (code >= firstSupplementary && code < strayByte) {
        const char32_t offset = code - firstSupplementary;
        units.push_back(firstHighSurrogate + offset / surrogateCount);
        units.push_back(firstLowSurrogate + offset % surrogateCount);
    } else {
        units += code;
    }
}

void appendTextOfUtf16Units(std::u32string_view units, std::string& text) {
    for (std::size_t i = 0; i < units.size(); ++i) {
        if (i + 1 < units.size() && isSurrogate(units[i], firstHighSurrogate) &&
            isSurrogate(units[i + 1], firstLowSurrogate)) {
            appendUtf8(firstSupplementary + (units[i] - firstHighSurrogate) * surrogateCount +
                           (units[i + 1] - firstLowSurrogate),
                       text);
            ++i;
        } else {
            appendUtf8(units[i], text);
        }
    }
}

}  // namespace quorvane
