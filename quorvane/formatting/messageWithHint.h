#pragma once

#include <string>

#include "quorvane/diagnostics/engine/Diagnostic.h"
#include "quorvane/driver/withoutFullStop.h"

namespace quorvane {

/// What a diagnostic says, as one sentence without a full stop.
inline std::string messageWithHint(const Diagnostic& diagnostic) {
    const std::string message(withoutFullStop(diagnostic.message));
    return diagnostic.hint.empty() ? message : message + "; " + diagnostic.hint;
}

}  // namespace quorvane
