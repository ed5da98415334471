#pragma once

#include <functional>
#include <string>

#include "quorvane/support/RtfError.h"

namespace quorvane::cli {

/// How an error came out of the library.
enum class DiagnosticKind {
    /// An analysis reported it through its event.
    Event,
    /// A call raised it to its caller, or failed in what it was asked to do.
    Raised,
};

/// An error as the command tells it.
struct Diagnostic {
    DiagnosticKind kind;
    /// The file that it concerns, as it was named on the command line; empty for none.
    std::string file;
    RtfError error;
};

/// Takes the errors in the order in which they come.
using DiagnosticSink = std::function<void(const Diagnostic&)>;

}  // namespace quorvane::cli
