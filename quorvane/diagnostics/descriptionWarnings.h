#pragma once

#include "quorvane/diagnostics/DescriptionOutline.h"
#include "quorvane/diagnostics/DiagnosticEngine.h"
#include "quorvane/diagnostics/KnownStyles.h"
#include "quorvane/diagnostics/SourceText.h"
#include "quorvane/docmodel/CRtfDoc.h"

namespace quorvane {

/// Warns of what a description says that does not do what its author wants. Measures and colours
/// are looked up in the trial document, which may be null; styles are looked up and marked as used,
/// where there are any.
void findDescriptionWarnings(const DescriptionOutline& outline, CRtfDoc* document,
                             KnownStyles* styles, const SourceText& source,
                             DiagnosticEngine& engine);

}  // namespace quorvane
