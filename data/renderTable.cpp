#include "data/renderTable.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>
#include <utility>

#include "data/columnsFit.h"
#include "data/columnsMeasure.h"
#include "data/columnsRequest.h"
#include "data/fieldNamed.h"
#include "data/refuse.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/compose/TableDescription.h"
#include "quorvane/compose/TableWriter.h"
#include "quorvane/compose/composing.h"

namespace quorvane::data {

namespace {

using Rows = std::vector<std::vector<std::string>>;

/// The columns that a table shows, and the positions of their fields.
struct ShownColumns {
    std::vector<ColumnRequest> requests;
    std::vector<std::size_t> fields;
};

bool isEmpty(const std::vector<std::string>& row) {
    return std::all_of(row.begin(), row.end(),
                       [](const std::string& text) { return text.empty(); });
}

/// The names of the fields. One without a name has its position, if there is a value in it, and
/// otherwise none.
std::vector<std::string> namesOf(const Rows& rows) {
    std::vector<std::string> names = rows.empty() ? std::vector<std::string>() : rows.front();
    for (std::size_t i = 0; i < names.size(); ++i) {
        const bool hasValue = std::any_of(rows.begin(), rows.end(), [i](const auto& row) {
            return i < row.size() && !row[i].empty();
        });
        if (names[i].empty() && hasValue) {
            names[i] = "Column " + std::to_string(i + 1);
        }
    }
    return names;
}

ShownColumns allColumns(const std::vector<std::string>& names) {
    ShownColumns columns;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (!names[i].empty()) {
            columns.requests.push_back({.name = names[i]});
            columns.fields.push_back(i);
        }
    }
    return columns;
}

ShownColumns namedColumns(const std::string& text, const std::vector<std::string>& names) {
    ShownColumns columns{.requests = columnRequests(text), .fields = {}};
    for (const ColumnRequest& column : columns.requests) {
        if (!column.filters.empty()) {
            refuse("The column \"" + column.name +
                   "\" has a filter, and the table shows texts as they are. Leave the filter out, "
                   "and give the texts in the form to show.");
        }
        columns.fields.push_back(fieldNamed(column.name, names));
    }
    return columns;
}

/// The texts that the columns show of a row.
std::vector<std::string_view> cellsOf(const std::vector<std::string>& row,
                                      const std::vector<std::size_t>& fields) {
    std::vector<std::string_view> cells;
    std::transform(
        fields.begin(), fields.end(), std::back_inserter(cells), [&row](std::size_t field) {
            return field < row.size() ? std::string_view(row[field]) : std::string_view();
        });
    return cells;
}

std::vector<ColumnMeasure> measured(const ShownColumns& columns, const Rows& rows) {
    std::vector<ColumnMeasure> measures(columns.fields.size());
    for (std::size_t i = 0; i < measures.size(); ++i) {
        measures[i].addHeading(columns.requests[i].heading.value_or(columns.requests[i].name));
    }
    for (std::size_t row = 1; row < rows.size(); ++row) {
        const std::vector<std::string_view> cells = cellsOf(rows[row], columns.fields);
        for (std::size_t i = 0; i < cells.size(); ++i) {
            measures[i].addCell(cells[i]);
        }
    }
    return measures;
}

TableSetup setupOf(const ShownColumns& columns, const Rows& rows, const TableChoices& choices) {
    TableSetup setup;
    setup.title = choices.title;
    setup.styleSheet =
        choices.styleSheet.empty() ? std::string(standardTableStyles()) : choices.styleSheet;
    fitColumns(setup, columns.requests, measured(columns, rows), true);
    return setup;
}

void requireFields(const Rows& rows, std::size_t index) {
    if (rows[index].size() > rows.front().size()) {
        refuse("The row has " + std::to_string(rows[index].size()) +
               " fields, and the row of names has " + std::to_string(rows.front().size()) + ".");
    }
}

std::string rowOf(const TableDescription& table, TableRowKind kind, const Rows& rows,
                  std::size_t index, const ShownColumns& columns) {
    try {
        requireFields(rows, index);
        return table.row(kind, cellsOf(rows[index], columns.fields));
    } catch (const RtfError& error) {
        refuse("Row " + std::to_string(index) + ": " + error.description);
    }
}

std::string descriptionOf(const TableSetup& setup, const Rows& rows, const ShownColumns& columns) {
    const TableDescription table(setup);
    TableStripes stripes;
    std::string text = table.beginning();
    for (std::size_t i = 1; i < rows.size(); ++i) {
        if (!isEmpty(rows[i])) {
            text += rowOf(table, stripes.next(), rows, i, columns);
        }
    }
    return text.append(TableDescription::end());
}

/// What is wrong with a setup shows in its own terms before there is a description.
void requireSetup(const TableSetup& setup) {
    const TableWriter trial(setup, [](std::string_view) {});
}

}  // namespace

Rendering renderTable(const Rows& rows, const TableChoices& choices, Platform& platform) {
    return composing([&] {
        const std::vector<std::string> names = namesOf(rows);
        if (isEmpty(names)) {
            refuse("There is no data. A table needs a row of names.");
        }
        const ShownColumns columns =
            choices.columns.empty() ? allColumns(names) : namedColumns(choices.columns, names);
        const TableSetup setup = setupOf(columns, rows, choices);
        requireSetup(setup);
        return render(descriptionOf(setup, rows, columns), {.styleSheet = setup.styleSheet},
                      platform);
    });
}

}  // namespace quorvane::data
