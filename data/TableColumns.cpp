#include "data/TableColumns.h"

#include <algorithm>
#include <iterator>

#include "data/columnsFit.h"
#include "data/columnsMeasure.h"
#include "data/fieldNamed.h"
#include "data/optionLocale.h"
#include "data/refuse.h"
#include "quorvane/base/values/RtfError.h"

namespace quorvane::data {

namespace {

/// The columns of all these fields.
std::vector<ColumnRequest> requestsOf(const std::vector<std::size_t>& fields,
                                      const std::vector<std::string>& names) {
    std::vector<ColumnRequest> columns;
    std::transform(fields.begin(), fields.end(), std::back_inserter(columns),
                   [&](std::size_t field) { return ColumnRequest{.name = names[field]}; });
    return columns;
}

std::vector<std::size_t> shownFields(const RecordsTableOptions& options,
                                     const std::vector<std::string>& names,
                                     const std::vector<std::size_t>& blankFields) {
    std::vector<std::size_t> fields;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (names[i] != options.groupBy &&
            !std::binary_search(blankFields.begin(), blankFields.end(), i)) {
            fields.push_back(i);
        }
    }
    return fields;
}

/// The kind of the filter that values come to first; `default` lets them pass.
std::optional<FilterKind> firstFilter(const ColumnRequest& column) {
    const auto first =
        std::find_if(column.filters.begin(), column.filters.end(),
                     [](const Filter& filter) { return filter.kind != FilterKind::Default; });
    return first == column.filters.end() ? std::nullopt : std::optional(first->kind);
}

}  // namespace

TableColumns::TableColumns(const RecordsTableOptions& options,
                           const std::vector<std::string>& names,
                           const std::vector<std::size_t>& blankFields)
    : hasLocale_(options.locale.has_value()),
      locale_(optionLocale(options.locale)),
      areNamed_(options.columns.has_value()),
      totals_(options.totals),
      optionMark_(options.optionMark) {
    if (areNamed_) {
        columns_ = columnRequests(*options.columns);
        for (const ColumnRequest& column : columns_) {
            fields_.push_back(fieldNamed(column.name, names));
        }
    } else {
        fields_ = shownFields(options, names, blankFields);
        columns_ = requestsOf(fields_, names);
    }
    signs_.resize(columns_.size());
    areGuessed_.resize(columns_.size());
    dateOrders_.resize(columns_.size());
    filtered_.resize(columns_.size());
    cells_.resize(columns_.size());
}

void TableColumns::fit(TableSetup& setup, const std::vector<TableRecord>& records,
                       bool choosesPage) {
    fitColumns(setup, columns_, measured(records, setup.hasHeading), choosesPage);
}

std::vector<ColumnMeasure> TableColumns::measured(const std::vector<TableRecord>& records,
                                                  bool hasHeading) {
    std::vector<ColumnMeasure> measures(columns_.size());
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        if (hasHeading) {
            measures[i].addHeading(columns_[i].heading.value_or(columns_[i].name));
        }
        if (std::count(totals_.begin(), totals_.end(), columns_[i].name) > 0) {
            measures[i].addTotal();
        }
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
                     [&](const ColumnRequest& column) { return column.name == name; }) -
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
    using enum DecimalSign;
    findDateOrders(records);
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        if (areJson) {
            signs_[i] = Point;
        }
        for (auto record = records.begin(); record != records.end() && !signs_[i]; ++record) {
            if (fields_[i] < record->fields.size()) {
                signs_[i] = shownSign(record->fields[fields_[i]]);
            }
        }
        if (!signs_[i] && hasLocale_) {
            signs_[i] = locale_.decimalSign();
        }
        if (!signs_[i] && readsNumbers(i)) {
            signs_[i] = Point;
            areGuessed_[i] = true;
        }
    }
}

void TableColumns::findDateOrders(const std::vector<TableRecord>& records) {
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        std::optional<DateOrder>& order = dateOrders_[i];
        for (auto record = records.begin(); record != records.end() && !order; ++record) {
            if (readsDates(i) && fields_[i] < record->fields.size()) {
                order = shownDateOrder(record->fields[fields_[i]]);
            }
        }
        if (!order && hasLocale_) {
            order = locale_.dateOrder;
        }
    }
}

bool TableColumns::readsNumbers(std::size_t column) const {
    const std::optional<FilterKind> first = firstFilter(columns_[column]);
    return first == FilterKind::Number || first == FilterKind::Money;
}

bool TableColumns::readsDates(std::size_t column) const {
    return firstFilter(columns_[column]) == FilterKind::Date;
}

/// The date as a filter reads it.
std::string TableColumns::plainDate(std::size_t column, std::string_view value) const {
    const std::optional<DateOrder> order = dateOrders_[column];
    if (!order && isAmbiguousDate(value)) {
        refuse("\"" + columns_[column].name + "\": \"" + std::string(value) +
               "\" can begin with the day or the month. Choose one with " + optionMark_ +
               "locale, such as en-GB or en-US.");
    }
    const std::optional<std::string> iso = isoDate(value, order.value_or(DateOrder::DayMonthYear));
    if (!iso && order) {
        refuse("\"" + columns_[column].name + "\": \"" + std::string(value) +
               "\" is not an existing date of the form 2026-11-22 or " +
               std::string(dateExample(*order)) + ".");
    }
    return iso.value_or(std::string(value));
}

/// The value; a number or a date that a filter reads is written as in JSON.
std::string TableColumns::plain(std::size_t column, std::string_view value) const {
    if (readsDates(column) && !value.empty()) {
        return plainDate(column, value);
    }
    const std::optional<WrittenNumber> number = writtenNumber(value);
    if (!readsNumbers(column) || !signs_[column] || !number || !number->before.empty() ||
        !number->after.empty()) {
        return std::string(value);
    }
    if (areGuessed_[column] && isAmbiguousNumber(value)) {
        refuse("\"" + columns_[column].name + "\": \"" + std::string(value) +
               "\" can be read in two ways. Choose one with " + optionMark_ +
               "locale, such as en-US or de-DE.");
    }
    const std::optional<std::string> plain = plainNumber(*number, *signs_[column]);
    if (!plain && *signs_[column] == DecimalSign::Comma) {
        refuse("\"" + columns_[column].name + "\": \"" + std::string(value) +
               "\" is not a number with a decimal comma, as the column or the locale has it.");
    }
    return plain.value_or(std::string(value));
}

std::string TableColumns::shown(std::size_t column, std::string_view value) const {
    std::string text(value);
    for (const Filter& filter : columns_[column].filters) {
        if (filter.kind == FilterKind::Default) {
            text = text.empty() ? filter.argument : text;
        } else if (!text.empty()) {
            FilterResult result = filter.apply(text, locale_);
            if (!result.error.empty()) {
                refuse("\"" + columns_[column].name + "\": " + result.error + ".");
            }
            text = std::move(result.text);
        }
    }
    return text;
}

}  // namespace quorvane::data
