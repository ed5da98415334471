#pragma once

#include <string_view>

#include "quorvane/diagnostics/DiagnosticEngine.h"
#include "quorvane/diagnostics/SourceText.h"

namespace quorvane {

/// Warns of what a text (a view into the source) does to a document that it is written into as it
/// is. Of each kind of finding the first ones are reported.
void findTextWarnings(std::string_view text, const SourceText& source, DiagnosticEngine& engine);

/// The same for the format of a style, which is put into lower case before it is written.
void findFormatWarnings(std::string_view format, const SourceText& source,
                        DiagnosticEngine& engine);

}  // namespace quorvane
