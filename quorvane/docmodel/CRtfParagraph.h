#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "quorvane/base/memory/Ref.h"
#include "quorvane/base/values/Value.h"
#include "quorvane/docmodel/RtfPicture.h"
#include "quorvane/docmodel/enumerations.h"
#include "quorvane/docmodel/references.h"

namespace quorvane {

/// A paragraph of a cell. The cell's `Paragraphs` makes it; after it is removed there, it keeps its
/// values. Setters that mark the document changed set the value and raise error 91 if the document
/// no longer exists.
class CRtfParagraph {
public:
    /// Returns the cell, even after the paragraph was removed from it. A paragraph that is held
    /// keeps its cell alive.
    Ref<CRtfTableCell> Parent() const;

    /// Text, empty by default. It goes into the document as it is: RTF control words and inline
    /// styles such as `<bold-red=Total>` take effect. A paragraph
    /// without text and picture writes nothing.
    std::string Text() const;
    /// Ignores an empty text; any other text marks the document changed.
    void setText(std::string_view text);

    /// Name of the paragraph style, empty by default. A name that the stylesheet does not have is
    /// accepted.
    std::string Style() const;
    /// Always marks the document changed, even with the same name.
    void setStyle(std::string_view sName);

    /// Color of the text. The default, `eNoColor` (0), leaves the color to the style.
    tColorIndex ForeColor() const;
    /// Always marks the document changed, even with the same color.
    void setForeColor(tColorIndex color);

    /// Alignment, `eNoDefault` (0) by default. 1 to 4 write an alignment; any other value writes
    /// none.
    tCellAlign Align() const;
    /// Does not mark the document changed.
    void setAlign(tCellAlign align);

    /// Returns the picture; null by default, and valid until it is set again.
    const RtfPicture* Picture() const;
    /// Sets the picture, which stands before the text; `std::nullopt` removes it. Always marks the
    /// document changed. A paragraph with a picture is written even if it has no text.
    void setPicture(std::optional<RtfPicture> picture);

    /// Makes the paragraph a marked field with this data: a text or a 16-bit or 32-bit integer.
    /// With data of another type the paragraph is still marked, with the data that it had, and no
    /// error is raised. Does not mark the document changed.
    void asMarkedField(const Value& vFieldData);

    CRtfParagraph(const CRtfParagraph&) = delete;
    CRtfParagraph& operator=(const CRtfParagraph&) = delete;

protected:
    CRtfParagraph() = default;
    ~CRtfParagraph() = default;
};

}  // namespace quorvane
