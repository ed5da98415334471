#include "cli/fileFailure.h"

#include <filesystem>
#include <utility>

#include "cli/RenderOptions.h"
#include "data/whyUnreadable.h"
#include "quorvane/base/platform/utf8Path.h"
#include "quorvane/base/values/deepestCause.h"

namespace quorvane::cli {

namespace {

namespace fs = std::filesystem;

/// True for an error that is no more than the number of a run-time error.
bool isBare(const RtfError& error) {
    return error.description == RtfError(static_cast<RunTimeError>(error.number)).description;
}

bool isDevice(const std::string& path) {
    std::error_code failure;
    const fs::file_type type = fs::status(pathFromUtf8(path), failure).type();
    return type == fs::file_type::character || type == fs::file_type::block;
}

/// The reason why a file of that path cannot be read, where this error does not name one.
std::string reasonOf(const RtfError& error, const std::string& path) {
    if (const std::error_code why = data::whyUnreadable(path)) {
        return why.message();
    }
    return isDevice(path) ? "Is a device" : error.description;
}

}  // namespace

ReportedError fileFailure(std::string shownName, RtfError error) {
    std::string reason = error.cause ? deepestCause(error).description : std::string();
    return {ErrorKind::Raised, std::move(shownName), std::move(error), std::move(reason)};
}

ReportedError unreadableFile(std::string shownName, const std::string& path, RtfError error) {
    const RtfError* reading = &error;
    while (reading->cause && !isBare(*reading)) {
        reading = reading->cause.get();
    }
    const bool isFile = path != standardStream && isBare(*reading);
    std::string reason = isFile ? reasonOf(*reading, path) : deepestCause(error).description;
    // The number says it in other words, but for the one that stands for several obstacles.
    if (isFile && reading == &error && !error.is(RunTimeError::PathFileAccessError)) {
        error.cause = nullptr;
    }
    return {ErrorKind::Raised, std::move(shownName), std::move(error), std::move(reason)};
}

ReportedError refusal(const std::string& file, const std::string& why) {
    const auto number = static_cast<std::int32_t>(RunTimeError::InvalidProcedureCall);
    return {ErrorKind::Raised, file, RtfError(number, why), why};
}

}  // namespace quorvane::cli
