#include "quorvane/diagnostics/description/StyleUses.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

#include "quorvane/base/text/trimming.h"
#include "quorvane/diagnostics/engine/nearestWord.h"
#include "quorvane/docmodel/inline/InlineTokens.h"
#include "quorvane/driver/literalText.h"
#include "quorvane/stylesheet/StyleList.h"

namespace quorvane {

void StyleUses::findCellStyle(const Leaf& leaf) {
    const std::string name = leaf.valueText();
    if (name.empty()) {
        return;
    }
    styles_.markUsed(StyleKind::Cell, name);
    if (styles_.lacks(StyleKind::Cell, name)) {
        engine_.report(DiagnosticId::UnknownCellStyle, source_.placeOf(leaf.written(leaf.text)),
                       {name}, hintFor(StyleKind::Cell, name));
    }
}

void StyleUses::findParagraphStyle(const Leaf& leaf) {
    const std::string name = leaf.valueText();
    if (name.empty()) {
        return;
    }
    styles_.markUsed(StyleKind::Paragraph, name);
    if (styles_.lacks(StyleKind::Paragraph, name)) {
        const StyleList& list = stylesOf(styles_, StyleKind::Paragraph);
        const int used = formOf(styles_).unknown;
        engine_.report(DiagnosticId::UnknownParagraphStyle,
                       source_.placeOf(leaf.written(leaf.text)),
                       {name, used == 0 ? "the paragraph gets no format"
                                        : list.at(used).name + " is used instead"},
                       hintFor(StyleKind::Paragraph, name));
    }
}

void StyleUses::findLiteralInlineStyles(const Leaf& leaf) {
    const std::vector<std::string_view> names = inlineStyleNames(leaf.text, leaf.data());
    for (const std::string_view name : unclosedInlineStyles(leaf.text)) {
        const bool isWritten = std::any_of(names.begin(), names.end(), [=](std::string_view each) {
            return each.data() == name.data();
        });
        if (isWritten) {
            reportUnclosed(name, leaf.written(name));
        }
    }
    for (const std::string_view name : names) {
        styles_.markUsed(StyleKind::Character, name);
        if (!styles_.lacks(StyleKind::Character, name)) {
            continue;
        }
        if (Hint hint = hintFor(StyleKind::Character, name); !hint.empty()) {
            engine_.report(DiagnosticId::InlineStyleAsText, source_.placeOf(leaf.written(name)),
                           {name}, std::move(hint));
        }
    }
}

void StyleUses::findInlineStyles(std::string_view text) {
    for (const std::string_view name : unclosedInlineStyles(text)) {
        reportUnclosed(name, name);
    }
    const InlineTokens tokens(text);
    for (std::size_t open = text.find('<'); open != std::string_view::npos;
         open = text.find('<', open + 1)) {
        const std::optional<std::string_view> token = tokens.nameAt(open);
        if (!token) {
            continue;
        }
        const std::string_view name = *token;
        styles_.markUsed(StyleKind::Character, name);
        if (styles_.lacks(StyleKind::Character, name)) {
            engine_.report(DiagnosticId::UnknownCharacterStyle, source_.placeOf(name), {name},
                           hintFor(StyleKind::Character, name));
        }
    }
}

/// Without a ">" that ends it, an inline style is plain text.
std::vector<std::string_view> StyleUses::unclosedInlineStyles(std::string_view text) const {
    std::vector<std::string_view> open;
    for (std::size_t at = text.find_first_of("<>"); at != std::string_view::npos;
         at = text.find_first_of("<>", at + 1)) {
        const std::size_t end = text.find_first_of("=<>", at + 1);
        const std::string_view name = text.substr(at + 1, end - at - 1);
        if (text[at] == '>' && !open.empty()) {
            open.pop_back();
        } else if (text[at] == '<' && end != std::string_view::npos && text[end] == '=' &&
                   styles_.find(StyleKind::Character, name) > 0) {
            open.push_back(name);
        }
    }
    constexpr std::size_t maxReported = 10;
    open.resize(std::min(open.size(), maxReported));
    return open;
}

void StyleUses::reportUnclosed(std::string_view name, std::string_view place) {
    styles_.markUsed(StyleKind::Character, name);
    engine_.report(DiagnosticId::UnclosedInlineStyle, source_.placeOf(place), {name},
                   "write a > after the text: <" + std::string(name) + "=Total>");
}

Hint StyleUses::hintFor(StyleKind kind, std::string_view name) {
    if (++hints_ > maxHints) {
        return {};
    }
    const std::string trimmed(trimWhitespace(name));
    if (trimmed != name && styles_.find(kind, trimmed) > 0) {
        styles_.markUsed(kind, trimmed);
        return {"remove the blank; the style is named " + trimmed, trimmed};
    }
    for (const StyleKind other : {StyleKind::Paragraph, StyleKind::Character, StyleKind::Cell}) {
        if (other != kind && styles_.find(other, name) > 0) {
            return std::string(name) + " is a " + std::string(styleKindName(other)) + " style";
        }
    }
    std::vector<std::string_view> names;
    const StyleList& list = stylesOf(styles_, kind);
    for (int i = 1; list.count() <= maxCandidates && i <= static_cast<int>(list.count()); ++i) {
        names.push_back(list.at(i).name);
    }
    // The style whose name is misspelled counts as used.
    styles_.markUsed(kind, nearestWord(name, names));
    Hint hint = spellingHint(name, names);
    // Such a name cannot be written where it is meant.
    if (hint.replacement && hint.replacement->find_first_of("()<>=\r\n") != std::string::npos) {
        hint.replacement.reset();
    }
    return hint;
}

}  // namespace quorvane
