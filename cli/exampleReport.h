#pragma once

#include <string>

#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane::cli {

/// What `quorvane check` reports about the wrong example of a rule, without its summary; empty when
/// it has none.
std::string exampleReport(const DiagnosticRule& rule);

/// The rule's message as it is about its example, on one line; its title when it has none.
std::string exampleMessage(const DiagnosticRule& rule);

}  // namespace quorvane::cli
