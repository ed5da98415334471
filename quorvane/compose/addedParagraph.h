#pragma once

#include <cstddef>
#include <string_view>

#include "quorvane/compose/ComposedDocument.h"
#include "quorvane/compose/Text.h"
#include "quorvane/docmodel/InnerCell.h"
#include "quorvane/docmodel/InnerParagraph.h"

namespace quorvane {

/// What a new paragraph gets, found to be sound.
struct ParagraphContent {
    /// Good until another text is made.
    std::string_view rtf;
    std::string_view style;
};

ParagraphContent contentOf(ComposedDocument& document, const TextView& text,
                           std::string_view style);

/// A new paragraph before the one with an index. On a dark background its text is white, as it
/// would be if the background were set later. After an error the cell is as it was.
InnerParagraph& addedParagraph(InnerCell& cell, std::size_t index, const ParagraphContent& content);

}  // namespace quorvane
