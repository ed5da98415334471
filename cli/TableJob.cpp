#include "cli/TableJob.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "cli/RenderOptions.h"
#include "cli/UsageError.h"
#include "cli/asUsage.h"
#include "cli/fileFailure.h"
#include "cli/filesBelow.h"
#include "cli/outputPaths.h"
#include "cli/styleSheetName.h"
#include "data/refuse.h"
#include "quorvane/base/platform/utf8Path.h"
#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/docmodel/CRtfDoc.h"

namespace quorvane::cli {

namespace {

/// Where the output goes. No input takes its name.
Assignment assignmentOf(const TableOptions& options) {
    const bool isDocument = options.form == TableForm::Document;
    RenderOptions render;
    render.descriptions = {options.input.empty() ? standardStream : options.input};
    render.styleSheet = options.styleSheet;
    render.output = options.output;
    render.replacesSources = !isDocument;
    if (!render.output && !isDocument) {
        render.output = standardStream;
    }
    return assignOutputs(render).front();
}

/// "prices-002.rtf" for the second part of "prices.rtf".
std::string partPath(const std::string& path, std::size_t part) {
    constexpr std::size_t digits = 3;
    const std::string number = std::to_string(part);
    const std::string padded = std::string(digits - std::min(digits, number.size()), '0') + number;
    const std::filesystem::path whole = pathFromUtf8(path);
    std::filesystem::path name = whole.stem();
    name += "-" + padded;
    name += whole.extension();
    return utf8FromPath(whole.parent_path() / name);
}

/// Raises what is wrong with a stylesheet.
void requireStyleSheet(const std::string& text) {
    const Ref<CRtfDoc> document = CRtfDoc::create();
    document->setExtendedStyleSheets(true);
    document->LoadStyleSheetFromMemmory(text);
}

}  // namespace

TableJob::TableJob(const TableOptions& options, ErrorSink report)
    : options_(options), report_(std::move(report)), platform_(systemPlatform()) {}

ExitStatus TableJob::run() {
    if (options_.styleSheet) {
        requireStyleSheetExtension(*options_.styleSheet, {options_.input});
    }
    try {
        output_ = assignmentOf(options_).output;
    } catch (const RtfError& error) {
        return fail(fileFailure(inputName(), error));
    }
    try {
        return write();
    } catch (const UnreadableInput& error) {
        return fail(unreadableFile(inputName(), options_.input, error));
    } catch (const data::RecordError& error) {
        report_({ErrorKind::Raised, inputName(), error});
        return ExitStatus::ContentErrors;
    } catch (const RtfError& error) {
        return fail(fileFailure(outputName(), error));
    }
}

ExitStatus TableJob::write() {
    if (options_.form == TableForm::StyleSheet) {
        writeStyleSheet();
        return ExitStatus::Success;
    }
    if (options_.styleSheet) {
        try {
            const std::string bytes = systemPlatform().readFile(*options_.styleSheet);
            styleSheet_ = decodedText(bytes, encodingOf(bytes, options_.encoding));
        } catch (const RtfError& error) {
            return fail(unreadableFile(*options_.styleSheet, *options_.styleSheet, error));
        }
        try {
            requireStyleSheet(styleSheet_);
        } catch (const RtfError& error) {
            report_({ErrorKind::Raised, *options_.styleSheet, error});
            return ExitStatus::ContentErrors;
        }
    }
    writeTable();
    return leftOut_ == 0 ? ExitStatus::Success : ExitStatus::ContentErrors;
}

void TableJob::writeStyleSheet() {
    const std::unique_ptr<OutputFile> file = platform_.createFile(output_);
    file->write(standardTableStyles());
    file->close();
}

void TableJob::writeTable() {
    TableRecords records(options_, [this](const RtfError& error) { leaveOut(error); });
    if (records.names().empty()) {
        throw data::RecordError(0, "There is no data. A table needs a row of names or a record.",
                                false);
    }
    asUsage([&] {
        findFields(records);
        setup_ = setupOf(records);
        beginPart();
    });
    addRecords(records);
    // A part whose only rows were left out is no document.
    if (rows_ > 0 || part_ == 1) {
        endPart();
    }
    if (groups_.areScattered()) {
        report_(refusal(inputName(),
                        "Some groups begin several times, since their rows do not "
                        "follow each other. Sort the rows: --sort \"" +
                            *options_.groupBy + "\""));
    }
    if (leftOut_ > 0) {
        report_(refusal(
            inputName(),
            std::to_string(leftOut_) + (leftOut_ == 1 ? " row was" : " rows were") + " left out"));
    }
}

void TableJob::findFields(const TableRecords& records) {
    const std::vector<std::string>& names = records.names();
    columns_.emplace(options_, names, records.blankFields());
    if (columns_->count() > mostTableColumns) {
        data::refuse("The data has " + std::to_string(columns_->count()) +
                     " fields to show, and a table has at most " +
                     std::to_string(mostTableColumns) + " columns. Choose some with --columns.");
    }
    columns_->findSigns(records.first(), records.areJson());
    fieldCount_ = names.size();
    blankFields_ = columns_->areNamed() ? std::vector<std::size_t>() : records.blankFields();
    if (options_.groupBy) {
        groupField_ = fieldNamed(*options_.groupBy, names);
    }
    for (const std::string& name : options_.totals) {
        const std::size_t column = columns_->columnOf(name);
        if (column == columns_->count()) {
            throw UsageError("the table has no column \"" + name + "\" for a total");
        }
        totals_.push_back(
            {column, fieldNamed(name, names), data::ColumnTotal(columns_->decimalSign(column))});
    }
}

TableSetup TableJob::setupOf(const TableRecords& records) {
    TableSetup setup;
    const auto take = [](std::string& setting, const std::optional<std::string>& option) {
        setting = option.value_or(setting);
    };
    take(setup.title, options_.title);
    take(setup.page, options_.page);
    take(setup.stripe, options_.stripe);
    take(setup.border, options_.border);
    setup.styleSheet = styleSheet_;
    setup.groupsStartPages = options_.groupPages;
    columns_->fit(setup, records.first(), !options_.page);
    return setup;
}

/// Opens the document, or the next one of several.
void TableJob::beginPart() {
    if (part_ == 0) {
        // What is wrong with the setup shows before there is a file.
        const TableWriter trial(setup_, [](std::string_view) {});
    }
    ++part_;
    std::unique_ptr<OutputFile> file = platform_.createFile(partOutput());
    if (options_.form == TableForm::Description) {
        target_ = std::make_unique<TableDescriptionTarget>(setup_, std::move(file));
    } else {
        target_ = std::make_unique<TableDocumentTarget>(setup_, std::move(file));
    }
    rows_ = 0;
    group_.reset();
    for (Total& total : totals_) {
        total.sum = data::ColumnTotal(columns_->decimalSign(total.column));
    }
}

std::string TableJob::partOutput() const {
    if (!options_.split) {
        return output_;
    }
    if (output_ == standardStream) {
        throw UsageError("--split writes several files; name them with --output");
    }
    if (output_.ends_with('/') || isFolder(output_)) {
        throw UsageError(
            "--output names a folder; write the name that the files of --split begin "
            "with after it, such as " +
            output_ + (output_.ends_with('/') ? "" : "/") + "list.rtf");
    }
    TableOptions part = options_;
    part.output = partPath(output_, part_);
    return assignmentOf(part).output;
}

void TableJob::endPart() {
    addTotals();
    target_->finish();
}

void TableJob::addRecords(TableRecords& records) {
    std::vector<std::string_view> fields;
    for (std::size_t count = 0; !options_.limit || count < *options_.limit; ++count) {
        if (!records.next(fields)) {
            return;
        }
        if (rows_ == options_.split) {
            endPart();
            beginPart();
        }
        try {
            requireShown(records.names(), fields);
            addRecord(fields);
        } catch (const RtfError& error) {
            if (!error.is(RunTimeError::InvalidProcedureCall)) {
                throw;
            }
            if (!options_.keepGoing) {
                throw data::RecordError(records.line(), error.description, true);
            }
            leaveOut(data::RecordError(records.line(), error.description, true));
        }
    }
}

/// Values that no column shows must not be lost without notice.
void TableJob::requireShown(const std::vector<std::string>& names,
                            std::span<const std::string_view> fields) {
    for (const std::size_t blank : blankFields_) {
        if (blank < fields.size() && !fields[blank].empty()) {
            data::refuse(
                "Field " + std::to_string(blank + 1) +
                " has neither a heading nor a value in the first rows, so that the table has no "
                "column for it. Give it a heading.");
        }
    }
    if (names.size() > fieldCount_ && !columns_->areNamed()) {
        const std::string& name = names[fieldCount_];
        fieldCount_ = names.size();
        data::refuse(
            "The first records do not have the field \"" + name +
            "\", so that the table has no column for it. Name the columns with --columns.");
    }
}

void TableJob::addRecord(std::span<const std::string_view> fields) {
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

void TableJob::addTotals() {
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
            throw data::RecordError(0, error.description, false);
        }
    }
    target_->addTotal(std::vector<std::string_view>(texts.begin(), texts.end()));
}

void TableJob::leaveOut(const RtfError& error) {
    ++leftOut_;
    report_({ErrorKind::Raised, inputName(), error});
}

ExitStatus TableJob::fail(const ReportedError& failure) {
    report_(failure);
    return ExitStatus::Failure;
}

std::string TableJob::inputName() const {
    return options_.input == standardStream ? "<stdin>" : options_.input;
}

std::string TableJob::outputName() const {
    return output_ == standardStream ? "<stdout>" : output_;
}

}  // namespace quorvane::cli
