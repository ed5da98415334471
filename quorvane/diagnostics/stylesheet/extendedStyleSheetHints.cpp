#include "quorvane/diagnostics/stylesheet/extendedStyleSheetHints.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string>
#include <vector>

#include "quorvane/base/text/numberText.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/base/values/units.h"
#include "quorvane/diagnostics/engine/nearestWord.h"
#include "quorvane/diagnostics/stylesheet/styleSheetHints.h"
#include "quorvane/stylesheet/ExtendedDefinition.h"

namespace quorvane {

namespace {

struct WordHint {
    std::string_view word;
    std::string_view hint;
};

/// The words that people know from other stylesheets, and what stands for them here.
constexpr WordHint wordsFromElsewhere[] = {
    {"format", "write control words after rtf:"},
    {"additive", "leave it out: a character style adds to the format around it"},
    {"name", "name must be the first item of a style"},
    {"font-family", "write font"},
    {"font-name", "write font"},
    {"font-size", "write size"},
    {"font-weight", "write bold"},
    {"font-style", "write italic"},
    {"font-variant", "write small-caps"},
    {"text-decoration", "write underline or strike"},
    {"text-transform", "write all-caps"},
    {"text-align", "write align"},
    {"text-indent", "write first-line"},
    {"text-color", "write color"},
    {"background-color", "write background"},
    {"margin-top", "write space-before"},
    {"margin-bottom", "write space-after"},
    {"margin-left", "write indent-left"},
    {"margin-right", "write indent-right"},
    {"padding-top", "write space-before"},
    {"padding-bottom", "write space-after"},
    {"vertical-align", "write superscript or subscript"},
    {"line-spacing", "write line-height"},
    {"lang", "write language"},
    {"tabs", "write tab-stops"},
    {"caps", "write all-caps or small-caps"},
    {"kind", "write style-def"},
    {"type", "write style-def"},
};

constexpr std::string_view writeHint = "write ";

/// A hint "write WORD" is a fix where it names one word.
Hint fixOf(std::string_view hint) {
    const std::string_view word = hint.substr(std::min(writeHint.size(), hint.size()));
    const bool isFix = hint.starts_with(writeHint) &&
                       (isExtendedKeyword(word) && word.find(' ') == std::string_view::npos);
    return isFix ? Hint(std::string(hint), std::string(word)) : Hint(std::string(hint));
}

Hint keywordHint(std::string_view written) {
    const std::string keyword = lowerCase(written);
    const std::string_view word =
        std::string_view(keyword).substr(0, keyword.find_first_of(" \t\r\n="));
    if (word.size() < keyword.size() && isExtendedKeyword(word)) {
        return "write a : after the keyword " + std::string(word);
    }
    if (written.starts_with('\\')) {
        return "write control words after rtf:";
    }
    const auto* const known =
        std::find_if(std::begin(wordsFromElsewhere), std::end(wordsFromElsewhere),
                     [&](const WordHint& row) { return row.word == keyword; });
    return known == std::end(wordsFromElsewhere) ? spellingHint(keyword, extendedKeywords())
                                                 : fixOf(known->hint);
}

/// A length in a unit that is not one, or with a comma in it.
Hint lengthHint(std::string_view value, std::string_view example) {
    const std::size_t comma = value.find(',');
    if (comma != std::string_view::npos) {
        std::string point(value);
        point[comma] = '.';
        if (const auto length = readNumberWithUnit(point);
            length && (length->unit.empty() || lengthUnitOf(length->unit))) {
            return {"write a point: " + point, point};
        }
    }
    const std::optional<NumberWithUnit> length = readNumberWithUnit(value);
    if (length && length->unit == "px") {
        return "a pixel is 0.75pt: write " + numberText(length->number * 0.75) + "pt";
    }
    return "write a length such as " + std::string(example);
}

std::string listed(std::span<const StyleChoice> choices) {
    std::string words;
    for (const StyleChoice& choice : choices) {
        words += &choice == &choices.front() ? "" : &choice == &choices.back() ? " or " : ", ";
        words += choice.word;
    }
    return words;
}

Hint choiceHint(const StyleProperty& property, std::string_view value) {
    std::vector<std::string_view> words;
    std::transform(property.choices.begin(), property.choices.end(), std::back_inserter(words),
                   [](const StyleChoice& choice) { return choice.word; });
    Hint near = spellingHint(value, words);
    return near.empty() ? Hint("write " + listed(property.choices)) : near;
}

Hint languageHint(std::string_view value) {
    std::vector<std::string_view> tags;
    std::transform(styleLanguages().begin(), styleLanguages().end(), std::back_inserter(tags),
                   [](const StyleLanguage& language) { return language.tag; });
    const std::string near = didYouMean(value, tags);
    return near.empty() ? "write a tag such as en-US or de-DE, or none" : near;
}

Hint colorHint(std::string_view value) {
    const Hint near = cellColorHint(lowerCase(value));
    return near.empty() || value.starts_with('#')
               ? Hint("write the name of a color, six digits such as #1f4e79, or none")
               : near;
}

Hint valueHint(const StyleProperty& property, std::string_view value) {
    switch (property.type) {
        case StyleValueType::Truth:
        case StyleValueType::Choice:
            return choiceHint(property, value);
        case StyleValueType::Font:
            return "write the name of one font";
        case StyleValueType::FontSize:
            return readNumber(value) ? Hint("write the unit: " + std::string(value) + "pt")
                                     : lengthHint(value, "11pt, from 1pt to 1638pt");
        case StyleValueType::Color:
            return colorHint(value);
        case StyleValueType::Length:
            return lengthHint(value, property.shortest < 0 ? "5mm or -5mm" : "5mm or 12pt");
        case StyleValueType::LineHeight:
            return lengthHint(value, "14pt, or a multiple such as 1.2");
        case StyleValueType::Language:
            return languageHint(value);
        case StyleValueType::TabStops:
            return "write lengths between commas, such as 3cm, 8cm right, 12cm decimal";
        case StyleValueType::ControlWords:
            break;
    }
    return "write control words that format text, such as \\outl\\shad";
}

Hint kindHint(std::string_view value) {
    constexpr std::string_view words[] = {"paragraph", "character", "cell"};
    const Hint near = spellingHint(value, words);
    return near.empty() ? Hint("write paragraph, character or cell") : near;
}

Hint placeHint(const ExtendedViolation& violation) {
    switch (violation.kind) {
        case StyleKind::Cell:
            return "background is all that a cell style can have";
        case StyleKind::Character:
            return violation.property ? "put it into a paragraph style" : Hint();
        case StyleKind::Paragraph:
            break;
    }
    return {};
}

}  // namespace

Hint extendedHint(const ExtendedViolation& violation, std::span<const std::string_view> names) {
    switch (violation.fault) {
        case ExtendedFault::BadCharacter:
            return static_cast<unsigned char>(violation.part.front()) < 0x80
                       ? "leave it out"
                       : "save the file in UTF-8";
        case ExtendedFault::LoneBrace:
            return violation.part == "{" ? "its } is missing" : "its { is missing";
        case ExtendedFault::StrayText:
            return violation.part == ";" ? "leave it out" : "begin a comment with ;";
        case ExtendedFault::NamelessStyle:
            return "begin with name:";
        case ExtendedFault::BadStyleName:
            return "begin with a letter or a digit; use these, blanks, - _ and . alone";
        case ExtendedFault::MissingKind:
            return "write style-def: paragraph, style-def: character or style-def: cell";
        case ExtendedFault::BadKind:
            return kindHint(violation.part);
        case ExtendedFault::UnknownItem:
            return keywordHint(violation.part);
        case ExtendedFault::MissingSemicolon:
            return "write a ; before it";
        case ExtendedFault::ItemTwice:
            return "keep one of the two";
        case ExtendedFault::MisplacedItem:
            return placeHint(violation);
        case ExtendedFault::MissingValue:
            return "write a : and a value after it";
        case ExtendedFault::BadValue:
            return violation.property ? valueHint(*violation.property, violation.part) : Hint();
        case ExtendedFault::MissingStyle:
            return spellingHint(violation.part, names);
        case ExtendedFault::StyleTwice:
            return "give it another name";
        case ExtendedFault::StyleCircle:
            break;
    }
    return "base one of the styles of the circle on another one";
}

}  // namespace quorvane
