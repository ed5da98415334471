#include "quorvane/diagnostics/stylesheet/StyleSheetOutline.h"

#include <algorithm>
#include <cstddef>

#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/trimming.h"

namespace quorvane {

namespace {

constexpr std::size_t nowhere = std::string_view::npos;

SheetItem readItem(std::string_view part) {
    const std::size_t colon = part.find(':');
    SheetItem item;
    item.whole = trimWhitespace(part);
    item.writtenKeyword = trimWhitespace(part.substr(0, colon));
    item.keyword = lowerCase(item.writtenKeyword);
    item.value =
        colon == nowhere ? part.substr(part.size()) : trimWhitespace(part.substr(colon + 1));
    return item;
}

SheetDefinition readDefinition(std::string_view brace, std::string_view body) {
    SheetDefinition definition{body, brace, {}};
    for (std::size_t start = 0; start <= body.size();) {
        const std::size_t end = std::min(body.find(';', start), body.size());
        const std::string_view part = body.substr(start, end - start);
        start = end + 1;
        // Only an empty item after the last ";" is skipped.
        if (end < body.size() || !trimWhitespace(part).empty()) {
            definition.items.push_back(readItem(part));
        }
    }
    return definition;
}

/// The first "}" without a "{" before it; without one, the first "{" that another one follows
/// before its "}", or the last one.
std::string_view findLoneBrace(std::string_view text) {
    std::size_t open = nowhere;
    for (std::size_t at = text.find_first_of("{}"); at != nowhere;
         at = text.find_first_of("{}", at + 1)) {
        if (text[at] == '{' && open != nowhere) {
            return text.substr(open, 1);
        }
        if (text[at] == '}' && open == nowhere) {
            return text.substr(at, 1);
        }
        open = text[at] == '{' ? at : nowhere;
    }
    return open == nowhere ? text.substr(0, 0) : text.substr(open, 1);
}

/// As the braces pair where they are balanced: the first "{" with the first "}" and so on.
void readPairs(std::string_view text, StyleSheetOutline& outline) {
    std::size_t open = text.find('{');
    for (std::size_t close = text.find('}'); close != nowhere; close = text.find('}', close + 1)) {
        const std::size_t length = close > open ? close - open - 1 : 0;
        outline.definitions.push_back(
            readDefinition(text.substr(open, 1), text.substr(open + 1, length)));
        open = text.find('{', open + 1);
    }
}

/// As they were most likely meant where they are not.
void readUnbalanced(std::string_view text, StyleSheetOutline& outline) {
    for (std::size_t open = text.find('{'); open != nowhere;) {
        const std::size_t end = std::min(text.find_first_of("{}", open + 1), text.size());
        outline.definitions.push_back(
            readDefinition(text.substr(open, 1), text.substr(open + 1, end - open - 1)));
        open = text.find('{', end);
    }
}

}  // namespace

StyleSheetOutline readStyleSheetOutline(std::string_view text) {
    StyleSheetOutline outline;
    if (std::count(text.begin(), text.end(), '{') == std::count(text.begin(), text.end(), '}')) {
        readPairs(text, outline);
    } else {
        outline.loneBrace = findLoneBrace(text);
        readUnbalanced(text, outline);
    }
    return outline;
}

std::vector<std::string_view> namesIn(std::string_view value) {
    std::vector<std::string_view> names;
    for (std::size_t start = 0; start <= value.size();) {
        const std::size_t end = std::min(value.find(',', start), value.size());
        names.push_back(trimWhitespace(value.substr(start, end - start)));
        start = end + 1;
    }
    return names;
}

}  // namespace quorvane
