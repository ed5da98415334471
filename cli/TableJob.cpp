#include "cli/TableJob.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "cli/RenderOptions.h"
#include "cli/TableDescriptionTarget.h"
#include "cli/UsageError.h"
#include "cli/fileFailure.h"
#include "cli/filesBelow.h"
#include "cli/outputPaths.h"
#include "cli/recordsFile.h"
#include "cli/styleSheetName.h"
#include "data/OptionError.h"
#include "data/RecordsTable.h"
#include "data/recordsFile.h"
#include "quorvane/base/platform/utf8Path.h"
#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/compose/TableWriter.h"
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
    } catch (const data::UnreadableInput& error) {
        return fail(unreadableFile(inputName(), options_.input, error));
    } catch (const data::OptionError& error) {
        throw UsageError((error.option.empty() ? "" : "--" + error.option + ": ") +
                         error.description);
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
    data::RecordsTable table({openRecords(options_.input), options_.input}, options_,
                             [this](const RtfError& error) { leaveOut(error); });
    table.begin(setup(), options_.page.has_value(),
                [this](const TableSetup& setup, std::size_t part) { return target(setup, part); });
    table.finish();
    if (table.areGroupsScattered()) {
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

TableSetup TableJob::setup() const {
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
    return setup;
}

/// Opens a document, the only one or one of several.
std::unique_ptr<data::TableTarget> TableJob::target(const TableSetup& setup, std::size_t part) {
    std::unique_ptr<OutputFile> file = platform_.createFile(partOutput(part));
    if (options_.form == TableForm::Description) {
        return std::make_unique<TableDescriptionTarget>(setup, std::move(file));
    }
    return std::make_unique<data::TableDocumentTarget>(
        std::make_unique<TableWriter>(setup, std::move(file)));
}

std::string TableJob::partOutput(std::size_t number) const {
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
    part.output = partPath(output_, number);
    return assignmentOf(part).output;
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
