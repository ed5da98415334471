#pragma once

#include "quorvane/diagnostics/description/DescriptionOutline.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/SourceText.h"
#include "quorvane/diagnostics/stylesheet/KnownStyles.h"
#include "quorvane/docmodel/CRtfDoc.h"

namespace quorvane {

/// Warns of what a description says that does not do what its author wants. Measures and colours
/// are looked up in the trial document, which may be null; styles are looked up and marked as used,
/// where there are any.
void findDescriptionWarnings(const DescriptionOutline& outline, CRtfDoc* document,
                             KnownStyles* styles, const SourceText& source,
                             DiagnosticEngine& engine);

}  // namespace quorvane
