#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane {

/// An `Error` with all diagnostics if loading the stylesheet would be one, or if documents cannot
/// hold all of it.
void requireSoundStyleSheet(std::string_view text, const std::string& file);

/// The diagnostic that a text is not UTF-8, alone; none for one that is.
std::vector<Diagnostic> findUnreadable(std::string_view text);

/// True when there is an error among the diagnostics.
bool haveError(const std::vector<Diagnostic>& diagnostics);

}  // namespace quorvane
