#pragma once

#include <initializer_list>
#include <string_view>

#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/SourceText.h"
#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/driver/DescriptionNode.h"

namespace quorvane {

/// Warns of measures of the page that are most likely in another unit, that fall back, or that
/// leave no room for text.
class PageWarnings {
public:
    PageWarnings(const SourceText& source, DiagnosticEngine& engine)
        : source_(source), engine_(engine) {}

    void findInDocument(const DescriptionNode& doc, const CRtfDoc& document);

    /// True when a measure that counts for the width of the page is most likely in another unit.
    bool isWidthDoubtful() const { return isWidthDoubtful_; }
    /// True when the left or right margin falls back.
    bool hasFallenMargin() const { return hasFallenMargin_; }

private:
    void findTinyMeasures(const DescriptionNode& doc);
    void findMargins(const DescriptionNode& doc, const CRtfDoc& document);
    void findRoom(const DescriptionNode& doc, const CRtfDoc& document);
    void report(DiagnosticId id, const Leaf& leaf,
                std::initializer_list<std::string_view> arguments, Hint hint = {});

    const SourceText& source_;
    DiagnosticEngine& engine_;
    bool isWidthDoubtful_ = false;
    bool isHeightDoubtful_ = false;
    bool hasFallenMargin_ = false;
};

}  // namespace quorvane
