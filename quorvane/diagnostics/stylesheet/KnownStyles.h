#pragma once

#include <array>
#include <string>
#include <string_view>
#include <unordered_set>

#include "quorvane/stylesheet/StyleList.h"

namespace quorvane {

/// Kinds of styles.
enum class StyleKind { Paragraph, Character, Cell };

/// "paragraph", "character" or "cell".
std::string_view styleKindName(StyleKind kind);

/// The styles of a stylesheet, and which of them descriptions use.
class KnownStyles {
public:
    /// Reads a stylesheet (UTF-8). Of one that is wrong those styles are known that it was most
    /// likely meant to have.
    explicit KnownStyles(std::string_view styleSheet);

    /// True when the stylesheet has no error.
    bool areLoaded() const { return areLoaded_; }

    /// The text of the stylesheet.
    const std::string& text() const { return text_; }

    /// A stylesheet with the known styles that has no error: the text itself where that has none.
    const std::string& soundText() const { return soundText_; }

    const StyleList& styles(StyleKind kind) const { return lists_[static_cast<std::size_t>(kind)]; }

    /// 1-based position of a style among those of its kind, its name in any case; -1 when there is
    /// none.
    int find(StyleKind kind, std::string_view name) const;

    /// True when the stylesheet surely has no style of that kind and name.
    bool lacks(StyleKind kind, std::string_view name) const;

    /// True for a style whose kind cannot be read.
    bool isOfAnyKind(std::string_view name) const;

    /// Remembers that a description names the style.
    void markUsed(StyleKind kind, std::string_view name);
    bool isUsed(StyleKind kind, std::string_view name) const;

private:
    void load();
    void mend();

    std::string text_;
    std::string soundText_;
    bool areLoaded_ = false;
    std::array<StyleList, 3> lists_;
    std::array<std::unordered_set<std::string>, 3> used_;
    // The names of styles whose kind cannot be read.
    std::unordered_set<std::string> ofAnyKind_;
};

}  // namespace quorvane
