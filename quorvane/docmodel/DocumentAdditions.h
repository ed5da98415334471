#pragma once

#include <cstdint>
#include <vector>

#include "quorvane/docmodel/ElementMap.h"
#include "quorvane/docmodel/HeadingForm.h"
#include "quorvane/docmodel/PageText.h"
#include "quorvane/docmodel/layout/CellSpan.h"
#include "quorvane/docmodel/layout/RowSettings.h"

namespace quorvane {

/// What belongs to the page in the same way as its size and margins.
struct PageAdditions {
    std::vector<std::int32_t> columnWidths;
    HeadingForm headingForm = HeadingForm::PageHeader;
    PageText header;
    PageText footer;
};

/// What most documents have nothing of: it exists once something of it is set.
struct DocumentAdditions {
    PageAdditions page;
    ElementMap<RowSettings> rows;
    ElementMap<CellSpan> spans;
};

}  // namespace quorvane
