#pragma once

#include <string_view>

#include "quorvane/diagnostics/KnownStyles.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/SourceText.h"
#include "quorvane/diagnostics/text/TextUse.h"

namespace quorvane {

/// Warns of what a text (a view into the source) does to a document that it is written into. Of
/// each kind of diagnostic the first ones are reported. Without styles, numbers of styles are not
/// looked up.
void findTextWarnings(std::string_view text, TextUse use, const KnownStyles* styles,
                      const SourceText& source, DiagnosticEngine& engine);

}  // namespace quorvane
