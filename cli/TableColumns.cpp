#include "cli/TableColumns.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numeric>

#include "cli/localeOption.h"
#include "data/columnsMeasure.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/diagnostics/engine/nearestWord.h"
#include "quorvane/driver/extendedValues.h"

namespace quorvane::cli {

namespace {

[[noreturn]] void refuse(const std::string& why) {
    raise(RtfError(static_cast<std::int32_t>(RunTimeError::InvalidProcedureCall), why));
}

std::vector<data::ColumnRequest> requestsOf(const TableOptions& options,
                                            const std::vector<std::string>& names) {
    if (options.columns) {
        return data::columnRequests(*options.columns);
    }
    std::vector<data::ColumnRequest> columns;
    for (const std::string& name : names) {
        if (name != options.groupBy) {
            columns.push_back({.name = name});
        }
    }
    return columns;
}

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

/// True if the columns ask for more than the page is wide, where long texts may break.
bool needLandscape(const std::vector<data::ColumnMeasure>& measures, double area) {
    constexpr double wideEnough = 3600;
    double needed = 0;
    for (const data::ColumnMeasure& measure : measures) {
        needed += std::min(measure.width(), wideEnough);
    }
    return needed > area;
}

}  // namespace

std::size_t fieldNamed(std::string_view name, const std::vector<std::string>& names) {
    const auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end()) {
        const std::vector<std::string_view> candidates(names.begin(), names.end());
        const std::string guess = didYouMean(name, candidates);
        refuse("The data has no field \"" + std::string(name) + "\"" +
               (guess.empty() ? "." : "; " + guess));
    }
    if (std::find(found + 1, names.end(), name) != names.end()) {
        refuse("The data has several fields \"" + std::string(name) + "\".");
    }
    return static_cast<std::size_t>(found - names.begin());
}

TableColumns::TableColumns(const TableOptions& options, const std::vector<std::string>& names)
    : columns_(requestsOf(options, names)),
      hasLocale_(options.locale.has_value()),
      locale_(localeOf(options.locale)),
      areNamed_(options.columns.has_value()),
      signs_(columns_.size()),
      filtered_(columns_.size()),
      cells_(columns_.size()) {
    for (std::size_t i = 0; i < names.size() && !areNamed_; ++i) {
        if (names[i] != options.groupBy) {
            fields_.push_back(i);
        }
    }
    for (const data::ColumnRequest& column : columns_) {
        if (areNamed_) {
            fields_.push_back(fieldNamed(column.name, names));
        }
    }
}

void TableColumns::fit(TableSetup& setup, const std::vector<TableRecord>& records,
                       bool choosesPage) {
    const std::vector<data::ColumnMeasure> measures = measured(records);
    if (choosesPage && needLandscape(measures, textAreaOf(setup))) {
        setup.page += "-landscape";
    }
    const double area = textAreaOf(setup);
    double left = area;
    std::vector<data::FlexibleColumn> flexible;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        if (columns_[i].width.empty()) {
            flexible.push_back({measures[i].width(), !measures[i].holdsNumbers()});
        } else {
            left -= takenOf(columns_[i].width, area);
        }
    }
    const std::vector<double> widths =
        withoutTooNarrow(data::fittedWidths(flexible, std::max(left, 1.0)), area / 100);
    auto width = widths.begin();
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        const data::ColumnRequest& column = columns_[i];
        const tCellAlign usual = measures[i].holdsNumbers() ? eRight : eNoDefault;
        setup.columns.push_back(
            {.heading = column.heading.value_or(column.name),
             .width = column.width.empty() ? percent(*width++ / area) : column.width,
             .align = column.align.value_or(usual)});
    }
}

std::vector<data::ColumnMeasure> TableColumns::measured(const std::vector<TableRecord>& records) {
    std::vector<data::ColumnMeasure> measures(columns_.size());
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        measures[i].addHeading(columns_[i].heading.value_or(columns_[i].name));
    }
    std::vector<std::string_view> fields;
    for (const TableRecord& record : records) {
        fields.assign(record.fields.begin(), record.fields.end());
        try {
            const std::span<const std::string_view> texts = cells(fields);
            for (std::size_t i = 0; i < texts.size(); ++i) {
                measures[i].addCell(texts[i]);
            }
        } catch (const RtfError&) {
            // It is reported where the record is written.
        }
    }
    return measures;
}

std::size_t TableColumns::columnOf(std::string_view name) const {
    return static_cast<std::size_t>(
        std::find_if(columns_.begin(), columns_.end(),
                     [&](const data::ColumnRequest& column) { return column.name == name; }) -
        columns_.begin());
}

std::span<const std::string_view> TableColumns::cells(std::span<const std::string_view> fields) {
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        // A record of JSON that was read early can lack fields that came later.
        const std::string_view value =
            fields_[i] < fields.size() ? fields[fields_[i]] : std::string_view();
        if (columns_[i].filters.empty()) {
            cells_[i] = value;
        } else {
            filtered_[i] = shown(i, plain(i, value));
            cells_[i] = filtered_[i];
        }
    }
    return cells_;
}

void TableColumns::findSigns(const std::vector<TableRecord>& records, bool areJson) {
    using enum data::DecimalSign;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        if (areJson) {
            signs_[i] = Point;
        }
        for (auto record = records.begin(); record != records.end() && !signs_[i]; ++record) {
            if (fields_[i] < record->fields.size()) {
                signs_[i] = data::shownSign(record->fields[fields_[i]]);
            }
        }
        if (!signs_[i] && hasLocale_) {
            signs_[i] = locale_.decimal == "," ? Comma : Point;
        }
        if (!signs_[i] && readsNumbers(i)) {
            signs_[i] = Point;
        }
    }
}

bool TableColumns::readsNumbers(std::size_t column) const {
    const std::vector<data::Filter>& filters = columns_[column].filters;
    const auto first = std::find_if(filters.begin(), filters.end(), [](const data::Filter& filter) {
        return filter.kind != data::FilterKind::Default;
    });
    return first != filters.end() &&
           (first->kind == data::FilterKind::Number || first->kind == data::FilterKind::Money);
}

/// The value; a number that a filter reads is written as in JSON.
std::string TableColumns::plain(std::size_t column, std::string_view value) const {
    const std::optional<data::WrittenNumber> number = data::writtenNumber(value);
    if (!readsNumbers(column) || !signs_[column] || !number || !number->before.empty() ||
        !number->after.empty()) {
        return std::string(value);
    }
    const std::optional<std::string> plain = data::plainNumber(*number, *signs_[column]);
    if (!plain && *signs_[column] == data::DecimalSign::Comma) {
        refuse("\"" + columns_[column].name + "\": \"" + std::string(value) +
               "\" is not a number with a decimal comma, as the column or the locale has it.");
    }
    return plain.value_or(std::string(value));
}

std::string TableColumns::shown(std::size_t column, std::string_view value) const {
    std::string text(value);
    for (const data::Filter& filter : columns_[column].filters) {
        if (filter.kind == data::FilterKind::Default) {
            text = text.empty() ? filter.argument : text;
        } else if (!text.empty()) {
            data::FilterResult result = filter.apply(text, locale_);
            if (!result.error.empty()) {
                refuse("\"" + columns_[column].name + "\": " + result.error + ".");
            }
            text = std::move(result.text);
        }
    }
    return text;
}

}  // namespace quorvane::cli
