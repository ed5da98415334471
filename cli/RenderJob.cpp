#include "cli/RenderJob.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <system_error>
#include <thread>
#include <utility>

#include "cli/RecordsRendering.h"
#include "cli/RenderWorker.h"
#include "cli/SideBySideRendering.h"
#include "cli/UsageError.h"
#include "cli/fileFailure.h"
#include "cli/styleSheetName.h"
#include "quorvane/base/platform/utf8Path.h"

namespace quorvane::cli {

namespace {

std::size_t threadCount(std::size_t jobs) {
    return jobs == 0 ? std::max<std::size_t>(std::thread::hardware_concurrency(), 1) : jobs;
}

}  // namespace

RenderJob::RenderJob(RenderOptions options, RenderReceivers receivers, Platform& platform)
    : options_(std::move(options)),
      manner_{.check = options_.check,
              .keepGoing = options_.keepGoing,
              .encoding = options_.encoding,
              .pictureFolders = options_.pictureFolders},
      receivers_(std::move(receivers)),
      report_(options_, receivers_),
      platform_(platform) {}

ExitStatus RenderJob::run() {
    if (options_.styleSheet) {
        requireStyleSheetExtension(*options_.styleSheet, options_.descriptions);
    }
    if (options_.dataUse != DataUse::Whole) {
        return renderRecords();
    }
    if (options_.data && options_.output && options_.output->find("{{") != std::string::npos) {
        throw UsageError("--output has a tag, which is filled only with --each: " +
                         *options_.output);
    }
    std::vector<Assignment> assignments;
    try {
        assignments = assignOutputs(options_);
    } catch (const RtfError& error) {
        report_.fail(fileFailure(options_.descriptions.front(), error));
        return ExitStatus::Failure;
    }
    if (options_.outputFolder && !prepareFolder(*options_.outputFolder)) {
        return ExitStatus::Failure;
    }
    if (const ExitStatus dataStatus = readData(); dataStatus != ExitStatus::Success) {
        return dataStatus;
    }
    const ExitStatus status = readStyleSheet();
    if (status != ExitStatus::Success && !options_.keepGoing) {
        return status;
    }
    const std::size_t threads = std::min(threadCount(options_.jobs), assignments.size());
    return std::max(
        status, threads > 1 ? renderSideBySide(assignments, threads) : renderInTurn(assignments));
}

ExitStatus RenderJob::renderRecords() {
    if (const ExitStatus status = readSchemaFile(); status != ExitStatus::Success) {
        return status;
    }
    if (options_.dataUse == DataUse::Join && !openJoined()) {
        return ExitStatus::Failure;
    }
    RecordsRendering rendering(options_, {manner_, platform_, report_, receivers_},
                               schema_ ? &*schema_->schema : nullptr);
    if (!prepareFolder(rendering.commonFolder())) {
        return ExitStatus::Failure;
    }
    const ExitStatus status = readStyleSheet();
    if (status != ExitStatus::Success && !options_.keepGoing) {
        return status;
    }
    return std::max(status, rendering.run(threadCount(options_.jobs)));
}

/// Prepares the document of all records.
bool RenderJob::openJoined() {
    std::string name = shownDescription(options_.descriptions.front());
    try {
        const std::string path = assignOutputs(options_).front().output;
        name = path;
        joined_.emplace(path, platform_);
        manner_.joined = &*joined_;
        return true;
    } catch (const RtfError& error) {
        report_.fail(fileFailure(name, error));
        return false;
    }
}

/// True if a folder for documents exists or can be created with the first one; otherwise reports
/// that it does not.
bool RenderJob::prepareFolder(const std::string& name) {
    if (options_.makesOutputFolder) {
        platform_.createFoldersOfFiles();
    }
    const std::filesystem::path folder = pathFromUtf8(name);
    std::error_code failure;
    const std::filesystem::file_status status = std::filesystem::status(folder, failure);
    const bool isMissing = failure == std::errc::no_such_file_or_directory;
    if (std::filesystem::is_directory(status) || (options_.makesOutputFolder && isMissing)) {
        return true;
    }
    RtfError error(RunTimeError::PathNotFound);
    const std::string option = options_.outputFolder ? "--output-dir" : "--output";
    error.cause =
        std::make_shared<RtfError>(error.number, "the folder of " + option + " must exist");
    std::string reason = std::make_error_code(std::errc::not_a_directory).message();
    if (!std::filesystem::exists(status)) {
        reason = failure.message() + (isMissing ? "; --mkdir creates it" : "");
    }
    report_.fail({ErrorKind::Raised, name, std::move(error), reason});
    return false;
}

ExitStatus RenderJob::readStyleSheet() {
    if (!options_.styleSheet) {
        return ExitStatus::Success;
    }
    try {
        platform_.readStyleSheet(*options_.styleSheet);
    } catch (const RtfError& error) {
        report_.fail(unreadableFile(*options_.styleSheet, *options_.styleSheet, error));
        return ExitStatus::Failure;
    }
    manner_.styleSheet = options_.styleSheet;
    manner_.isStyleSheetRefused =
        !report_.passStyleSheet(*options_.styleSheet, platform_.styleSheetBytes());
    platform_.recodeStyleSheet(encodingOf(platform_.styleSheetBytes(), options_.encoding));
    return ExitStatus::Success;
}

ExitStatus RenderJob::readData() {
    if (!options_.data) {
        return ExitStatus::Success;
    }
    if (const ExitStatus status = readSchemaFile(); status != ExitStatus::Success) {
        return status;
    }
    const std::string& path = *options_.data;
    try {
        data_ = readTemplateData(path, options_.locale, platform_);
    } catch (const RtfError& error) {
        report_.fail(unreadableFile(path == standardStream ? "<stdin>" : path, path, error));
        return ExitStatus::Failure;
    }
    if (data_->data && schema_) {
        validate(*data_, *schema_->schema);
    }
    if (!data_->data) {
        report_.refuse(data_->shownName, windowOf(data_->bytes, TextEncoding::Utf8),
                       data_->diagnostics);
        return ExitStatus::ContentErrors;
    }
    manner_.data = &*data_->data;
    return ExitStatus::Success;
}

ExitStatus RenderJob::readSchemaFile() {
    if (!options_.schema) {
        return ExitStatus::Success;
    }
    try {
        schema_ = readSchema(*options_.schema, platform_);
    } catch (const RtfError& error) {
        report_.fail(unreadableFile(*options_.schema, *options_.schema, error));
        return ExitStatus::Failure;
    }
    if (!schema_->schema) {
        report_.refuse(schema_->shownName, windowOf(schema_->bytes, TextEncoding::Utf8),
                       schema_->diagnostics);
        return ExitStatus::ContentErrors;
    }
    return ExitStatus::Success;
}

ExitStatus RenderJob::renderInTurn(const std::vector<Assignment>& assignments) {
    ExitStatus status = ExitStatus::Success;
    RenderWorker worker(manner_, platform_, report_);
    for (std::size_t i = 0; i < assignments.size(); ++i) {
        if (receivers_.progress) {
            receivers_.progress(i + 1, assignments.size(), assignments[i].description);
        }
        status = std::max(status, worker.render(assignments[i]));
    }
    return status;
}

ExitStatus RenderJob::renderSideBySide(const std::vector<Assignment>& assignments,
                                       std::size_t threads) {
    return SideBySideRendering(assignments, {manner_, platform_, report_, receivers_}).run(threads);
}

}  // namespace quorvane::cli
