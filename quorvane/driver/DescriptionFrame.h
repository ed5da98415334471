#pragma once

#include <string_view>
#include <vector>

#include "quorvane/driver/Dialect.h"
#include "quorvane/driver/driverFaults.h"
#include "quorvane/support/SourceLine.h"

namespace quorvane {

/// What the driver looks for in a description before it reads the lines.
struct DescriptionFrame {
    /// The opener of the document stands somewhere in the text.
    bool hasOpener = false;
    /// So does the opener of a row or a cell.
    bool hasElements = false;
    /// The text has lines, the first of which begins with the document's opener, the last one with
    /// its closer.
    bool begins = false;
    bool ends = false;

    bool operator==(const DescriptionFrame&) const = default;
};

/// `lines` are those of the text that are neither empty nor a comment.
DescriptionFrame frameOf(std::string_view text, const std::vector<SourceLine>& lines,
                         const Dialect& dialect);

/// The same for lines that do not stand in one text.
DescriptionFrame frameOf(const std::vector<SourceLine>& lines, const Dialect& dialect);

/// What is wrong with the frame, in the order in which a driver reports it.
std::vector<Violation> frameViolations(const DescriptionFrame& frame, std::string_view text,
                                       const std::vector<SourceLine>& lines);

}  // namespace quorvane
