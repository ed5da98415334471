#include "quorvane/driver/columnLayout.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "quorvane/base/text/numberText.h"
#include "quorvane/base/text/rounding.h"
#include "quorvane/driver/LeafError.h"

namespace quorvane {

namespace {

double twipsOf(const ColumnWidth& width, std::int32_t textArea) {
    constexpr double all = 100;
    return width.isShare ? width.amount * textArea / all : width.amount;
}

/// Widths such as three times 33.3333 % may exceed the text area by less than a twip.
constexpr double tolerance = 1;

std::string perCentText(double share) {
    constexpr double tenths = 10;
    return numberText(std::round(share * 100 * tenths) / tenths) + " %";
}

}  // namespace

std::vector<std::int32_t> columnLayout(const std::vector<std::optional<ColumnWidth>>& columns,
                                       std::int32_t textArea) {
    double given = 0;
    for (const auto& column : columns) {
        given += column ? twipsOf(*column, textArea) : 0;
    }
    const auto open = std::count(columns.begin(), columns.end(), std::nullopt);
    const double rest = textArea - given;
    if (rest < -tolerance || (open > 0 && rest < static_cast<double>(open))) {
        throw LeafError(DriverFault::WrongValue,
                        "The columns take " + perCentText(given / textArea) +
                            " of the text area, which is " + std::to_string(textArea) +
                            " twips wide" + (open > 0 ? ", and leave no room for the others" : "") +
                            "; make them narrower, or the margins");
    }
    std::vector<std::int32_t> widths;
    double edge = 0;
    std::int32_t before = 0;
    for (const auto& column : columns) {
        edge += column ? twipsOf(*column, textArea) : rest / static_cast<double>(open);
        const std::int32_t rounded = std::max(roundToLong(edge), before + 1);
        widths.push_back(rounded - before);
        before = rounded;
    }
    return widths;
}

}  // namespace quorvane
