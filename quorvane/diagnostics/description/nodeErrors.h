#pragma once

#include "quorvane/diagnostics/description/DescriptionOutline.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/SourceText.h"
#include "quorvane/driver/Vocabulary.h"

namespace quorvane {

/// Reports what the checks and the build of a driver reject in the nodes of a document, and marks
/// the leaves and nodes that it concerns as faulty.
void findNodeErrors(DescriptionOutline& outline, const SourceText& source,
                    const Vocabulary& vocabulary, DiagnosticEngine& engine);

}  // namespace quorvane
