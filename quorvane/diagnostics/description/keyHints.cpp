#include "quorvane/diagnostics/description/keyHints.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "quorvane/base/text/textCase.h"
#include "quorvane/diagnostics/engine/nearestWord.h"

namespace quorvane {

namespace {

/// Words of other languages for words of the keys.
constexpr std::pair<std::string_view, std::string_view> otherKeyWords[] = {
    {"background", "backcolor"}, {"bg", "backcolor"},     {"bgcolor", "backcolor"},
    {"color", "backcolor"},      {"colour", "backcolor"}, {"fill", "backcolor"},
    {"shading", "backcolor"},    {"align", "alignment"},  {"justify", "alignment"},
    {"font", "style"},           {"class", "style"},      {"name", "style"},
    {"page", "paper"},           {"paragraph", "para"},   {"content", "text"},
    {"value", "text"},           {"string", "text"},      {"id", "key"},

};

/// Keys that other languages have and this one has not, and what to do instead.
struct MissingKey {
    std::string_view key;
    bool isOfDocument;
    std::string_view instead;
};

constexpr MissingKey missingKeys[] = {
    {"orientation", true,
     "for landscape, paper-width is the longer side: (paper-width=16838) and "
     "(paper-height=11906) for A4"},
    {"landscape", true,
     "for landscape, paper-width is the longer side: (paper-width=16838) and "
     "(paper-height=11906) for A4"},
    {"paper-size", true,
     "write the width and the height: (paper-width=11906) and (paper-height=16838) for A4"},
    {"page-size", true,
     "write the width and the height: (paper-width=11906) and (paper-height=16838) for A4"},
    {"format", true,
     "write the width and the height: (paper-width=11906) and (paper-height=16838) for A4"},
    {"colspan", false, "cells cannot span columns; use fewer and wider cells in this row"},
    {"col-span", false, "cells cannot span columns; use fewer and wider cells in this row"},
    {"span", false, "cells cannot span columns; use fewer and wider cells in this row"},
    {"rowspan", false, "cells cannot span rows; leave the cells below empty"},
    {"row-span", false, "cells cannot span rows; leave the cells below empty"},
    {"height", false,
     "a row is as high as its text; \\sb and \\sa in the format of a style add space"},
    {"row-height", false,
     "a row is as high as its text; \\sb and \\sa in the format of a style add space"},
    {"cell-height", false,
     "a row is as high as its text; \\sb and \\sa in the format of a style add space"},
    {"padding", false, "\\li, \\ri, \\sb and \\sa in the format of a style add space"},
    {"indent", false, "\\li in the format of a style indents: \\li200 by 200 twips"},
    {"para-indent", false, "\\li in the format of a style indents: \\li200 by 200 twips"},
};

/// The parts of a key between its "-", in the words of the keys, without the node's name, in an
/// order of their own.
std::vector<std::string> meaningOf(std::string_view key, NodeKind kind) {
    const std::string_view node = kind == NodeKind::Doc ? "paper" : nodeName(kind);
    std::vector<std::string> parts;
    for (std::size_t start = 0; start <= key.size();) {
        const std::size_t end = std::min(key.find_first_of("-_. ", start), key.size());
        std::string part = lowerCase(key.substr(start, end - start));
        start = end + 1;
        for (const auto& [other, meant] : otherKeyWords) {
            part = part == other ? std::string(meant) : part;
        }
        if (!part.empty() && part != node) {
            parts.push_back(std::move(part));
        }
    }
    std::sort(parts.begin(), parts.end());
    parts.erase(std::unique(parts.begin(), parts.end()), parts.end());
    return parts;
}

}  // namespace

Hint nearKeyHint(NodeKind kind, std::string_view word, const Vocabulary& vocabulary) {
    const std::vector<std::string_view> keys = vocabulary.keysOf(kind);
    std::vector<std::string_view> candidates = keys;
    for (const std::string_view key : keys) {
        candidates.push_back(vocabulary.shorten(key));
    }
    const std::vector<std::string> meaning = meaningOf(word, kind);
    for (const std::string_view key : keys) {
        if (!meaning.empty() && meaningOf(key, kind) == meaning) {
            Hint hint("did you mean " + std::string(key) + "?");
            if (certainWord(word, candidates) == key) {
                hint.replacement = std::string(key);
            }
            return hint;
        }
    }
    // The height of the paper is found before.
    for (const auto& [other, isOfDocument, instead] : missingKeys) {
        if (lowerCase(word) == other && isOfDocument == (kind == NodeKind::Doc)) {
            return std::string(instead);
        }
    }
    if (meaning == std::vector<std::string>{"border"} && kind != NodeKind::Para &&
        kind != NodeKind::Doc) {
        const std::string node = kind == NodeKind::Row ? "row" : "cell";
        return "each side has its own border: " + node +
               "-top-border, -bottom-border, "
               "-left-border, -right-border";
    }
    return spellingHint(word, candidates);
}

}  // namespace quorvane
