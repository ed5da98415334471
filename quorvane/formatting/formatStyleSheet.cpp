#include "quorvane/formatting/formatStyleSheet.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <vector>

#include "quorvane/base/text/LineReader.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/formatting/lineEndOf.h"
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

std::string formattedDefinition(std::string_view body, std::string_view lineEnd) {
    std::vector<std::string> items;
    std::size_t length = 4;
    StyleItems read(body);
    while (const StyleItem* const item = read.next()) {
        if (!item->whole.empty()) {
            items.push_back(formattedItem(*item, items.empty()));
            length += items.back().size() + 2;
        }
    }
    if (items.empty()) {
        return "{ }";
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
    if (!findLoneBrace(text).empty()) {
        return std::string(text);
    }
    const std::string_view lineEnd = lineEndOf(text);
    StyleSheetFormatter formatter(lineEnd);
    std::size_t start = 0;
    while (const std::optional<BracedText> definition = bracedTextFrom(text, start)) {
        formatter.addText(text.substr(start, definition->open - start));
        formatter.addLine(formattedDefinition(definition->body, lineEnd));
        start = definition->close + 1;
    }
    formatter.addText(text.substr(start));
    std::string formatted = formatter.text();
    return meaningOf(formatted) == meaningOf(text) ? formatted : std::string(text);
}

}  // namespace quorvane
