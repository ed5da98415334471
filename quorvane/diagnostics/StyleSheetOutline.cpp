#include "quorvane/diagnostics/StyleSheetOutline.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>

#include "quorvane/base/text/extendedMark.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/stylesheet/ExtendedSheetParts.h"

namespace quorvane {

namespace {

OutlinedDefinition outlinedDefinition(std::string_view brace, std::string_view body) {
    OutlinedDefinition definition{brace, {}};
    StyleItems items(body);
    while (const StyleItem* const item = items.next()) {
        definition.items.push_back(*item);
    }
    return definition;
}

void readBalanced(std::string_view text, StyleSheetOutline& outline) {
    BracedTexts definitions(text);
    while (const std::optional<BracedText> definition = definitions.next()) {
        outline.definitions.push_back(
            outlinedDefinition(text.substr(definition->open, 1), definition->body));
    }
}

void readUnbalanced(std::string_view text, StyleSheetOutline& outline) {
    for (std::size_t open = text.find('{'); open != std::string_view::npos;) {
        const std::size_t end = std::min(text.find_first_of("{}", open + 1), text.size());
        outline.definitions.push_back(
            outlinedDefinition(text.substr(open, 1), text.substr(open + 1, end - open - 1)));
        open = text.find('{', end);
    }
}

void readExtended(std::string_view text, StyleSheetOutline& outline) {
    ExtendedSheetParts parts(text);
    while (const std::optional<ExtendedSheetPart> part = parts.next()) {
        if (part->whole.starts_with('{')) {
            outline.definitions.push_back(outlinedDefinition(part->whole.substr(0, 1), part->body));
        }
    }
}

/// The kind that a word names or is most likely meant to name.
StyleKind likelyKind(const std::string& word) {
    return word.starts_with("p")    ? StyleKind::Paragraph
           : word.starts_with("ch") ? StyleKind::Character
                                    : styleKindNamed(word);
}

}  // namespace

StyleSheetOutline readStyleSheetOutline(std::string_view text) {
    StyleSheetOutline outline;
    if (isMarkedExtended(text)) {
        readExtended(text, outline);
        return outline;
    }
    const auto [opened, closed] = countBraces(text);
    if (opened == closed) {
        readBalanced(text, outline);
    } else {
        outline.loneBrace = findLoneBrace(text);
        readUnbalanced(text, outline);
    }
    return outline;
}

std::vector<std::string_view> namesOf(const OutlinedDefinition& definition) {
    return !definition.items.empty() && definition.items.front().keyword == nameKeyword
               ? styleNamesIn(definition.items.front().value)
               : std::vector<std::string_view>();
}

StyleKind kindOf(const OutlinedDefinition& definition) {
    for (std::size_t i = 1; i < definition.items.size(); ++i) {
        if (definition.items[i].is(kindKeyword)) {
            return likelyKind(lowerCase(definition.items[i].value));
        }
    }
    return StyleKind::Cell;
}

}  // namespace quorvane
