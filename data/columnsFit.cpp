#include "data/columnsFit.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numeric>
#include <string>

#include "quorvane/driver/extendedValues.h"

namespace quorvane::data {

namespace {

/// "12.34%", rounded down, so that the columns are never wider than the page.
std::string percent(double share) {
    constexpr double hundredths = 10'000;
    const auto count = std::max(std::int64_t{100}, std::int64_t(std::floor(share * hundredths)));
    const std::string decimals = std::to_string(count % 100);
    return std::to_string(count / 100) + "." + (decimals.size() < 2 ? "0" : "") + decimals + "%";
}

double textAreaOf(const TableSetup& setup) {
    return pageSizeNamed(setup.page).width - 2.0 * lengthOf(setup.margin);
}

/// The widths, each at least as large as `least` if there is room for that.
std::vector<double> withoutTooNarrow(std::vector<double> widths, double least) {
    const double sum = std::accumulate(widths.begin(), widths.end(), 0.0);
    const double rest = sum - static_cast<double>(widths.size()) * least;
    const bool areWide =
        std::all_of(widths.begin(), widths.end(), [=](double width) { return width >= least; });
    if (areWide || rest <= 0) {
        return widths;
    }
    for (double& width : widths) {
        width = least + rest * width / sum;
    }
    return widths;
}

/// What a column with a width takes of a text area.
double takenOf(const std::string& width, double area) {
    const ColumnWidth given = columnWidth(width);
    return given.isShare ? given.amount * area / 100 : given.amount;
}

// More look bad, and take room from the rows of each page.
constexpr std::size_t mostHeadingLines = 3;

/// True if the columns ask for more than the page is wide, where long texts may break.
bool needLandscape(const std::vector<ColumnMeasure>& measures, double area) {
    constexpr double wideEnough = 3600;
    double needed = 0;
    for (const ColumnMeasure& measure : measures) {
        needed += std::min(measure.width(mostHeadingLines), wideEnough);
    }
    return needed > area;
}

/// The columns with their headings in as few lines as there is room for.
std::vector<FlexibleColumn> columnsWithin(const std::vector<ColumnMeasure>& measures, double area) {
    std::vector<FlexibleColumn> columns;
    for (std::size_t lines = 1; lines <= mostHeadingLines; ++lines) {
        columns.clear();
        double asked = 0;
        for (const ColumnMeasure& measure : measures) {
            columns.push_back({measure.width(lines), measure.stretches()});
            asked += columns.back().width;
        }
        if (asked <= area) {
            break;
        }
    }
    return columns;
}

}  // namespace

void fitColumns(TableSetup& setup, const std::vector<ColumnRequest>& columns,
                const std::vector<ColumnMeasure>& measures, bool choosesPage) {
    if (choosesPage && needLandscape(measures, textAreaOf(setup))) {
        setup.page += "-landscape";
    }
    const double area = textAreaOf(setup);
    double left = area;
    std::vector<ColumnMeasure> flexible;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (columns[i].width.empty()) {
            flexible.push_back(measures[i]);
        } else {
            left -= takenOf(columns[i].width, area);
        }
    }
    const std::vector<double> widths = withoutTooNarrow(
        fittedWidths(columnsWithin(flexible, left), std::max(left, 1.0)), area / 100);
    auto width = widths.begin();
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const ColumnRequest& column = columns[i];
        const tCellAlign usual = measures[i].holdsNumbers() ? eRight : eNoDefault;
        setup.columns.push_back(
            {.heading = column.heading.value_or(column.name),
             .width = column.width.empty() ? percent(*width++ / area) : column.width,
             .align = column.align.value_or(usual)});
    }
}

}  // namespace quorvane::data
