#include "data/RecordsTable.h"

#include <utility>

#include "data/OptionError.h"
#include "data/fieldNamed.h"
#include "data/refuse.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/compose/TableWriter.h"

namespace quorvane::data {

RecordsTable::RecordsTable(const RecordsInput& input, const RecordsTableOptions& options,
                           Report report)
    : options_(options), report_(std::move(report)), records_(input, options, report_) {
    if (records_.names().empty()) {
        throw RecordError(0, "There is no data. A table needs a row of names or a record.", false);
    }
}

void RecordsTable::begin(TableSetup setup, bool isPageChosen, OpenTarget open) {
    open_ = std::move(open);
    asOptionError([&] {
        findFields();
        setup_ = std::move(setup);
        columns_->fit(setup_, records_.first(), !isPageChosen);
        // What is wrong with the setup shows before there is a file.
        const TableWriter trial(setup_, [](std::string_view) {});
        beginPart();
    });
}

void RecordsTable::finish() {
    addRecords();
    // A part whose only rows were left out is no document.
    if (rows_ > 0 || part_ == 1) {
        endPart();
    }
}

void RecordsTable::findFields() {
    const std::vector<std::string>& names = records_.names();
    columns_.emplace(options_, names, records_.blankFields());
    if (columns_->count() > mostTableColumns) {
        refuse("The data has " + std::to_string(columns_->count()) +
               " fields to show, and a table has at most " + std::to_string(mostTableColumns) +
               " columns. Choose some with " + options_.optionMark + "columns.");
    }
    columns_->findSigns(records_.first(), records_.areJson());
    fieldCount_ = names.size();
    blankFields_ = columns_->areNamed() ? std::vector<std::size_t>() : records_.blankFields();
    if (options_.groupBy) {
        groupField_ = fieldNamed(*options_.groupBy, names);
    }
    findTotals();
}

void RecordsTable::findTotals() {
    for (const std::string& name : options_.totals) {
        const std::size_t column = columns_->columnOf(name);
        if (column == columns_->count()) {
            throw NoColumnForTotal(name);
        }
        totals_.push_back({column, fieldNamed(name, records_.names()),
                           ColumnTotal(columns_->decimalSign(column))});
    }
}

/// Opens the document, or the next one of several.
void RecordsTable::beginPart() {
    ++part_;
    target_ = open_(setup_, part_);
    rows_ = 0;
    group_.reset();
    for (Total& total : totals_) {
        total.sum = ColumnTotal(columns_->decimalSign(total.column));
    }
}

void RecordsTable::endPart() {
    addTotals();
    target_->finish();
}

void RecordsTable::addRecords() {
    std::vector<std::string_view> fields;
    for (std::size_t count = 0; !options_.limit || count < *options_.limit; ++count) {
        if (!records_.next(fields)) {
            return;
        }
        if (rows_ == options_.split) {
            endPart();
            beginPart();
        }
        try {
            requireShown(fields);
            addRecord(fields);
        } catch (const RtfError& error) {
            if (!error.is(RunTimeError::InvalidProcedureCall)) {
                throw;
            }
            if (!options_.keepGoing) {
                throw RecordError(records_.line(), error.description, true);
            }
            report_(RecordError(records_.line(), error.description, true));
        }
    }
}

/// Values that no column shows must not be lost without notice.
void RecordsTable::requireShown(std::span<const std::string_view> fields) {
    for (const std::size_t blank : blankFields_) {
        if (blank < fields.size() && !fields[blank].empty()) {
            refuse("Field " + std::to_string(blank + 1) +
                   " has neither a heading nor a value in the first rows, so that the table has no "
                   "column for it. Give it a heading.");
        }
    }
    const std::vector<std::string>& names = records_.names();
    if (names.size() > fieldCount_ && !columns_->areNamed()) {
        const std::string& name = names[fieldCount_];
        fieldCount_ = names.size();
        refuse("The first records do not have the field \"" + name +
               "\", so that the table has no column for it. Name the columns with " +
               options_.optionMark + "columns.");
    }
}

void RecordsTable::addRecord(std::span<const std::string_view> fields) {
    const auto field = [&](std::size_t position) {
        return position < fields.size() ? fields[position] : std::string_view();
    };
    for (const Total& total : totals_) {
        total.sum.require(field(total.field));
    }
    const std::span<const std::string_view> cells = columns_->cells(fields);
    if (groupField_ && group_ != field(*groupField_)) {
        groups_.begin(field(*groupField_));
        target_->addGroup(field(*groupField_), cells);
        group_ = field(*groupField_);
    } else {
        target_->addRow(cells);
    }
    ++rows_;
    for (Total& total : totals_) {
        total.sum.add(field(total.field));
    }
}

void RecordsTable::addTotals() {
    if (totals_.empty()) {
        return;
    }
    std::vector<std::string> texts(columns_->count());
    texts.front() = options_.totalLabel;
    for (const Total& total : totals_) {
        try {
            texts[total.column] = columns_->hasFilters(total.column)
                                      ? columns_->shown(total.column, total.sum.plainText())
                                      : total.sum.text();
        } catch (const RtfError& error) {
            throw RecordError(0, error.description, false);
        }
    }
    target_->addTotal(std::vector<std::string_view>(texts.begin(), texts.end()));
}

}  // namespace quorvane::data
