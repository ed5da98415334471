#include "cli/RenderJob.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <new>
#include <system_error>
#include <utility>
#include <vector>

#include "cli/styleSheetName.h"
#include "cli/utf8Path.h"

namespace quorvane::cli {

namespace {

constexpr std::int32_t outOfMemory = 7;
constexpr std::size_t largestKeptDocument = std::size_t{1024} * 1024;

bool isFolder(const std::string& name) {
    std::error_code failure;
    return std::filesystem::is_directory(pathFromUtf8(name), failure);
}

}  // namespace

RenderJob::RenderJob(RenderOptions options, DiagnosticSink tell, ProgressSink progress,
                     Platform& platform)
    : options_(std::move(options)),
      manner_{{}, options_.check, options_.keepGoing},
      tell_(std::move(tell)),
      progress_(std::move(progress)),
      platform_(platform) {}

ExitStatus RenderJob::run() {
    if (options_.styleSheet) {
        requireStyleSheetExtension(*options_.styleSheet, options_.descriptions);
    }
    std::vector<Assignment> assignments;
    try {
        assignments = assignOutputs(options_);
    } catch (const RtfError& error) {
        return fail(options_.descriptions.front(), error);
    }
    if (options_.outputFolder && !isFolder(*options_.outputFolder)) {
        RtfError error(RunTimeError::PathNotFound);
        error.cause =
            std::make_shared<RtfError>(error.number, "the folder of --output-dir must exist");
        return fail(*options_.outputFolder, error);
    }
    ExitStatus status = readStyleSheet();
    if (status != ExitStatus::Success && !options_.keepGoing) {
        return status;
    }
    for (std::size_t i = 0; i < assignments.size(); ++i) {
        if (progress_) {
            progress_(i + 1, assignments.size(), assignments[i].description);
        }
        status = std::max(status, render(assignments[i]));
    }
    return status;
}

ExitStatus RenderJob::readStyleSheet() {
    if (!options_.styleSheet) {
        return ExitStatus::Success;
    }
    try {
        platform_.readStyleSheet(*options_.styleSheet);
        manner_.styleSheet = options_.styleSheet;
        return ExitStatus::Success;
    } catch (const RtfError& error) {
        return fail(*options_.styleSheet, error);
    }
}

ExitStatus RenderJob::render(const Assignment& assignment) {
    try {
        const ExitStatus status =
            DescriptionRendering(assignment, manner_, platform_, driver_, tell_).run();
        // The next document uses the memory of a small one again; that of a large one shall not
        // stay beside it. After an error the next description begins anew.
        if (status != ExitStatus::Success || driver_->Contents().size() > largestKeptDocument) {
            driver_ = nullptr;
        }
        return status;
    } catch (const std::bad_alloc&) {
        driver_ = nullptr;
        return fail(assignment.description, RtfError(outOfMemory, "Out of memory"));
    }
}

ExitStatus RenderJob::fail(const std::string& file, RtfError error) {
    tell_({DiagnosticKind::Raised, file, std::move(error)});
    return ExitStatus::Failure;
}

}  // namespace quorvane::cli
