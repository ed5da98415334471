#pragma once

#include <vector>

#include "quorvane/base/platform/Platform.h"
#include "quorvane/diagnostics/description/DescriptionOutline.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/SourceText.h"
#include "quorvane/diagnostics/stylesheet/KnownStyles.h"
#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/driver/Vocabulary.h"

namespace quorvane {

/// The document that the sound nodes and leaves of a description make, in which its measures and
/// colours can be looked up: its rows, cells and paragraphs are those of `builtChildren`, in order.
/// What the build rejects is reported, marked as faulty, and left out. Null when there is no
/// document to build.
Ref<CRtfDoc> buildTrialDocument(DescriptionOutline& outline, const SourceText& source,
                                const Vocabulary& vocabulary, const KnownStyles* styles,
                                Platform& platform, DiagnosticEngine& engine);

/// The children of a node of which the trial document has an entry.
std::vector<OutlineNode*> builtChildren(const OutlineNode& node);

}  // namespace quorvane
