#pragma once

#include <cstddef>
#include <string_view>

namespace quorvane {

/// The kinds of styles: of paragraphs, of words within them and of cells.
enum class StyleKind { Paragraph, Character, Cell };

/// "paragraph", "character" or "cell".
constexpr std::string_view styleKindName(StyleKind kind) {
    constexpr std::string_view names[] = {"paragraph", "character", "cell"};
    return names[static_cast<std::size_t>(kind)];
}

}  // namespace quorvane
