#include "quorvane/driver/columnLayout.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "quorvane/base/text/numberText.h"
#include "quorvane/base/text/rounding.h"
#include "quorvane/driver/LeafError.h"

namespace quorvane {

namespace {

constexpr double allShares = 100;
// Widths such as three times 33.34 % may exceed the whole by less than a twip.
constexpr double tolerance = 0.05;

[[noreturn]] void refuse(const std::string& why) {
    throw LeafError(DriverFault::WrongValue, why);
}

std::string shareText(double share) {
    constexpr double tenths = 10;
    return numberText(std::round(share * tenths) / tenths) + " %";
}

double twipsOf(const ColumnWidth& width, const ColumnSpace& space) {
    return width.isShare ? width.amount * space.textArea / allShares : width.amount;
}

/// What the columns with a width take.
double takenBy(const std::vector<std::optional<ColumnWidth>>& columns, const ColumnSpace& space) {
    double shares = 0;
    double taken = 0;
    for (const auto& column : columns) {
        shares += column && column->isShare ? column->amount : 0;
        taken += column ? twipsOf(*column, space) : 0;
    }
    if (shares > allShares + tolerance) {
        refuse("The columns take " + shareText(shares) +
               " of the text area; make them narrower, so that they take 100 % at most");
    }
    if (taken > space.paper) {
        refuse("The columns are " + numberText(std::round(taken)) +
               " twips wide, but the paper ends " + std::to_string(space.paper) +
               " twips after the left margin; make them narrower");
    }
    return taken;
}

}  // namespace

ColumnSpace columnSpaceOf(const CRtfDoc& document) {
    return {document.TextAreaWidth(), document.PageWidth() - document.LeftMargin()};
}

std::vector<std::int32_t> columnLayout(const std::vector<std::optional<ColumnWidth>>& columns,
                                       const ColumnSpace& space) {
    const double rest = space.textArea - takenBy(columns, space);
    const auto open = std::count(columns.begin(), columns.end(), std::nullopt);
    if (open > 0 && rest < static_cast<double>(open)) {
        refuse(
            "The columns leave nothing of the text area to those without a width; make them "
            "narrower");
    }
    std::vector<std::int32_t> widths;
    double edge = 0;
    std::int32_t before = 0;
    for (const auto& column : columns) {
        edge += column ? twipsOf(*column, space) : rest / static_cast<double>(open);
        const std::int32_t rounded = std::max(roundToLong(edge), before + 1);
        widths.push_back(rounded - before);
        before = rounded;
    }
    return widths;
}

}  // namespace quorvane
