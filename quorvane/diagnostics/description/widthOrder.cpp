#include "quorvane/diagnostics/description/widthOrder.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numeric>
#include <string>
#include <utility>

#include "quorvane/base/text/numberText.h"
#include "quorvane/base/text/rounding.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/diagnostics/description/NullPlatform.h"
#include "quorvane/docmodel/CRtfDoc.h"

namespace quorvane {

namespace {

// Word processors take no more.
constexpr std::size_t maxCells = 63;

/// The widths of a row's cells in twips, as a document lays them out.
std::vector<std::int32_t> laidOut(const CellPercents& percents, std::int32_t room) {
    NullPlatform platform;
    const Ref<CRtfDoc> document = CRtfDoc::create(platform);
    document->TableRows()->AddTail();
    const Ref<CRtfTableCells> cells = document->TableRows()->Item(1)->TableCells();
    for (std::size_t i = 0; i < percents.size(); ++i) {
        cells->AddTail();
    }
    document->setPageWidth(room + document->LeftMargin() + document->RightMargin());
    const auto cellAt = [&](std::size_t index) {
        return cells->Item(static_cast<std::int32_t>(index) + 1);
    };
    for (std::size_t i = 0; i < percents.size(); ++i) {
        if (percents[i]) {
            cellAt(i)->setWidth(ePercent, roundToLong(*percents[i]));
        }
    }
    std::vector<std::int32_t> widths;
    for (std::size_t i = 0; i < percents.size(); ++i) {
        widths.push_back(cellAt(i)->Width(eTwips));
    }
    return widths;
}

/// The first cell that does not get its width; nothing when all of them do.
std::optional<std::size_t> firstOfOtherWidth(const CellPercents& percents, std::int32_t room) {
    const std::vector<std::int32_t> widths = laidOut(percents, room);
    for (std::size_t i = 0; i < percents.size(); ++i) {
        if (percents[i] && isOfOtherWidth(widths, i, *percents[i], room)) {
            return i;
        }
    }
    return std::nullopt;
}

/// Gives the cells without a width equal shares of what the others leave; false when they leave
/// less than one percent for each.
bool fillIn(CellPercents& percents) {
    double sum = 0;
    int missing = 0;
    for (const std::optional<double>& percent : percents) {
        sum += percent.value_or(0);
        missing += percent ? 0 : 1;
    }
    int rest = static_cast<int>(std::lround(100 - sum));
    if (missing == 0) {
        return rest == 0;
    }
    if (rest < missing) {
        return false;
    }
    for (std::optional<double>& percent : percents) {
        if (!percent) {
            const int share = (rest + missing - 1) / missing;
            percent = share;
            rest -= share;
            --missing;
        }
    }
    return true;
}

/// The cells in the order that is nearest to the one they have and gives all their widths: one cell
/// moved to the right, or all in the order of their widths. Empty when there is none.
CellPercents workingOrder(const CellPercents& percents, std::size_t tooWide, std::int32_t room) {
    CellPercents moved = percents;
    for (std::size_t to = tooWide + 1; to < percents.size(); ++to) {
        std::swap(moved[to - 1], moved[to]);
        if (!firstOfOtherWidth(moved, room)) {
            return moved;
        }
    }
    std::stable_sort(moved.begin(), moved.end());
    return firstOfOtherWidth(moved, room) ? CellPercents() : moved;
}

}  // namespace

bool isOfOtherWidth(const std::vector<std::int32_t>& widths, std::size_t index, double percent,
                    std::int32_t room) {
    const std::int64_t total = std::accumulate(widths.begin(), widths.end(), std::int64_t{0});
    // The even widths are rounded, each cell by less than a twip.
    const auto slack = static_cast<double>(widths.size());
    // The last two of several cells share what is left, also of a page that was another one. Where
    // that is little, only the table as a whole is reported.
    const bool getsRest = widths.size() > 1 && index + 2 >= widths.size();
    const double rest = std::min(static_cast<double>(std::abs(total - room)), room * 0.05);
    const double tolerance = room * 0.005 + (getsRest ? rest : 0) + slack;
    return std::abs(widths[index] - percent / 100 * room) > tolerance;
}

Hint widthOrderHint(const CellPercents& percents, std::int32_t room) {
    const bool areAllGiven = std::all_of(percents.begin(), percents.end(),
                                         [](const auto& percent) { return percent.has_value(); });
    CellPercents filled = percents;
    if (percents.size() < 3 || percents.size() > maxCells || !fillIn(filled)) {
        return {};
    }
    try {
        const std::optional<std::size_t> tooWide = firstOfOtherWidth(filled, room);
        const CellPercents order = tooWide ? workingOrder(filled, *tooWide, room) : CellPercents();
        if (order.empty()) {
            return {};
        }
        std::string text;
        for (const std::optional<double>& percent : order) {
            text += (text.empty() ? "" : ", ") + numberText(*percent);
        }
        return areAllGiven ? "the order " + text + " gives all cells their widths"
                           : "give all cells a width, in the order " + text;
    } catch (const RtfError&) {
        // Measures beyond 32 bits have no order.
        return {};
    }
}

}  // namespace quorvane
