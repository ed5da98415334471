#pragma once

#include <cstddef>
#include <string>
#include <variant>
#include <vector>

#include "cli/DiagnosticExcerpt.h"
#include "cli/RenderReport.h"
#include "cli/ReportedError.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane::cli {

struct LocatedDiagnostic {
    std::string file;
    Diagnostic diagnostic;
    DiagnosticExcerpt excerpt;
};

/// The library refuses the stylesheet with this error.
struct StyleSheetRefusal {
    RtfError error;
};

/// A line that is not about an error.
struct RenderNote {
    std::string text;
};

/// What a rendering reports, in its order.
using RenderEvents =
    std::vector<std::variant<ReportedError, LocatedDiagnostic, StyleSheetRefusal, RenderNote>>;

/// True for events that take much memory.
inline bool areMany(const RenderEvents& events) noexcept {
    constexpr std::size_t few = 100;
    return events.size() > few;
}

/// Receivers that keep what they receive. They locate diagnostics if those do for which they stand
/// in. The events must outlive them.
RenderReceivers receiversInto(RenderEvents& events, bool locate);

/// Reports the events.
void report(const RenderEvents& events, RenderReport& report, const RenderReceivers& receivers);

}  // namespace quorvane::cli
