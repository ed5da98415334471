#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "quorvane/base/values/RtfError.h"

namespace quorvane::cli {

/// Where an error comes from.
enum class ErrorKind {
    /// An analysis reported it through its event.
    Event,
    /// A call raised it to its caller, or failed in what it was asked to do.
    Raised,
    /// The check of a description or a stylesheet, for which the command refuses it.
    Check,
};

/// An error as the command reports it.
struct ReportedError {
    ErrorKind kind;
    /// The file that it concerns, as it was named on the command line; empty for none.
    std::string file;
    RtfError error;
    /// Why a file cannot be read or written, in the system's words; empty for any other error. The
    /// text form shows it instead of the error.
    std::string reason{};
    /// The number of the record that it is about; 0 for none.
    std::size_t record = 0;
};

/// Receives the errors in the order in which they occur.
using ErrorSink = std::function<void(const ReportedError&)>;

}  // namespace quorvane::cli
