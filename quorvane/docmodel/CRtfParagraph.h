#pragma once

#include <string>
#include <string_view>

#include "quorvane/base/memory/Ref.h"
#include "quorvane/base/values/Value.h"
#include "quorvane/docmodel/enumerations.h"
#include "quorvane/docmodel/references.h"

namespace quorvane {

/// One paragraph of a cell. It is made by its cell's `Paragraphs`, and keeps what it holds when it
/// has been removed there. A setter that marks the document changed raises error 91 when the
/// document is gone; the value is set all the same.
class CRtfParagraph {
public:
    /// The owning cell, also after the paragraph was removed from it. A paragraph that is
    /// held keeps its cell alive.
    Ref<CRtfTableCell> Parent() const;

    /// The text as it is written into the document: RTF control words and inline styles such as
    /// `<bold-red=Total>` take effect. Empty by default; a paragraph without text writes nothing.
    std::string Text() const;
    /// An empty text is ignored. Any other marks the document changed.
    void setText(std::string_view text);

    /// Name of the paragraph's style; empty by default. Whether it exists is not checked.
    std::string Style() const;
    /// Marks the document changed, also when the name is the same.
    void setStyle(std::string_view sName);

    /// Color of the text; `eNoColor` (0), the default, writes no color.
    tColorIndex ForeColor() const;
    /// Marks the document changed, also when the color is the same.
    void setForeColor(tColorIndex color);

    /// Alignment; `eNoDefault` (0) by default. 1 to 4 write an alignment, other values none.
    tCellAlign Align() const;
    /// Does not mark the document changed.
    void setAlign(tCellAlign align);

    /// Makes the paragraph a marked text field with the given data: a text or a 16-bit or 32-bit
    /// integer. Data of another type is refused without an error: the paragraph is marked all the
    /// same and keeps the data it had. Does not mark the document changed.
    void asMarkedField(const Value& vFieldData);

    CRtfParagraph(const CRtfParagraph&) = delete;
    CRtfParagraph& operator=(const CRtfParagraph&) = delete;

protected:
    CRtfParagraph() = default;
    ~CRtfParagraph() = default;
};

}  // namespace quorvane
