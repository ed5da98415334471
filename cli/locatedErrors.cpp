#include "cli/locatedErrors.h"

namespace quorvane::cli {

namespace {

using Diagnostics = std::vector<Diagnostic>;

bool isAbout(const Diagnostic& diagnostic, const RtfError& error) {
    return error.line > 0 ? diagnostic.place.line == error.line
                          : diagnostic.message == error.description;
}

/// The kinds of the diagnostics that an error is about. Of several on its line those count that
/// have its message, if any do.
std::set<DiagnosticId> kindsOf(const RtfError& error, const Diagnostics& diagnostics) {
    std::set<DiagnosticId> sameLine;
    std::set<DiagnosticId> sameMessage;
    for (const Diagnostic& diagnostic : diagnostics) {
        if (diagnostic.severity == Severity::Error && isAbout(diagnostic, error)) {
            sameLine.insert(diagnostic.id);
            if (diagnostic.message == error.description) {
                sameMessage.insert(diagnostic.id);
            }
        }
    }
    return sameMessage.empty() ? sameLine : sameMessage;
}

}  // namespace

LocatedErrors locateErrors(const std::vector<RtfError>& errors, const Diagnostics& diagnostics) {
    LocatedErrors result;
    for (const RtfError& error : errors) {
        const std::set<DiagnosticId> behind = kindsOf(error, diagnostics);
        // An analysis goes on after an error, and what it misses then has no line.
        const bool isFirst = result.kinds.empty() && result.others.empty();
        if (behind.empty() && (error.line > 0 || isFirst)) {
            result.others.push_back(error);
        }
        result.kinds.insert(behind.begin(), behind.end());
    }
    return result;
}

}  // namespace quorvane::cli
