#include "cli/locatedErrors.h"

namespace quorvane::cli {

namespace {

using Diagnostics = std::vector<Diagnostic>;

bool isAbout(const Diagnostic& diagnostic, const RtfError& error) {
    return error.line > 0 ? diagnostic.place.line == error.line
                          : diagnostic.message == error.description;
}

/// The kinds of the diagnostics that explain an error: those on its line with its message or,
/// without such ones, all on its line.
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
        const std::set<DiagnosticId> kinds = kindsOf(error, diagnostics);
        // An analysis goes on after an error, and what it misses then has no line.
        const bool isFirst = result.kinds.empty() && result.others.empty();
        if (kinds.empty() && (error.line > 0 || isFirst)) {
            result.others.push_back(error);
        }
        result.kinds.insert(kinds.begin(), kinds.end());
    }
    return result;
}

}  // namespace quorvane::cli
