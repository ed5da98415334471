#include "quorvane/formatting/formatStyleSheet.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "quorvane/base/text/LineReader.h"
#include "quorvane/base/text/byteOrderMark.h"
#include "quorvane/base/text/extendedMark.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/formatting/lineEndOf.h"
#include "quorvane/rtfgroups/NumberedTables.h"
#include "quorvane/stylesheet/ExtendedDefinition.h"
#include "quorvane/stylesheet/ExtendedSheetParts.h"
#include "quorvane/stylesheet/extendedStyleSheet.h"
#include "quorvane/stylesheet/stylesheetParser.h"
#include "quorvane/stylesheet/stylesheetSyntax.h"

namespace quorvane {

namespace {

constexpr std::size_t longestLine = 100;

std::string formattedNames(std::string_view value) {
    std::string names;
    std::string_view separator;
    for (const std::string_view name : styleNamesIn(value)) {
        names += separator;
        names += name;
        separator = ", ";
    }
    return names;
}

std::string formattedItem(const StyleItem& item, bool isFirst) {
    const std::string value = isFirst ? formattedNames(item.value) : std::string(item.value);
    return item.keyword + ":" + (value.empty() ? "" : " ") + value;
}

std::string formattedDefinition(const std::vector<std::string>& items, std::string_view lineEnd) {
    if (items.empty()) {
        return "{ }";
    }
    std::size_t length = 4;
    for (const std::string& item : items) {
        length += item.size() + 2;
    }
    const bool isLong = length > longestLine + 2;
    std::string definition = "{";
    for (const std::string& item : items) {
        definition += &item == &items.front() ? "" : ";";
        definition += isLong ? std::string(lineEnd) + "  " : " ";
        definition += item;
    }
    return definition + (isLong ? std::string(lineEnd) : " ") + "}";
}

using ItemFormatter = std::string (*)(const StyleItem& item, bool isFirst);

std::vector<std::string> formattedItems(std::string_view body, ItemFormatter format) {
    std::vector<std::string> items;
    StyleItems read(body);
    while (const StyleItem* const item = read.next()) {
        if (!item->whole.empty()) {
            items.push_back(format(*item, items.empty()));
        }
    }
    return items;
}

class StyleSheetFormatter {
public:
    explicit StyleSheetFormatter(std::string_view lineEnd) : lineEnd_(lineEnd) {}

    /// The text between two definitions.
    void addText(std::string_view text) {
        for (LineReader lines(text); !lines.atEnd();) {
            const std::string_view raw = lines.next();
            const std::string_view line = trimCharacters(raw, " \t");
            if (line.empty()) {
                // The rest of the line on which a definition ends does not count as a blank line.
                isBlankPending_ = isBlankPending_ || raw.data() != text.data() || text_.empty();
            } else {
                addLine(isIndented(raw, text) ? withoutTrailingBlanks(raw) : line);
            }
        }
    }

    void addLine(std::string_view line) {
        if (isBlankPending_ && !text_.empty()) {
            text_ += lineEnd_;
        }
        isBlankPending_ = false;
        text_ += line;
        text_ += lineEnd_;
    }

    std::string text() const { return text_; }

private:
    /// A line of text keeps its indentation, unless a definition ends on the same line.
    bool isIndented(std::string_view raw, std::string_view text) const {
        return raw.data() != text.data() || text_.empty();
    }

    static std::string_view withoutTrailingBlanks(std::string_view line) {
        return line.substr(0, line.find_last_not_of(" \t") + 1);
    }

