#include "quorvane/stylesheet/StyleValue.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>

#include "quorvane/base/text/asciiCharacters.h"
#include "quorvane/base/text/numberText.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/base/text/utf8.h"
#include "quorvane/base/values/units.h"
#include "quorvane/rtf/RtfControl.h"
#include "quorvane/rtf/RtfWord.h"
#include "quorvane/rtf/escape.h"
#include "quorvane/rtf/formattingWords.h"
#include "quorvane/rtfgroups/CRtfGrpFontTable.h"
#include "quorvane/stylesheet/stylesheetSyntax.h"

namespace quorvane {

namespace {

// What is longer than any of these cannot be meant, and inheritance would write it many times.
constexpr std::size_t longestFontName = 64;
constexpr std::size_t longestControlWords = 1000;
constexpr std::size_t maxTabStops = 50;

constexpr double largestFontSize = 1638;
constexpr double largestLineHeight = 20;
// \slmult1 counts in parts of a line.
constexpr double partsOfLine = 240;

std::optional<std::string> lengthWords(std::string_view text, double shortest,
                                       std::string_view word) {
    const std::optional<double> length = lengthInTwips(text);
    const double twips = std::round(length.value_or(shortest - 1));
    if (!(twips >= shortest && twips <= longestStyleLength)) {
        return std::nullopt;
    }
    return std::string(word) + std::to_string(static_cast<std::int32_t>(twips));
}

std::optional<std::string> choiceWords(std::span<const StyleChoice> choices,
                                       std::string_view text) {
    const auto found = std::find_if(choices.begin(), choices.end(), [&](const StyleChoice& choice) {
        return equalIgnoringCase(choice.word, text);
    });
    return found == choices.end() ? std::nullopt : std::optional(std::string(found->rtf));
}

// Without a unit a size would be in twips, which nobody means.
std::optional<std::string> fontSizeWords(std::string_view text, std::string_view word) {
    const std::optional<NumberWithUnit> size = readNumberWithUnit(text);
    const LengthUnit* const unit = size ? lengthUnitOf(size->unit) : nullptr;
    if (!unit) {
        return std::nullopt;
    }
    const double points = size->number * unit->twips / pointUnit.twips;
    if (!(points >= 1 && points <= largestFontSize)) {
        return std::nullopt;
    }
    return std::string(word) + std::to_string(static_cast<std::int32_t>(std::round(points * 2)));
}

std::optional<std::string> lineHeightWords(std::string_view text, std::string_view word) {
    const std::optional<NumberWithUnit> height = readNumberWithUnit(text);
    if (!height || height->number <= 0) {
        return std::nullopt;
    }
    if (!height->unit.empty()) {
        // A height below 0 is exact.
        const std::optional<std::string> exact = lengthWords(text, 1, "-");
        return exact ? std::optional(std::string(word) + *exact + "\\slmult0") : std::nullopt;
    }
    const double parts = std::round(height->number * partsOfLine);
    if (parts < 1 || height->number > largestLineHeight) {
        return std::nullopt;
    }
    return std::string(word) + std::to_string(static_cast<std::int32_t>(parts)) + "\\slmult1";
}

std::optional<std::string> languageWords(std::string_view text, std::string_view word) {
    for (const StyleLanguage& language : styleLanguages()) {
        if (equalIgnoringCase(language.tag, text)) {
            return std::string(word) + std::to_string(language.number);
        }
    }
    return std::nullopt;
}

constexpr StyleChoice tabWords[] = {{"left", ""},        {"center", "\\tqc"},
                                    {"right", "\\tqr"},  {"decimal", "\\tqdec"},
                                    {"dots", "\\tldot"}, {"line", "\\tlul"}};

/// A length and the words after it: "8cm right dots".
std::optional<std::string> tabStopWords(std::string_view text, std::string_view word) {
    std::string words;
    for (std::size_t blank = text.find_last_of(" \t\r\n"); blank != std::string_view::npos;
         blank = text.find_last_of(" \t\r\n")) {
        const std::optional<std::string> kind = choiceWords(tabWords, text.substr(blank + 1));
        if (!kind) {
            break;
        }
        words += *kind;
        text = trimWhitespace(text.substr(0, blank));
    }
    const std::optional<std::string> length = lengthWords(text, 0, word);
    return length ? std::optional(words + *length) : std::nullopt;
}

std::optional<std::string> tabStopsWords(std::string_view text, std::string_view word) {
    std::string words;
    std::size_t count = 0;
    Pieces pieces(text, ',');
    while (const std::optional<std::string_view> piece = pieces.next()) {
        const std::optional<std::string> stop = tabStopWords(trimWhitespace(*piece), word);
        if (!stop || ++count > maxTabStops) {
            return std::nullopt;
        }
        words += *stop;
    }
    return words;
}

/// True for a number of a font or color that every document has.
bool isInEveryDocument(RtfRole role, std::int32_t number) {
    return role == RtfRole::Font ? number >= 0 && number < CRtfGrpFontTable::fontCount
                                 : number >= 0 && number <= CRtfGrpColorTable::colorCount;
}

/// True for a control word that formats text and does nothing else.
bool isFormat(const RtfControl& control) {
    const RtfWord* const word = findRtfWord(control.word);
    if (!word || !isFormattingWord(control.word)) {
        return false;
    }
    const bool isNumbered = word->role == RtfRole::Font || namesColor(word->role);
    return !isNumbered || isInEveryDocument(word->role, control.number.value_or(0));
}

/// The control words without the blanks between them, which could become text.
std::optional<std::string> rawWords(std::string_view text) {
    std::string words;
    if (text.size() > longestControlWords) {
        return std::nullopt;
    }
    for (std::size_t at = 0; at < text.size();) {
        if (isWhitespace(text[at])) {
            ++at;
            continue;
        }
        const RtfControl control = text[at] == '\\' ? rtfControlAt(text, at) : RtfControl();
        if (!isFormat(control)) {
            return std::nullopt;
        }
        words += text.substr(at, control.shownLength);
        at += control.length;
    }
    return words.empty() ? std::nullopt : std::optional(words);
}

std::optional<std::string_view> quotedText(std::string_view text) {
    const bool isQuoted = text.size() >= 2 && (text.front() == '"' || text.front() == '\'') &&
                          text.back() == text.front();
    return isQuoted ? std::optional(trimWhitespace(text.substr(1, text.size() - 2))) : std::nullopt;
}

/// True for "Arial bold": a ";" is missing in it.
bool endsWithKeyword(std::string_view text) {
    const std::size_t blank = text.find_last_of(" \t\r\n");
    return blank != std::string_view::npos && findStyleProperty(lowerCase(text.substr(blank + 1)));
}

/// The name of a font, with or without quotes. What RTF or a stylesheet cannot hold in a name, and
/// a list of names, is none.
std::optional<std::string> fontName(std::string_view text) {
    const std::optional<std::string_view> quoted = quotedText(text);
    const std::string_view name = quoted.value_or(text);
    const bool isPlain = std::none_of(name.begin(), name.end(), [](char character) {
        return static_cast<unsigned char>(character) < ' ' ||
               std::string_view("\\\",:").find(character) != std::string_view::npos;
    });
    return isPlain && !name.empty() && !findUnshowable(name) &&
                   characterCount(name) <= longestFontName && (quoted || !endsWithKeyword(name))
               ? std::optional(std::string(name))
               : std::nullopt;
}

std::optional<std::string> wordsOf(const StyleProperty& property, std::string_view value) {
    switch (property.type) {
        case StyleValueType::Truth:
        case StyleValueType::Choice:
            return choiceWords(property.choices, value);
        case StyleValueType::Font:
            return fontName(value);
        case StyleValueType::FontSize:
            return fontSizeWords(value, property.rtf);
        case StyleValueType::Length:
            return lengthWords(value, property.shortest, property.rtf);
        case StyleValueType::LineHeight:
            return lineHeightWords(value, property.rtf);
        case StyleValueType::Language:
            return languageWords(value, property.rtf);
        case StyleValueType::TabStops:
            return tabStopsWords(value, property.rtf);
        case StyleValueType::ControlWords:
            return rawWords(value);
        case StyleValueType::Color:
            break;
    }
    return std::nullopt;
}

std::optional<StyleValue> colorValue(const StyleProperty& property, std::string_view value) {
    const std::string name = lowerCase(value);
    if (name == "none") {
        return StyleValue{&property, name, std::nullopt};
    }
    const std::optional<RgbColor> color = readColor(name);
    return color ? std::optional(StyleValue{&property, name, color}) : std::nullopt;
}

std::string_view backgroundWords(StyleKind kind) {
    return kind == StyleKind::Character ? "\\chshdng0\\chcbpat" : "\\cbpat";
}

std::string numberOf(const StyleValue& value, DocumentTables& tables) {
    return std::to_string(value.color ? tables.colorNumber(*value.color) : 0);
}

}  // namespace

std::optional<StyleValue> readStyleValue(const StyleProperty& property, std::string_view value) {
    if (property.type == StyleValueType::Color) {
        return colorValue(property, value);
    }
    std::optional<std::string> words = wordsOf(property, value);
    return words ? std::optional(StyleValue{&property, std::move(*words), std::nullopt})
                 : std::nullopt;
}

std::optional<StyleValue> styleValueOfWordAlone(const StyleProperty& property) {
    // Of a choice only "underline" makes sense by itself.
    const bool isEnough = !property.choices.empty() && property.choices.front().word == "yes";
    return isEnough ? std::optional(StyleValue{&property, std::string(property.choices.front().rtf),
                                               std::nullopt})
                    : std::nullopt;
}

void setStyleValue(StyleFormat& format, const StyleValue& value) {
    std::erase_if(format, [&](const StyleValue& other) {
        return other.property->sharesGroupWith(*value.property);
    });
    format.push_back(value);
}

std::string controlWordsOf(const StyleFormat& format, StyleKind kind, DocumentTables& tables) {
    std::string words;
    for (const StyleValue& value : format) {
        if (value.property->type == StyleValueType::Font) {
            words +=
                std::string(value.property->rtf) + std::to_string(tables.fontNumber(value.text));
        } else if (value.property->type == StyleValueType::Color) {
            words += value.property->rtf.empty() ? backgroundWords(kind) : value.property->rtf;
            words += numberOf(value, tables);
        } else {
            words += value.text;
        }
    }
    return words;
}

std::optional<RgbColor> readColor(std::string_view text) {
    constexpr std::size_t digits = 6;
    if (!text.starts_with('#')) {
        return CRtfGrpColorTable::color(CRtfGrpColorTable::colorNumber(text));
    }
    std::uint32_t number = 0;
    const auto [end, error] =
        std::from_chars(text.data() + 1, text.data() + text.size(), number, 16);
    if (text.size() != digits + 1 || error != std::errc() || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return RgbColor{static_cast<std::uint8_t>(number >> 16U),
                    static_cast<std::uint8_t>(number >> 8U), static_cast<std::uint8_t>(number)};
}

}  // namespace quorvane
