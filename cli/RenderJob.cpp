#include "cli/RenderJob.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <new>
#include <system_error>
#include <utility>
#include <vector>

#include "cli/fileFailure.h"
#include "cli/styleSheetName.h"
#include "cli/utf8Path.h"
#include "quorvane/docmodel/InnerDocument.h"

namespace quorvane::cli {

namespace {

constexpr std::int32_t outOfMemory = 7;

}  // namespace

RenderJob::RenderJob(RenderOptions options, RenderReceivers receivers, Platform& platform)
    : options_(std::move(options)),
      manner_{{}, false, options_.check, options_.keepGoing},
      receivers_(std::move(receivers)),
      report_(options_, receivers_),
      platform_(platform) {}

ExitStatus RenderJob::run() {
    if (options_.styleSheet) {
        requireStyleSheetExtension(*options_.styleSheet, options_.descriptions);
    }
    std::vector<Assignment> assignments;
    try {
        assignments = assignOutputs(options_);
    } catch (const RtfError& error) {
        report_.fail(fileFailure(options_.descriptions.front(), error));
        return ExitStatus::Failure;
    }
    if (!prepareOutputFolder()) {
        return ExitStatus::Failure;
    }
    ExitStatus status = readStyleSheet();
    if (status != ExitStatus::Success && !options_.keepGoing) {
        return status;
    }
    for (std::size_t i = 0; i < assignments.size(); ++i) {
        if (receivers_.progress) {
            receivers_.progress(i + 1, assignments.size(), assignments[i].description);
        }
        status = std::max(status, render(assignments[i]));
    }
    return status;
}

/// True if the folder of the documents exists or can be created with the first one; otherwise
/// reports that it does not.
bool RenderJob::prepareOutputFolder() {
    if (!options_.outputFolder) {
        return true;
    }
    const std::filesystem::path folder = pathFromUtf8(*options_.outputFolder);
    std::error_code failure;
    const std::filesystem::file_status status = std::filesystem::status(folder, failure);
    if (std::filesystem::is_directory(status)) {
        return true;
    }
    const bool isMissing = failure == std::errc::no_such_file_or_directory;
    if (options_.makesOutputFolder && isMissing) {
        platform_.createFolderWithFirstFile(*options_.outputFolder);
        return true;
    }
    RtfError error(RunTimeError::PathNotFound);
    error.cause = std::make_shared<RtfError>(error.number, "the folder of --output-dir must exist");
    std::string reason = std::make_error_code(std::errc::not_a_directory).message();
    if (!std::filesystem::exists(status)) {
        reason = failure.message() + (isMissing ? "; --mkdir creates it" : "");
    }
    report_.fail({ErrorKind::Raised, *options_.outputFolder, std::move(error), reason});
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
    return ExitStatus::Success;
}

ExitStatus RenderJob::render(const Assignment& assignment) {
    try {
        const ExitStatus status =
            DescriptionRendering(assignment, manner_, platform_, driver_, report_).run();
        // The next document uses the memory of a short one again. The text of a long one was not
        // kept and would have to be rendered once more. After an error the next description gets a
        // new driver.
        if (status != ExitStatus::Success || !inner(*driver_->RtfObject()).holdsShortText()) {
            driver_ = nullptr;
        }
        return status;
    } catch (const std::bad_alloc&) {
        driver_ = nullptr;
        report_.fail(
            {ErrorKind::Raised, assignment.description, RtfError(outOfMemory, "Out of memory")});
        return ExitStatus::Failure;
    }
}

}  // namespace quorvane::cli
