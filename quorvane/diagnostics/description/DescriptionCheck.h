#pragma once

#include <string_view>
#include <vector>

#include "quorvane/diagnostics/engine/Diagnostic.h"
#include "quorvane/diagnostics/stylesheet/KnownStyles.h"

namespace quorvane {

/// All findings about a description (UTF-8), in the order of their places. A description has an
/// error exactly when a driver with `ErroneousInput` reports one. With styles, the styles that the
/// description names are looked up among them and marked as used.
std::vector<Diagnostic> checkDescription(std::string_view text, KnownStyles* styles = nullptr);

/// The findings that the check comes to by itself, before it is compared with what a driver says.
/// For tests of the check.
std::vector<Diagnostic> findingsWithoutDriver(std::string_view text, KnownStyles* styles = nullptr);

}  // namespace quorvane
