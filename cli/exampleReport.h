#pragma once

#include <string>
#include <string_view>

#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane::cli {

/// What `quorvane check` reports about the wrong example of a rule, without its summary; empty when
/// it has none.
std::string exampleReport(const DiagnosticRule& rule);

/// The title of this report. It names the option without which the example, as it stands on a page,
/// would be read in UTF-8.
std::string_view exampleReportTitle(const DiagnosticRule& rule);

/// The message about the rule's example, on one line; the rule's title when it has no example.
std::string exampleMessage(const DiagnosticRule& rule);

}  // namespace quorvane::cli