    std::string_view lineEnd_;
    std::string text_;
    bool isBlankPending_ = false;
};

/// A text with single blanks in place of blanks, tabs and line breaks in a row.
std::string withSingleBlanks(std::string_view text) {
    std::string single;
    for (const char character : text) {
        if (!isWhitespace(character)) {
            single += character;
        } else if (!single.ends_with(' ')) {
            single += ' ';
        }
    }
    return single;
}

/// The words of a list of them, in the case and the form of the reference.
std::string formattedExtendedValue(const StyleItem& item) {
    if (item.is(kindKeyword)) {
        const std::optional<StyleKind> kind = extendedKindNamed(item.value);
        return std::string(kind ? extendedKindWord(*kind) : item.value);
    }
    const StyleProperty* const property = findStyleProperty(item.keyword);
    const bool isChoice = property && !property->choices.empty();
    return isChoice ? lowerCase(item.value) : withSingleBlanks(item.value);
}

std::string formattedExtendedItem(const StyleItem& item, bool isFirst) {
    if (isFirst && item.keyword == nameKeyword) {
        return formattedItem(item, isFirst);
    }
    const StyleProperty* const property = findStyleProperty(item.keyword);
    const std::string value = formattedExtendedValue(item);
    // What means yes by itself needs no value.
    const bool isYes = property && value == "yes" && styleValueOfWordAlone(*property);
    if (!item.hasColon() || isYes) {
        return item.keyword;
    }
    return item.keyword + ":" + (value.empty() ? "" : " ") + value;
}

/// The styles of an extended stylesheet as one text, with the violations.
std::string meaningOfExtended(std::string_view text) {
    std::string meaning;
    const auto report = [&](const ExtendedViolation& violation) {
        // The part of another one shows its message, which may name a line.
        meaning += extendedFaultText(violation.fault);
    };
    NumberedTables tables;
    for (const ExtendedStyle& style : readExtendedStyleSheet(text, report)) {
        meaning += definitionOf(style, tables).record + "\n";
    }
    for (const std::string& font : tables.fonts().entries()) {
        meaning += font + "\n";
    }
    for (const RgbColor& color : tables.colors().list()) {
        for (const std::uint8_t part : {color.red, color.green, color.blue}) {
            meaning += std::to_string(part) + "\n";
        }
    }
    return meaning;
}

bool hasBlankLine(std::string_view gap) {
    return lineCount(gap) > (gap.ends_with('\n') || gap.ends_with('\r') ? 1 : 2);
}

/// Text outside the braces and lone braces leave open what is meant.
std::string formattedExtendedSheet(std::string_view text) {
    using Kind = ExtendedSheetPart::Kind;
    const std::string_view lineEnd = lineEndOf(text);
    const std::string_view content = afterByteOrderMark(text);
    std::string formatted(text.substr(0, text.size() - content.size()));
    std::size_t end = 0;
    ExtendedSheetParts parts(text);
    while (const std::optional<ExtendedSheetPart> part = parts.next()) {
        if (part->kind != Kind::Comment && part->kind != Kind::Definition) {
            return std::string(text);
        }
        const auto begin = static_cast<std::size_t>(part->whole.data() - content.data());
        const bool isFirst = end == 0;
        if (!isFirst && hasBlankLine(content.substr(end, begin - end))) {
            formatted += lineEnd;
        }
        end = begin + part->whole.size();
        formatted +=
            isFirst ? std::string(extendedMark)
            : part->kind == Kind::Comment
                ? std::string(part->whole)
                : formattedDefinition(formattedItems(part->body, formattedExtendedItem), lineEnd);
        formatted += lineEnd;
    }
    return meaningOfExtended(formatted) == meaningOfExtended(text) ? formatted : std::string(text);
}

/// The definitions as one text, or the error that reading them raises.
std::string meaningOf(std::string_view text) {
    std::string meaning;
    try {
        parseStyleSheet(text, [&](const StyleDefinition& definition) {
            for (const std::string& name : definition.names) {
                meaning += name + "\n";
            }
            meaning += "= " + definition.record + "\n";
        });
    } catch (const RtfError& error) {
        meaning += error.description;
    }
    return meaning;
}

}  // namespace

std::string formattedStyleSheet(std::string_view text) {
    if (isMarkedExtended(text)) {
        return formattedExtendedSheet(text);
    }
    if (!findLoneBrace(text).empty()) {
        return std::string(text);
    }
    const std::string_view lineEnd = lineEndOf(text);
    StyleSheetFormatter formatter(lineEnd);
    std::size_t start = 0;
    while (const std::optional<BracedText> definition = bracedTextFrom(text, start)) {
        formatter.addText(text.substr(start, definition->open - start));
        formatter.addLine(
            formattedDefinition(formattedItems(definition->body, formattedItem), lineEnd));
        start = definition->close + 1;
    }
    formatter.addText(text.substr(start));
    std::string formatted = formatter.text();
    // The comment before a definition can become the mark of the other language.
    const bool isSame = meaningOf(formatted) == meaningOf(text) && !isMarkedExtended(formatted);
    return isSame ? formatted : std::string(text);
}

}  // namespace quorvane
