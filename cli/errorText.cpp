#include "cli/errorText.h"

#include "cli/causeText.h"
#include "cli/oneLine.h"
#include "cli/shortened.h"

namespace quorvane::cli {

namespace {

std::string place(const ReportedError& diagnostic) {
    if (diagnostic.file.empty()) {
        return {};
    }
    const int line = diagnostic.error.line;
    return diagnostic.file + (line > 0 ? ":" + std::to_string(line) : "") + ": ";
}

}  // namespace

std::string errorText(const ReportedError& diagnostic) {
    const RtfError& error = diagnostic.error;
    if (!diagnostic.reason.empty()) {
        return oneLine(place(diagnostic) + diagnostic.reason);
    }
    // A raised error may name the file that it is about; that of an event repeats a line.
    const std::string message = diagnostic.kind == ErrorKind::Event
                                    ? shortened(oneLine(error.description))
                                    : error.description;
    return oneLine(place(diagnostic) + "error: " + withCause(message, error));
}

}  // namespace quorvane::cli
