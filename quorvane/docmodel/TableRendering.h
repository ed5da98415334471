#pragma once

#include <string>
#include <string_view>

#include "quorvane/base/memory/SharedText.h"
#include "quorvane/base/text/TextOutput.h"
#include "quorvane/docmodel/Borders.h"
#include "quorvane/docmodel/TableDocument.h"
#include "quorvane/docmodel/inline/inlineStyles.h"

namespace quorvane {

/// One rendering of a document's table: the document, where the text goes, and what most cells have
/// in common with the one before them. It can be repeated with the same object.
class TableRendering {
public:
    TableRendering(TableDocument& document_, TextOutput& out_);

    /// Control words of a paragraph style; see `TableDocument::GetParagraphStyle`.
    std::string_view paragraphStyle(const SharedText& name);

    /// The text of a cell's borders.
    std::string_view borderText(const Borders& borders);

    TableDocument& document;
    TextOutput& out;
    InlineStyles inlineStyles;
    /// True while the row at hand is to stay on the page of the next one.
    bool keepsWithNext = false;

private:
    // A document that has rows has been asked for its first style only when this is not empty.
    std::string_view styleWords_;
    SharedText styleName_;
    Borders borders_;
    std::string borderText_;
};

}  // namespace quorvane
