#include "cli/errorText.h"

#include "cli/causeText.h"
#include "cli/oneLine.h"
#include "cli/shortened.h"

namespace quorvane::cli {

namespace {

std::string place(const ReportedError& reported) {
    if (reported.file.empty()) {
        return {};
    }
    const int line = reported.error.line;
    return reported.file + (line > 0 ? ":" + std::to_string(line) : "") + ": ";
}

}  // namespace

std::string recordText(std::size_t record) {
    return record > 0 ? "record " + std::to_string(record) + ": " : "";
}

std::string errorText(const ReportedError& reported) {
    const RtfError& error = reported.error;
    if (!reported.reason.empty()) {
        return oneLine(place(reported) + recordText(reported.record) + reported.reason);
    }
    // A raised error may name the file that it is about; that of an event repeats a line.
    const std::string message = reported.kind == ErrorKind::Event
                                    ? shortened(oneLine(error.description))
                                    : error.description;
    return oneLine(place(reported) + "error: " + recordText(reported.record) +
                   withCause(message, error));
}

}  // namespace quorvane::cli
