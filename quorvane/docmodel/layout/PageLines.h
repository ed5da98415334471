#pragma once

#include <cstdint>
#include <string_view>

#include "quorvane/docmodel/DocumentAdditions.h"
#include "quorvane/docmodel/TableRendering.h"
#include "quorvane/docmodel/layout/LaidOutRows.h"
#include "quorvane/rtfgroups/CRtfGrpDocumentFormat.h"

namespace quorvane {

/// The paragraph styles of the texts in the page header and the page footer.
inline constexpr std::string_view headerStyle = "header";
inline constexpr std::string_view footerStyle = "footer";

/// Writes what is in the margins of every page: the page header with the rows that repeat as a
/// heading, and the page footer.
class PageLines {
public:
    PageLines(TableRendering& rendering, const CRtfGrpDocumentFormat& format)
        : rendering_(rendering), format_(format) {}

    /// The heading may be null.
    void renderHeader(const PageText& text, const LaidOutRows* heading);
    void renderFooter(const PageText& text);

private:
    void renderText(const PageText& text, std::string_view style, std::int32_t spaceAfter);

    TableRendering& rendering_;
    const CRtfGrpDocumentFormat& format_;
};

}  // namespace quorvane
