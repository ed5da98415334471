#pragma once

#include "quorvane/diagnostics/DescriptionOutline.h"
#include "quorvane/diagnostics/DiagnosticEngine.h"
#include "quorvane/diagnostics/SourceText.h"
#include "quorvane/driver/Vocabulary.h"

namespace quorvane {

/// Reports what the checks and the build of a driver reject in the nodes of a document, and marks
/// the leaves and nodes that it concerns as faulty.
void findNodeErrors(DescriptionOutline& outline, const SourceText& source,
                    const Vocabulary& vocabulary, DiagnosticEngine& engine);

}  // namespace quorvane
