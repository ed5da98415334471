#include "cli/diagnosticText.h"

#include "cli/causeText.h"
#include "cli/oneLine.h"
#include "cli/shortened.h"
#include "quorvane/driver/driverErrors.h"

namespace quorvane::cli {

namespace {

std::string place(const Diagnostic& diagnostic) {
    if (diagnostic.file.empty()) {
        return {};
    }
    const int line = diagnostic.error.line;
    return diagnostic.file + (line > 0 ? ":" + std::to_string(line) : "") + ": ";
}

std::string levelOrNumber(std::int32_t number) {
    const auto level = errorLevel(number);
    return level ? std::string(errorLevelName(*level)) : std::to_string(number);
}

}  // namespace

std::string diagnosticText(const Diagnostic& diagnostic) {
    const RtfError& error = diagnostic.error;
    // A raised error may name the file that it is about; that of an event repeats a line.
    const std::string message = diagnostic.kind == DiagnosticKind::Event
                                    ? shortened(oneLine(error.description))
                                    : error.description;
    return oneLine(place(diagnostic) + "error[" + levelOrNumber(error.number) +
                   "]: " + withCause(message, error));
}

}  // namespace quorvane::cli
