#pragma once

#include <cstdint>
#include <vector>

#include "quorvane/docmodel/ElementMap.h"
#include "quorvane/docmodel/HeadingForm.h"
#include "quorvane/docmodel/PageText.h"
#include "quorvane/docmodel/RtfPicture.h"
#include "quorvane/docmodel/layout/CellSpan.h"
#include "quorvane/docmodel/layout/RowSettings.h"
#include "quorvane/rtfgroups/AddedColors.h"
#include "quorvane/rtfgroups/AddedFonts.h"

namespace quorvane {

/// What belongs to the page in the same way as its size and margins.
struct PageAdditions {
    std::vector<std::int32_t> columnWidths;
    HeadingForm headingForm = HeadingForm::PageHeader;
    PageText header;
    PageText footer;
    bool endsInSmallParagraph = false;

    bool hasLayout() const {
        return !columnWidths.empty() || header != PageText() || footer != PageText();
    }

    bool operator==(const PageAdditions&) const = default;
};

/// What most documents have nothing of: it exists once something of it is set.
struct DocumentAdditions {
    PageAdditions page;
    ElementMap<RowSettings> rows;
    ElementMap<CellSpan> spans;
    ElementMap<RtfPicture> pictures;
    AddedColors colors;
    AddedFonts fonts;

    /// True when there are more words around the rows, or the cells can have other places, than in
    /// a document without additions.
    bool hasLayout() const { return page.hasLayout() || !rows.empty() || !spans.empty(); }
};

}  // namespace quorvane
