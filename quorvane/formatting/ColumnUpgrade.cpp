#include "quorvane/formatting/ColumnUpgrade.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <map>
#include <optional>
#include <span>

#include "quorvane/base/text/numberText.h"
#include "quorvane/docmodel/InnerDocument.h"
#include "quorvane/docmodel/layout/evenWidth.h"
#include "quorvane/driver/columnLayout.h"
#include "quorvane/driver/extendedValues.h"

namespace quorvane {

namespace {

using Widths = std::vector<std::int32_t>;

constexpr double wholeShare = 100;

Widths widthsOf(std::span<const BuiltTable::Cell> cells) {
    Widths widths;
    std::transform(cells.begin(), cells.end(), std::back_inserter(widths),
                   [](const BuiltTable::Cell& cell) { return cell.element->Width(eTwips); });
    return widths;
}

std::string joined(const std::vector<std::string>& parts) {
    std::string text;
    for (const std::string& part : parts) {
        text += (text.empty() ? "" : " ") + part;
    }
    return text;
}

/// True for widths whose edges are not further apart than so many twips.
bool areNear(const Widths& a, const Widths& b, std::int32_t twips) {
    std::int32_t apart = 0;
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&](std::int32_t left, std::int32_t right) {
                          apart += left - right;
                          return std::abs(apart) <= twips;
                      });
}

/// The widths as shares with decimals down to one part of so many; nothing if those are other
/// widths. Where whole shares put an edge a twip away, which nobody sees, they are meant.
std::optional<std::string> sharesOf(const Widths& widths, std::int32_t textArea, double parts) {
    std::vector<std::optional<ColumnWidth>> columns;
    std::vector<std::string> texts;
    double sum = 0;
    for (const std::int32_t width : widths) {
        const double share = std::round(wholeShare * parts * width / textArea) / parts;
        sum += share;
        columns.emplace_back(ColumnWidth{share, true});
        texts.push_back(numberText(share));
        if (share <= 0 || sum > wholeShare) {
            return std::nullopt;
        }
    }
    constexpr std::int32_t anyPaper = std::numeric_limits<std::int32_t>::max();
    const bool isSame =
        areNear(columnLayout(columns, {textArea, anyPaper}), widths, parts > 1 ? 0 : 1);
    return isSame ? std::optional(joined(texts)) : std::nullopt;
}

std::string textOf(const Widths& widths, std::int32_t textArea) {
    for (const double parts : {1.0, 10.0}) {
        const auto shares =
            textArea > 0 ? sharesOf(widths, textArea, parts) : std::optional<std::string>();
        if (shares) {
            return *shares;
        }
    }
    std::vector<std::string> twips;
    std::transform(widths.begin(), widths.end(), std::back_inserter(twips),
                   [](std::int32_t width) { return std::to_string(width) + "tw"; });
    return joined(twips);
}

}  // namespace

ColumnUpgrade::ColumnUpgrade(const CRtfDoc& document, BuiltTable& table) : document_(document) {
    find(table);
    takeMostFrequent();
}

void ColumnUpgrade::find(BuiltTable& table) {
    const std::int32_t textArea = document_.TextAreaWidth();
    for (const BuiltTable::Row& row : table.rows) {
        const Widths widths = widthsOf(table.cellsOf(row));
        const auto count = static_cast<std::int64_t>(widths.size());
        const Widths even(widths.size(), count > 0 ? evenWidth(inner(document_), count) : 0);
        const std::string text = textOf(widths, textArea);
        ofRows_[row.node] = widths == even ? std::string() : text;
        if (widths == even) {
            evenRows_[row.node] = text;
        }
    }
}

void ColumnUpgrade::takeMostFrequent() {
    std::map<std::string, std::size_t> counts;
    for (const auto& [row, text] : ofRows_) {
        counts[text] += text.empty() ? 0 : 1;
    }
    const auto most =
        std::max_element(counts.begin(), counts.end(),
                         [](const auto& a, const auto& b) { return a.second < b.second; });
    // The other rows need columns of their own, also the even ones.
    const std::size_t apart = ofRows_.size() - evenRows_.size();
    if (most == counts.end() || ofRows_.size() - most->second + 1 >= apart) {
        return;
    }
    ofDocument_ = most->first;
    for (auto& [row, text] : ofRows_) {
        text = text == ofDocument_ ? std::string() : text.empty() ? evenRows_.at(row) : text;
    }
}

}  // namespace quorvane
