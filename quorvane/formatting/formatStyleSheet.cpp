#include "quorvane/formatting/formatStyleSheet.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/formatting/sourceLines.h"
#include "quorvane/stylesheet/stylesheetParser.h"

namespace quorvane {

namespace {

constexpr std::size_t longestLine = 100;

std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = std::min(text.find(separator, start), text.size());
        parts.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return parts;
}

/// True when each "{" has its "}" before the next "{".
bool areBracesInTurns(std::string_view text) {
    bool isOpen = false;
    for (const char character : text) {
        if ((character == '{' && isOpen) || (character == '}' && !isOpen)) {
            return false;
        }
        isOpen = character == '{' || (isOpen && character != '}');
    }
    return !isOpen;
}

std::string formattedNames(std::string_view value) {
    std::string names;
    for (const std::string_view name : split(value, ',')) {
        names += names.empty() && name.data() == value.data() ? "" : ", ";
        names += trimWhitespace(name);
    }
    return names;
}

std::string formattedItem(std::string_view item, bool isFirst) {
    const std::size_t colon = std::min(item.find(':'), item.size());
    const std::string keyword = lowerCase(trimWhitespace(item.substr(0, colon)));
    const std::string_view value = trimWhitespace(item.substr(std::min(colon + 1, item.size())));
    const std::string shown = isFirst ? formattedNames(value) : std::string(value);
    return keyword + ":" + (shown.empty() ? "" : " ") + shown;
}

std::string formattedDefinition(std::string_view body, std::string_view lineEnd) {
    std::vector<std::string> items;
    std::size_t length = 4;
    for (const std::string_view item : split(body, ';')) {
        if (!trimWhitespace(item).empty()) {
            items.push_back(formattedItem(item, items.empty()));
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
        for (const std::string_view raw : linesOf(text)) {
            const std::string_view line = trimCharacters(raw, " \t");
            if (line.empty()) {
                // The rest of the line on which the definition before ends is no blank line.
                isBlankPending_ = isBlankPending_ || raw.data() != text.data() || text_.empty();
            } else {
                addLine(isIndented(raw, text) ? withoutBlanksBehind(raw) : line);
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
    /// A line of text keeps its indentation, unless it begins behind a definition.
    bool isIndented(std::string_view raw, std::string_view text) const {
        return raw.data() != text.data() || text_.empty();
    }

    static std::string_view withoutBlanksBehind(std::string_view line) {
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
    if (!areBracesInTurns(text)) {
        return std::string(text);
    }
    const std::string_view lineEnd = lineEndOf(text);
    StyleSheetFormatter formatter(lineEnd);
    std::size_t start = 0;
    for (std::size_t open = text.find('{'); open != std::string_view::npos;
         open = text.find('{', start)) {
        formatter.addText(text.substr(start, open - start));
        const std::size_t close = text.find('}', open);
        formatter.addLine(formattedDefinition(text.substr(open + 1, close - open - 1), lineEnd));
        start = close + 1;
    }
    formatter.addText(text.substr(start));
    std::string formatted = formatter.text();
    return meaningOf(formatted) == meaningOf(text) ? formatted : std::string(text);
}

}  // namespace quorvane
