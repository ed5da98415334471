#pragma once

#include <array>
#include <string>
#include <string_view>
#include <unordered_set>

#include "quorvane/stylesheet/StyleList.h"

namespace quorvane {

/// "paragraph", "character" or "cell".
std::string_view styleKindName(StyleKind kind);

/// The styles of a stylesheet, and which of them descriptions use.
class KnownStyles {
public:
    /// Reads a stylesheet (UTF-8). If it has errors, the styles are those that it was most likely
    /// meant to have.
    explicit KnownStyles(std::string_view styleSheet);

    /// The text of the stylesheet, as it was given.
    const std::string& text() const { return text_; }

    /// The text of a stylesheet without errors that has the same styles: `text` when that has
    /// none.
    const std::string& soundText() const { return soundText_; }

    const StyleList& styles(StyleKind kind) const { return lists_[static_cast<std::size_t>(kind)]; }

    /// 1-based position of a style among those of its kind, its name in any case; -1 when the
    /// stylesheet has no such style.
    int find(StyleKind kind, std::string_view name) const;

    /// True when it is certain that the stylesheet has no style of that kind and name.
    bool lacks(StyleKind kind, std::string_view name) const;

    /// True for the name of a style whose kind is wrong or uncertain.
    bool isOfAnyKind(std::string_view name) const;

    /// Records that a description uses the style.
    void markUsed(StyleKind kind, std::string_view name);
    bool isUsed(StyleKind kind, std::string_view name) const;

private:
    void load();
    void repair();

    std::string text_;
    std::string soundText_;
    std::array<StyleList, 3> lists_;
    std::array<std::unordered_set<std::string>, 3> used_;
    // The names of styles whose kind is uncertain, in lower case.
    std::unordered_set<std::string> ofAnyKind_;
};

}  // namespace quorvane
