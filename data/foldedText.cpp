#include "data/foldedText.h"

#include <cstddef>

#include "data/letterCase.h"
#include "quorvane/base/text/utf8.h"

namespace quorvane::data {

namespace {

struct Letters {
    std::u32string_view letters;
    std::string_view plain;
};

constexpr Letters accented[] = {
    {U"àáâãäåāăąǎ", "a"},  {U"æ", "ae"},         {U"çćĉċč", "c"}, {U"ďđð", "d"},
    {U"èéêëēĕėęě", "e"},   {U"ĝğġģ", "g"},       {U"ĥħ", "h"},    {U"ìíîïĩīĭįıǐ", "i"},
    {U"ĳ", "ij"},          {U"ĵ", "j"},          {U"ķ", "k"},     {U"ĺļľŀł", "l"},
    {U"ñńņňŉ", "n"},       {U"òóôõöøōŏőǒ", "o"}, {U"œ", "oe"},    {U"ŕŗř", "r"},
    {U"śŝşšșſ", "s"},      {U"ß", "ss"},         {U"ţťŧț", "t"},  {U"þ", "th"},
    {U"ùúûüũūŭůűųǔ", "u"}, {U"ŵ", "w"},          {U"ýÿŷ", "y"},   {U"źżž", "z"},
};

void appendFolded(std::string_view character, std::string& text) {
    const std::string small = lowerCaseText(character);
    const char32_t code = utf8CharacterAt(small, 0).code;
    for (const Letters& entry : accented) {
        if (entry.letters.find(code) != std::u32string_view::npos) {
            text += entry.plain;
            return;
        }
    }
    text += small;
}

}  // namespace

std::string foldedText(std::string_view utf8) {
    std::string text;
    text.reserve(utf8.size());
    for (std::size_t at = 0; at < utf8.size();) {
        const char byte = utf8[at];
        if (static_cast<unsigned char>(byte) < 0x80) {
            text += byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + ('a' - 'A')) : byte;
            ++at;
        } else {
            const std::size_t length = utf8CharacterAt(utf8, at).length;
            appendFolded(utf8.substr(at, length), text);
            at += length;
        }
    }
    return text;
}

}  // namespace quorvane::data
