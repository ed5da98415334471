#pragma once

namespace quorvane {

/// The kinds of styles: of paragraphs, of words within them and of cells.
enum class StyleKind { Paragraph, Character, Cell };

}  // namespace quorvane
