#include "cli/RecordsRendering.h"

#include <algorithm>
#include <limits>
#include <utility>
#include <variant>

#include "cli/OutputGuard.h"
#include "cli/SchemaFile.h"
#include "cli/UsageError.h"
#include "cli/errorText.h"
#include "cli/fileFailure.h"
#include "cli/localeOption.h"
#include "cli/tasksInOrder.h"
#include "data/recordsFile.h"
#include "quorvane/base/platform/utf8Path.h"

namespace quorvane::cli {

namespace {

bool isDiskFull(const RtfError& error) {
    const RtfError* each = &error;
    while (each->cause && !each->is(RunTimeError::DiskFull)) {
        each = each->cause.get();
    }
    return each->is(RunTimeError::DiskFull);
}

/// Says which record the events are about.
void number(RenderEvents& events, std::size_t record) {
    for (auto& event : events) {
        if (auto* error = std::get_if<ReportedError>(&event)) {
            error->record = record;
        } else if (auto* located = std::get_if<LocatedDiagnostic>(&event)) {
            located->diagnostic.message.insert(0, recordText(record));
        }
    }
}

std::string counted(std::size_t count, const std::string& what) {
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

}  // namespace

RecordsRendering::RecordsRendering(const RenderOptions& options, const RenderMeans& means,
                                   const data::DataSchema* schema)
    : options_(options),
      means_(means),
      schema_(schema),
      locale_(localeOf(options.locale)),
      joined_(means.manner.joined),
      finding_(receiversInto(found_, static_cast<bool>(means.receivers.locate))) {
    if (!joined_) {
        names_.emplace(options);
    }
}

std::string RecordsRendering::commonFolder() const {
    if (!joined_) {
        return names_->commonFolder();
    }
    const std::string folder = utf8FromPath(pathFromUtf8(joined_->path()).parent_path());
    return folder.empty() ? "." : folder;
}

ExitStatus RecordsRendering::run(std::size_t threads) {
    if (!load() || !open()) {
        return status_;
    }
    findings_.emplace(means_.report, finding_);
    try {
        renderAll(threads);
        finishJoined();
    } catch (const data::UnreadableInput& error) {
        fail(unreadableFile(dataName(), *options_.data, error));
    } catch (const RtfError& error) {
        failReport(error);
    }
    summarize();
    closeReport();
    return status_;
}

/// Writes the document of all records, unless something stopped them.
void RecordsRendering::finishJoined() {
    if (!joined_ || written_ == 0 || isStopped_) {
        return;
    }
    try {
        joined_->finish();
        isJoinedWritten_ = true;
    } catch (const RtfError& error) {
        // No record is in a document.
        report_.reset();
        fail(fileFailure(joinedName(), error));
    }
}

void RecordsRendering::failReport(const RtfError& error) {
    report_.reset();
    fail(fileFailure(options_.report == standardStream ? "<stdout>" : *options_.report, error));
}

void RecordsRendering::closeReport() {
    try {
        if (report_) {
            report_->close();
        }
    } catch (const RtfError& error) {
        failReport(error);
    }
}

bool RecordsRendering::load() {
    const std::string& path = options_.descriptions.front();
    if (std::optional<DescriptionText> description =
            readDescription(path, options_.encoding, means_.platform, means_.report, status_)) {
        template_ = loadTemplate(path, *std::move(description), means_.platform, means_.report);
        status_ = std::max(status_, template_ ? ExitStatus::Success : ExitStatus::ContentErrors);
    }
    return template_.has_value();
}

/// Opens the data and the report.
bool RecordsRendering::open() {
    try {
        input_.emplace(*options_.data, options_.records);
        locale_.readsWritten = !input_->areJson();
        if (names_) {
            names_->setLocale(locale_);
        }
    } catch (const data::UnreadableInput& error) {
        fail(unreadableFile(dataName(), *options_.data, error));
        return false;
    } catch (const data::RecordError& error) {
        means_.report.fail({ErrorKind::Raised, dataName(), error});
        status_ = ExitStatus::ContentErrors;
        return false;
    }
    if (!options_.report) {
        return true;
    }
    try {
        requireReport();
        report_.emplace(means_.platform.createFile(*options_.report));
    } catch (const RtfError& error) {
        failReport(error);
    }
    return report_.has_value();
}

/// Throws a `UsageError` if the report would replace what is read, or a document.
void RecordsRendering::requireReport() {
    if (names_) {
        names_->exclude(*options_.report, "the report");
        return;
    }
    OutputGuard guard(options_);
    if (guard.require(*options_.report, "the report") ==
        guard.require(joined_->path(), "the document")) {
        throw UsageError("the report and the document would both be written to " +
                         *options_.report);
    }
}

void RecordsRendering::renderAll(std::size_t threads) {
    std::deque<Thread> all;
    while (all.size() < threads) {
        all.emplace_back(means_, template_->source, locale_);
    }
    tasks_.resize(tasksUnderWay(threads));
    doInOrder(
        {.count = std::numeric_limits<std::size_t>::max(),
         .threads = threads,
         .work = [&](std::size_t thread, std::size_t task) { return work(all[thread], task); },
         .deliver = [&](std::size_t task) { deliver(task); },
         .prepare = [&](std::size_t task) { return prepare(task); }});
}

/// Reads the next record and names its document; false at the end of the data.
bool RecordsRendering::prepare(std::size_t number) {
    Task& task = taskAt(number);
    if (isStopped_ || !read(task)) {
        return false;
    }
    if (found_.empty()) {
        task.result.file = joined_ ? joined_->path() : names_->nameFor(task.record, *findings_);
    }
    task.status = found_.empty() ? ExitStatus::Success : ExitStatus::ContentErrors;
    task.result.number = task.record.number;
    task.result.line = task.record.line;
    task.result.events = std::exchange(found_, {});
    return true;
}

/// Reads a record; one that is wrong is reported.
bool RecordsRendering::read(Task& task) {
    try {
        if (!input_->next(task.record)) {
            return false;
        }
        validate(task.record);
    } catch (const data::RecordError& error) {
        findings_->fail({ErrorKind::Raised, dataName(), error});
    }
    return true;
}

void RecordsRendering::validate(const NumberedRecord& record) {
    if (!schema_) {
        return;
    }
    for (const data::JsonFault& fault : schema_->faultsIn(record.value)) {
        findings_->fail({ErrorKind::Check, dataName(), schemaMismatch(fault, record.line)});
    }
}

/// Returns true if the report is long.
bool RecordsRendering::work(Thread& thread, std::size_t number) {
    Task& task = taskAt(number);
    if (task.status == ExitStatus::Success) {
        const Assignment assignment{template_->path, task.result.file};
        task.status =
            thread.rendering.worker.render(assignment, *template_, thread.filling, task.record);
        task.result.isWritten = thread.rendering.worker.hasWritten();
        task.result.events = std::exchange(thread.rendering.events, {});
    }
    return areMany(task.result.events);
}

void RecordsRendering::deliver(std::size_t number) {
    Task& task = taskAt(number);
    RecordResult result = std::exchange(task.result, {});
    status_ = std::max(status_, task.status);
    ++(result.isWritten ? written_ : failed_);
    if (report_) {
        report_->add(result);
    }
    stopAfter(result.events);
    isStopped_ = isStopped_ || (joined_ && joined_->isBroken());
    cli::number(result.events, result.number);
    report(result.events, means_.report, means_.receivers);
    if (means_.receivers.progress) {
        means_.receivers.progress(written_ + failed_, 0, result.file);
    }
}

/// A full disk and a stylesheet that cannot be used stop all documents.
void RecordsRendering::stopAfter(const RenderEvents& events) {
    for (const auto& event : events) {
        const auto* const error = std::get_if<ReportedError>(&event);
        if ((error && isDiskFull(error->error)) ||
            (std::holds_alternative<StyleSheetRefusal>(event) && !options_.keepGoing)) {
            isStopped_ = true;
        }
    }
}

/// What became of the records that did not fail.
std::string RecordsRendering::written() const {
    if (!joined_) {
        return counted(written_, "document") + (written_ == 1 ? " was" : " were") + " written";
    }
    return isJoinedWritten_ ? joinedName() + " has " + counted(written_, "record")
                            : "nothing was written";
}

/// No record is in the range that was asked for.
bool RecordsRendering::isBeyondData() const {
    const std::optional<std::size_t> count = input_->count();
    return options_.records != RecordRange() && count && *count < options_.records.first;
}

void RecordsRendering::summarize() {
    if (failed_ > 0) {
        means_.report.fail(
            refusal(dataName(), counted(failed_, "record") + " failed; " + written()));
    } else if (isBeyondData()) {
        fail(refusal(dataName(), "the data has " + counted(*input_->count(), "record") +
                                     "; --records begins with " +
                                     std::to_string(options_.records.first)));
    } else if (joined_ && written_ == 0) {
        status_ = std::max(status_, ExitStatus::ContentErrors);
        means_.report.fail(refusal(dataName(), "there are no records; nothing was written"));
    } else if (means_.receivers.note) {
        means_.receivers.note(written());
    }
}

void RecordsRendering::fail(const ReportedError& failure) {
    status_ = ExitStatus::Failure;
    means_.report.fail(failure);
}

std::string RecordsRendering::joinedName() const {
    return joined_->path() == standardStream ? "<stdout>" : joined_->path();
}

std::string RecordsRendering::dataName() const {
    return options_.data == standardStream ? "<stdin>" : *options_.data;
}

}  // namespace quorvane::cli
