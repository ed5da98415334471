#include "data/letterCase.h"

#include <cstddef>
#include <cstdint>

#include "quorvane/base/text/utf8.h"

namespace quorvane::data {

namespace {

/// Capital letters with their small ones: from `first` to `last` in steps of `step`, each
/// `distance` before its small letter.
struct LetterRange {
    char32_t first;
    char32_t last;
    std::int32_t distance;
    char32_t step = 1;
};

constexpr LetterRange ranges[] = {
    {U'A', U'Z', 32},     {0xC0, 0xD6, 32},       {0xD8, 0xDE, 32},       {0x100, 0x12E, 1, 2},
    {0x132, 0x136, 1, 2}, {0x139, 0x147, 1, 2},   {0x14A, 0x176, 1, 2},   {0x178, 0x178, -121},
    {0x179, 0x17D, 1, 2}, {0x1CD, 0x1DB, 1, 2},   {0x1DE, 0x1EE, 1, 2},   {0x1F8, 0x21E, 1, 2},
    {0x222, 0x232, 1, 2}, {0x386, 0x386, 38},     {0x388, 0x38A, 37},     {0x38C, 0x38C, 64},
    {0x38E, 0x38F, 63},   {0x391, 0x3A1, 32},     {0x3A3, 0x3AB, 32},     {0x400, 0x40F, 80},
    {0x410, 0x42F, 32},   {0x460, 0x480, 1, 2},   {0x48A, 0x4BE, 1, 2},   {0x4C1, 0x4CD, 1, 2},
    {0x4D0, 0x52E, 1, 2}, {0x1E00, 0x1E94, 1, 2}, {0x1EA0, 0x1EFE, 1, 2},
};

constexpr char32_t sharpS = 0xDF;
constexpr char32_t finalSigma = 0x3C2;
constexpr char32_t capitalSigma = 0x3A3;

char32_t moved(char32_t code, std::int32_t distance) {
    return static_cast<char32_t>(static_cast<std::int32_t>(code) + distance);
}

bool contains(const LetterRange& range, char32_t capital) {
    return capital >= range.first && capital <= range.last &&
           (capital - range.first) % range.step == 0;
}

char32_t smallLetter(char32_t code) {
    for (const LetterRange& range : ranges) {
        if (contains(range, code)) {
            return moved(code, range.distance);
        }
    }
    return code;
}

char32_t capitalLetter(char32_t code) {
    if (code == finalSigma) {
        return capitalSigma;
    }
    for (const LetterRange& range : ranges) {
        if (const char32_t capital = moved(code, -range.distance); contains(range, capital)) {
            return capital;
        }
    }
    return code;
}

template <class Append>
std::string changed(std::string_view utf8, Append append) {
    std::string text;
    text.reserve(utf8.size());
    for (std::size_t at = 0; at < utf8.size();) {
        const Utf8Character character = utf8CharacterAt(utf8, at);
        append(character.code, text);
        at += character.length;
    }
    return text;
}

}  // namespace

std::string upperCaseText(std::string_view utf8) {
    return changed(utf8, [](char32_t code, std::string& text) {
        if (code == sharpS) {
            text += "SS";
        } else {
            appendUtf8(capitalLetter(code), text);
        }
    });
}

std::string lowerCaseText(std::string_view utf8) {
    return changed(utf8,
                   [](char32_t code, std::string& text) { appendUtf8(smallLetter(code), text); });
}

}  // namespace quorvane::data
