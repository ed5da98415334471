#pragma once

#include <vector>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/diagnostics/engine/Diagnostic.h"
#include "quorvane/diagnostics/engine/SourceText.h"

namespace quorvane {

/// The findings about a text, brought into line with the errors that the library raises on it:
/// without errors where it raises none, and with its own, under the identifier, where none of the
/// findings is an error. They are in the order of their places.
std::vector<Diagnostic> judgedFindings(std::vector<Diagnostic> findings,
                                       const std::vector<RtfError>& errors, DiagnosticId otherwise,
                                       const SourceText& source);

}  // namespace quorvane
