#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "quorvane/diagnostics/KnownStyles.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/SourceText.h"
#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/driver/DocumentBuilder.h"

namespace quorvane {

/// Warns of how the styles of paragraphs and the colors of cells look together: text that cannot be
/// read on its background, and numbers of styles that make a reader lose the table.
class CellWarnings {
public:
    CellWarnings(const KnownStyles* styles, const SourceText& source, DiagnosticEngine& engine)
        : styles_(styles), source_(source), engine_(engine) {}

    void findInCell(const BuiltTable::Cell& cell, std::span<const BuiltTable::Paragraph> paragraphs,
                    const CRtfDoc& document, bool isLastOfRow);

private:
    void findSharedNumber(const DescriptionNode& paragraph);
    void findContrast(const DescriptionNode& paragraph, std::int32_t own, std::int32_t background);
    std::string formatOf(const DescriptionNode& paragraph) const;

    const KnownStyles* styles_;
    const SourceText& source_;
    DiagnosticEngine& engine_;
};

}  // namespace quorvane
