#pragma once

#include "quorvane/diagnostics/KnownStyles.h"
#include "quorvane/diagnostics/description/StyleUses.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/SourceText.h"
#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/driver/DescriptionNode.h"
#include "quorvane/driver/DocumentBuilder.h"

namespace quorvane {

/// Warns of everything in a description that does not do what its author wants. Measures and colors
/// are looked up in the document that was built from it, whose elements the table has with their
/// nodes. Styles, if there are any, are looked up and marked as used. Leaves marked as faulty are
/// left out.
void findDescriptionWarnings(const DescriptionNode& doc, CRtfDoc& document, BuiltTable& table,
                             KnownStyles* styles, const SourceText& source,
                             DiagnosticEngine& engine);

/// Looks up the styles of a description with literal texts, whose values have no other meaning than
/// the one that is checked.
void findLiteralTextWarnings(const DescriptionNode& doc, StyleUses& uses);

}  // namespace quorvane
