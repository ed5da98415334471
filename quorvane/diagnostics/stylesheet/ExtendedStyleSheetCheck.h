#pragma once

#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/SourceText.h"

namespace quorvane {

/// Reports what is wrong with a stylesheet in the extended language.
void checkExtendedStyleSheet(const SourceText& source, DiagnosticEngine& engine);

}  // namespace quorvane
