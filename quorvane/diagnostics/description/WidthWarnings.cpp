#include "quorvane/diagnostics/description/WidthWarnings.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "quorvane/base/text/numberText.h"
#include "quorvane/diagnostics/description/NullPlatform.h"
#include "quorvane/diagnostics/description/measureHints.h"
#include "quorvane/driver/soundLeaf.h"

namespace quorvane {

namespace {

// A table that uses a larger part of the page's width is not too narrow.
constexpr double maxUsed = 0.95;

/// The value that the width between the margins comes from, or the row.
std::string_view widthLineOf(const DescriptionNode& doc, const DescriptionNode& row) {
    for (const DescriptionKey key :
         {DescriptionKey::PaperWidth, DescriptionKey::LeftMargin, DescriptionKey::RightMargin}) {
        if (const Leaf* leaf = soundLeaf(doc, key)) {
            return leaf->text;
        }
    }
    return row.opener;
}

/// Margins that leave the table its width, tried on the page.
Hint marginsHint(const CRtfDoc& document, std::int64_t tableWidth) {
    NullPlatform platform;
    const Ref<CRtfDoc> trial = CRtfDoc::create(platform);
    const std::int32_t evenWidth = trial->TextAreaWidth();
    // Rounded even widths add up to a little more or less.
    const auto table =
        std::abs(tableWidth - evenWidth) < 100 ? evenWidth : static_cast<std::int32_t>(tableWidth);
    const std::int32_t margins = document.PageWidth() - table;
    const std::int32_t left = margins / 2;
    const std::int32_t right = margins - left;
    // In the order in which the keys are applied.
    trial->setLeftMargin(left);
    trial->setPageWidth(document.PageWidth());
    trial->setRightMargin(right);
    if (left < 1 || isTinyMeasure("left-margin", left) || trial->LeftMargin() != left ||
        trial->RightMargin() != right) {
        return "the cells are laid out before the page is set up; choose paper that is "
               "wider than the table and its margins";
    }
    return "the cells are laid out before the page is set up; choose (left-margin=" +
           std::to_string(left) + ") and (right-margin=" + std::to_string(right) + ") to leave " +
           std::to_string(table) + " twips for them";
}

}  // namespace

/// The widths of a row's cells.
struct WidthWarnings::RowWidths {
    explicit RowWidths(std::span<const BuiltTable::Cell> cells) {
        for (const BuiltTable::Cell& cell : cells) {
            const Leaf* const leaf = soundLeaf(*cell.node, DescriptionKey::CellWidth);
            percents.push_back(leaf ? std::optional(leaf->number) : std::nullopt);
            sum += percents.back().value_or(0);
            allGiven = allGiven && leaf;
            twips.push_back(cell.element->Width(eTwips));
            total += twips.back();
        }
    }

    /// The even widths are rounded, each cell by less than a twip.
    std::int64_t slack() const { return static_cast<std::int64_t>(twips.size()); }

    /// True for a row that need not fill the room.
    bool mayBeNarrow() const {
        return twips.empty() || (twips.size() == 1 && percents.front().has_value());
    }

    CellPercents percents;
    double sum = 0;
    bool allGiven = true;
    std::vector<std::int32_t> twips;
    std::int64_t total = 0;
};

void WidthWarnings::findInRow(const DescriptionNode& doc, const DescriptionNode& row,
                              std::span<const BuiltTable::Cell> cells, const CRtfDoc& document) {
    const RowWidths widths(cells);
    findSum(row, widths);
    const std::int32_t room = document.TextAreaWidth();
    if (room > 0 && !page_.isWidthDoubtful()) {
        findTableWidth(doc, row, widths, document);
        findClampedWidths(cells, widths, room);
    }
}

void WidthWarnings::findSum(const DescriptionNode& row, const RowWidths& widths) {
    const bool isOff = widths.allGiven ? std::abs(widths.sum - 100) > 0.5 : widths.sum >= 100;
    if (widths.twips.size() > 1 && isOff) {
        engine_.report(DiagnosticId::WidthsSum, source_.placeOf(row.opener),
                       {numberText(widths.sum)});
    }
}

void WidthWarnings::findTableWidth(const DescriptionNode& doc, const DescriptionNode& row,
                                   const RowWidths& widths, const CRtfDoc& document) {
    const std::int32_t room = document.TextAreaWidth();
    if (widths.total > room + widths.slack() && !isOverrunReported_) {
        isOverrunReported_ = true;
        engine_.report(DiagnosticId::TableOverrun, source_.placeOf(row.opener),
                       {std::to_string(widths.total), std::to_string(room)},
                       marginsHint(document, widths.total));
    }
    const bool isNarrow =
        static_cast<double>(widths.total) < room * maxUsed - static_cast<double>(widths.slack());
    if (isNarrow && !widths.mayBeNarrow() && !page_.hasFallenMargin() && !isUnderrunReported_) {
        isUnderrunReported_ = true;
        engine_.report(DiagnosticId::TableUnderrun, source_.placeOf(widthLineOf(doc, row)),
                       {std::to_string(widths.total), std::to_string(room)},
                       marginsHint(document, widths.total));
    }
}

void WidthWarnings::findClampedWidths(std::span<const BuiltTable::Cell> cells,
                                      const RowWidths& widths, std::int32_t room) {
    // The page is to be made to fit the table; then it is the order of the cells that takes widths
    // away.
    const bool fits = static_cast<double>(std::abs(widths.total - room)) <= room * (1 - maxUsed);
    const std::int32_t roomToBe = fits ? room : static_cast<std::int32_t>(widths.total);
    bool hasHint = false;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const std::optional<double>& percent = widths.percents[i];
        if (percent && isOfOtherWidth(widths.twips, i, *percent, room)) {
            const std::string_view written = cells[i].node->find(DescriptionKey::CellWidth)->text;
            engine_.report(
                DiagnosticId::WidthClamped, source_.placeOf(written),
                {std::to_string(std::lround(widths.twips[i] * 100.0 / room)), written},
                std::exchange(hasHint, true) ? Hint() : orderHint(widths.percents, roomToBe));
        }
    }
}

/// To try the orders takes a while; rows of one table have the same widths.
Hint WidthWarnings::orderHint(const CellPercents& percents, std::int32_t room) {
    constexpr std::size_t maxOrders = 20;
    const auto known = orderHints_.find(percents);
    if (known != orderHints_.end() || orderHints_.size() >= maxOrders) {
        return known == orderHints_.end() ? Hint() : known->second;
    }
    return orderHints_.emplace(percents, widthOrderHint(percents, room)).first->second;
}

}  // namespace quorvane
