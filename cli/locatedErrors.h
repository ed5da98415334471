#pragma once

#include <set>
#include <vector>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane::cli {

/// What a person sees of the errors that the library raised about a text: each mistake once.
struct LocatedErrors {
    /// The kinds of the diagnostics that explain the errors.
    std::set<DiagnosticId> kinds;
    /// Errors that the check does not find.
    std::vector<RtfError> others;
};

/// Finds the diagnostics that explain the errors: those on an error's line or, for an error
/// without a line, with its message. Errors that only follow from others are left out.
LocatedErrors locateErrors(const std::vector<RtfError>& errors,
                           const std::vector<Diagnostic>& diagnostics);

}  // namespace quorvane::cli
