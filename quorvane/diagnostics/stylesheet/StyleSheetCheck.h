#pragma once

#include <string_view>
#include <vector>

#include "quorvane/diagnostics/engine/Diagnostic.h"
#include "quorvane/diagnostics/stylesheet/KnownStyles.h"

namespace quorvane {

/// Returns all diagnostics about a stylesheet (UTF-8), in the order of their places. A stylesheet
/// has an error if and only if loading it raises one.
std::vector<Diagnostic> checkStyleSheet(std::string_view text);

/// The findings that the check comes to by itself, before it is compared with what the loading
/// says. For tests of the check.
std::vector<Diagnostic> findingsWithoutLoading(std::string_view text);

/// Returns a diagnostic for each style of a stylesheet that was not marked as used.
std::vector<Diagnostic> findUnusedStyles(const KnownStyles& styles);

}  // namespace quorvane
