#include "quorvane/diagnostics/description/PageWarnings.h"

#include <cmath>
#include <cstdint>
#include <string>
#include <utility>

#include "quorvane/diagnostics/description/measureHints.h"
#include "quorvane/driver/soundLeaf.h"

namespace quorvane {

void PageWarnings::findInDocument(const DescriptionNode& doc, const CRtfDoc& document) {
    findTinyMeasures(doc);
    findMargins(doc, document);
    findRoom(doc, document);
}

/// What is meant in another unit has consequences for the whole page, which is not looked at then.
void PageWarnings::findTinyMeasures(const DescriptionNode& doc) {
    for (const Leaf& leaf : doc.leaves()) {
        const std::string_view key = leaf.key.name;
        if (leaf.isFaulty || !leaf.isNumber() || !isTinyMeasure(key, leaf.number)) {
            continue;
        }
        report(DiagnosticId::TinyMeasure, leaf, {key, leaf.text, millimeterText(leaf.number)},
               tinyMeasureHint(key, leaf.number));
        const bool isOfHeight =
            key == "paper-height" || key.starts_with("top-") || key.starts_with("bottom-");
        (isOfHeight ? isHeightDoubtful_ : isWidthDoubtful_) = true;
    }
}

void PageWarnings::findMargins(const DescriptionNode& doc, const CRtfDoc& document) {
    using enum DescriptionKey;
    const auto check = [&](DescriptionKey key, std::int32_t actual, DiagnosticId id) {
        const Leaf* leaf = soundLeaf(doc, key);
        const bool isOfWidth = key == LeftMargin || key == RightMargin;
        const bool isDoubtful =
            key != PageNumberStart && (isOfWidth ? isWidthDoubtful_ : isHeightDoubtful_);
        if (leaf && leaf->isNumber() && std::abs(leaf->number - actual) > 0.5 && !isDoubtful) {
            report(id, *leaf, {std::to_string(actual)});
            hasFallenMargin_ = hasFallenMargin_ || isOfWidth;
        }
    };
    check(LeftMargin, document.LeftMargin(), DiagnosticId::MarginFallback);
    check(RightMargin, document.RightMargin(), DiagnosticId::MarginFallback);
    check(TopMargin, document.TopMargin(), DiagnosticId::MarginFallback);
    check(BottomMargin, document.BottomMargin(), DiagnosticId::MarginFallback);
    check(PageNumberStart, document.PageNumberStart(), DiagnosticId::PageNumberFallback);
}

/// A margin is compared with the paper as it is when the margin's turn comes.
void PageWarnings::findRoom(const DescriptionNode& doc, const CRtfDoc& document) {
    using enum DescriptionKey;
    const auto check = [&](std::int64_t paper, std::int64_t margins, std::string_view direction,
                           std::initializer_list<DescriptionKey> keys, bool isDoubtful) {
        if (paper > margins || isDoubtful) {
            return;
        }
        std::string_view part = doc.opener;
        for (const DescriptionKey key : keys) {
            const Leaf* leaf = soundLeaf(doc, key);
            part = leaf ? leaf->text : part;
        }
        engine_.report(DiagnosticId::NoRoom, source_.placeOf(part),
                       {std::to_string(margins), direction, std::to_string(paper)});
    };
    check(document.PageWidth(), std::int64_t{document.LeftMargin()} + document.RightMargin(),
          "wide", {LeftMargin, RightMargin, PaperWidth}, isWidthDoubtful_);
    check(document.PageHeight(), std::int64_t{document.TopMargin()} + document.BottomMargin(),
          "high", {TopMargin, BottomMargin, PaperHeight}, isHeightDoubtful_);
}

void PageWarnings::report(DiagnosticId id, const Leaf& leaf,
                          std::initializer_list<std::string_view> arguments, Hint hint) {
    engine_.report(id, source_.placeOf(leaf.text), arguments, std::move(hint));
}

}  // namespace quorvane
