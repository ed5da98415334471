#include "quorvane/diagnostics/description/descriptionWarnings.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "quorvane/base/text/numberText.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/diagnostics/description/NullPlatform.h"
#include "quorvane/diagnostics/description/measureHints.h"
#include "quorvane/diagnostics/description/nodeNouns.h"
#include "quorvane/diagnostics/description/widthOrder.h"
#include "quorvane/diagnostics/engine/nearestWord.h"
#include "quorvane/diagnostics/text/InlineTokens.h"
#include "quorvane/diagnostics/text/colorContrast.h"
#include "quorvane/diagnostics/text/htmlTags.h"
#include "quorvane/diagnostics/text/rtfText.h"
#include "quorvane/diagnostics/text/textColors.h"

namespace quorvane {

namespace {

constexpr std::size_t maxCells = 63;
constexpr double minContrast = 3;
// A table that uses a larger part of the page's width is not too narrow.
constexpr double maxUsed = 0.95;
// Pairs of colors that are reported for one paragraph.
constexpr std::size_t maxColorsReported = 10;
// Looking for the style that was meant takes a while.
constexpr int maxHints = 1000;

bool isSound(const Leaf* leaf) {
    return leaf && !leaf->isFaulty;
}

class DescriptionWarnings {
public:
    DescriptionWarnings(KnownStyles* styles, const SourceText& source, DiagnosticEngine& engine)
        : styles_(styles), source_(source), engine_(engine) {}

    void findInLeaves(const DescriptionNode& node) {
        for (const Leaf& leaf : node.leaves()) {
            if (leaf.isFaulty) {
                continue;
            }
            findCutValue(leaf);
            switch (leaf.key.known) {
                case DescriptionKey::RowKey:
                case DescriptionKey::CellKey:
                case DescriptionKey::ParaKey:
                    findLeadingZeros(leaf);
                    findLostAlignment(node, leaf);
                    break;
                case DescriptionKey::CellMarkedField:
                case DescriptionKey::ParaMarkedField:
                    findInFieldData(leaf);
                    break;
                case DescriptionKey::CellStyle:
                    findLeadingZeros(leaf);
                    findCellStyle(leaf);
                    break;
                case DescriptionKey::ParaStyle:
                    findLeadingZeros(leaf);
                    findParagraphStyle(leaf);
                    break;
                case DescriptionKey::ParaText:
                    findInText(leaf);
                    break;
                default:
                    break;
            }
        }
    }

    void findInDocument(const DescriptionNode& doc, const CRtfDoc& document, BuiltTable& table) {
        findTinyMeasures(doc);
        findMargins(doc, document);
        findRoom(doc, document);
        for (const BuiltTable::Row& row : table.rows) {
            findInRow(doc, row, table, document);
        }
    }

private:
    void report(DiagnosticId id, const Leaf& leaf,
                std::initializer_list<std::string_view> arguments, Hint hint = {}) {
        engine_.report(id, source_.placeOf(leaf.text), arguments, std::move(hint));
    }

    /// A value with a "(" that ends at the first ")" while another one stands in the comment after
    /// the leaf.
    void findCutValue(const Leaf& leaf) {
        constexpr std::string_view escape = "\\'29";
        std::ptrdiff_t open = 0;
        for (std::size_t at = 0; at < leaf.text.size(); ++at) {
            const bool isClosed = leaf.text.substr(at).starts_with(escape) && open > 0;
            open += leaf.text[at] == '(' ? 1 : (isClosed ? -1 : 0);
        }
        const std::size_t end = source_.text().find(')', startOf(leaf) + leaf.text.size());
        if (open == 0 || end == std::string_view::npos) {
            return;
        }
        const std::string_view rest = source_.text().substr(end);
        const std::string_view line = rest.substr(0, rest.find_first_of("\r\n"));
        if (const std::size_t last = line.rfind(')'); last > 0) {
            engine_.report(DiagnosticId::CutValue, source_.placeOf(line.substr(0, last + 1)),
                           {line.substr(0, last)},
                           leaf.key.known == DescriptionKey::ParaText
                               ? "write \\'29 for a literal )"
                               : "this value cannot contain a )");
        }
    }

    void findLeadingZeros(const Leaf& leaf) {
        const std::string read = leaf.valueText();
        if (read != leaf.text) {
            report(DiagnosticId::LeadingZeros, leaf, {leaf.text, read});
        }
    }

    void findLostAlignment(const DescriptionNode& node, const Leaf& leaf) {
        const Leaf* alignment =
            node.find(node.kind == NodeKind::Cell ? DescriptionKey::CellAlignment
                                                  : DescriptionKey::ParaAlignment);
        if (isSound(alignment)) {
            report(DiagnosticId::LostAlignment, *alignment, {leaf.key.name, nodeNoun(node.kind)});
        }
    }

    void findInFieldData(const Leaf& leaf) {
        findTextWarnings(leaf.text, TextUse::FieldData, styles_, source_, engine_);
        if (leaf.isNumber()) {
            report(DiagnosticId::RefusedMarkedField, leaf, {leaf.text},
                   "put a letter in front of the number: N" + std::string(leaf.text));
        }
    }

    Hint styleHint(StyleKind kind, std::string_view name) {
        if (++hints_ > maxHints) {
            return {};
        }
        const std::string trimmed(trimWhitespace(name));
        if (trimmed != name && styles_->find(kind, trimmed) > 0) {
            styles_->markUsed(kind, trimmed);
            return {"remove the blank; the style is named " + trimmed, trimmed};
        }
        for (const StyleKind other :
             {StyleKind::Paragraph, StyleKind::Character, StyleKind::Cell}) {
            if (other != kind && styles_->find(other, name) > 0) {
                return std::string(name) + " is a " + std::string(styleKindName(other)) + " style";
            }
        }
        std::vector<std::string_view> names;
        const StyleList& list = styles_->styles(kind);
        for (int i = 1; list.count() <= maxCandidates && i <= static_cast<int>(list.count()); ++i) {
            names.push_back(list.at(i).name);
        }
        // The style whose name is misspelled counts as used.
        styles_->markUsed(kind, nearestWord(name, names));
        Hint hint = spellingHint(name, names);
        // Such a name cannot be written where it is meant.
        if (hint.replacement && hint.replacement->find_first_of("()<>=\r\n") != std::string::npos) {
            hint.replacement.reset();
        }
        return hint;
    }

    void findCellStyle(const Leaf& leaf) {
        const std::string name = leaf.valueText();
        if (!styles_ || name.empty()) {
            return;
        }
        styles_->markUsed(StyleKind::Cell, name);
        if (styles_->lacks(StyleKind::Cell, name)) {
            report(DiagnosticId::UnknownCellStyle, leaf, {name}, styleHint(StyleKind::Cell, name));
        }
    }

    void findParagraphStyle(const Leaf& leaf) {
        const std::string name = leaf.valueText();
        if (!styles_ || name.empty()) {
            return;
        }
        styles_->markUsed(StyleKind::Paragraph, name);
        if (styles_->lacks(StyleKind::Paragraph, name)) {
            const StyleList& list = styles_->styles(StyleKind::Paragraph);
            report(DiagnosticId::UnknownParagraphStyle, leaf,
                   {name, list.empty() ? "the paragraph gets no format"
                                       : list.at(1).name + " is used instead"},
                   styleHint(StyleKind::Paragraph, name));
        }
    }

    void findInText(const Leaf& leaf) {
        if (leaf.text.empty()) {
            engine_.report(DiagnosticId::EmptyText, source_.place(startOf(leaf), startOf(leaf)));
        }
        findTextWarnings(leaf.text, TextUse::Text, styles_, source_, engine_);
        for (HtmlTag& tag : htmlTagsIn(leaf.text, styles_)) {
            engine_.report(DiagnosticId::HtmlTag, source_.placeOf(tag.tag), {tag.tag},
                           std::move(tag.hint));
        }
        if (styles_) {
            findInlineStyles(leaf.text);
        }
    }

    std::size_t startOf(const Leaf& leaf) const {
        return static_cast<std::size_t>(leaf.text.data() - source_.text().data());
    }

    /// Without a ">" that ends it, an inline style is plain text.
    void findUnclosedInlineStyles(std::string_view text) {
        std::vector<std::string_view> open;
        for (std::size_t at = text.find_first_of("<>"); at != std::string_view::npos;
             at = text.find_first_of("<>", at + 1)) {
            const std::size_t end = text.find_first_of("=<>", at + 1);
            const std::string_view name = text.substr(at + 1, end - at - 1);
            if (text[at] == '>' && !open.empty()) {
                open.pop_back();
            } else if (text[at] == '<' && end != std::string_view::npos && text[end] == '=' &&
                       styles_->find(StyleKind::Character, name) > 0) {
                open.push_back(name);
            }
        }
        constexpr std::size_t maxReported = 10;
        open.resize(std::min(open.size(), maxReported));
        for (const std::string_view name : open) {
            styles_->markUsed(StyleKind::Character, name);
            engine_.report(DiagnosticId::UnclosedInlineStyle, source_.placeOf(name), {name},
                           "write a > after the text: <" + std::string(name) + "=Total>");
        }
    }

    void findInlineStyles(std::string_view text) {
        findUnclosedInlineStyles(text);
        const InlineTokens tokens(text);
        for (std::size_t open = text.find('<'); open != std::string_view::npos;
             open = text.find('<', open + 1)) {
            const std::optional<std::string_view> token = tokens.nameAt(open);
            if (!token) {
                continue;
            }
            const std::string_view name = *token;
            styles_->markUsed(StyleKind::Character, name);
            if (styles_->lacks(StyleKind::Character, name)) {
                engine_.report(DiagnosticId::UnknownCharacterStyle, source_.placeOf(name), {name},
                               styleHint(StyleKind::Character, name));
            }
        }
    }

    /// What is meant in another unit has consequences for the whole page, of which no more is said.
    void findTinyMeasures(const DescriptionNode& doc) {
        for (const Leaf& leaf : doc.leaves()) {
            const std::string_view key = leaf.key.name;
            if (!isSound(&leaf) || !leaf.isNumber() || !isTinyMeasure(key, leaf.number)) {
                continue;
            }
            report(DiagnosticId::TinyMeasure, leaf, {key, leaf.text, millimeterText(leaf.number)},
                   tinyMeasureHint(key, leaf.number));
            const bool isOfHeight =
                key == "paper-height" || key.starts_with("top-") || key.starts_with("bottom-");
            (isOfHeight ? isHeightDoubtful_ : isWidthDoubtful_) = true;
        }
    }

    void findMargins(const DescriptionNode& doc, const CRtfDoc& document) {
        using enum DescriptionKey;
        const auto check = [&](DescriptionKey key, std::int32_t actual, DiagnosticId id) {
            const Leaf* leaf = doc.find(key);
            const bool isOfWidth = key == LeftMargin || key == RightMargin;
            const bool isDoubtful =
                key != PageNumberStart && (isOfWidth ? isWidthDoubtful_ : isHeightDoubtful_);
            if (isSound(leaf) && leaf->isNumber() && std::abs(leaf->number - actual) > 0.5 &&
                !isDoubtful) {
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
    void findRoom(const DescriptionNode& doc, const CRtfDoc& document) {
        using enum DescriptionKey;
        const auto check = [&](std::int64_t paper, std::int64_t margins, std::string_view direction,
                               std::initializer_list<DescriptionKey> keys, bool isDoubtful) {
            if (paper > margins || isDoubtful) {
                return;
            }
            std::string_view part = doc.opener;
            for (const DescriptionKey key : keys) {
                const Leaf* leaf = doc.find(key);
                part = isSound(leaf) ? leaf->text : part;
            }
            engine_.report(DiagnosticId::NoRoom, source_.placeOf(part),
                           {std::to_string(margins), direction, std::to_string(paper)});
        };
        check(document.PageWidth(), std::int64_t{document.LeftMargin()} + document.RightMargin(),
              "wide", {LeftMargin, RightMargin, PaperWidth}, isWidthDoubtful_);
        check(document.PageHeight(), std::int64_t{document.TopMargin()} + document.BottomMargin(),
              "high", {TopMargin, BottomMargin, PaperHeight}, isHeightDoubtful_);
    }

    void findInRow(const DescriptionNode& doc, const BuiltTable::Row& row, BuiltTable& table,
                   const CRtfDoc& document) {
        const std::span<const BuiltTable::Cell> cells = table.cellsOf(row);
        if (cells.size() > maxCells) {
            engine_.report(DiagnosticId::TooManyCells, source_.placeOf(row.node->opener),
                           {std::to_string(cells.size())});
        }
        findWidths(doc, *row.node, cells, document);
        for (const BuiltTable::Cell& cell : cells) {
            findInCell(cell, table.paragraphsOf(cell), document, &cell == &cells.back());
        }
    }

    void findWidths(const DescriptionNode& doc, const DescriptionNode& node,
                    std::span<const BuiltTable::Cell> cells, const CRtfDoc& document) {
        double sum = 0;
        bool allGiven = !cells.empty();
        std::int64_t total = 0;
        std::vector<std::int32_t> widths;
        CellPercents percents;
        for (const BuiltTable::Cell& cell : cells) {
            const Leaf* leaf = cell.node->find(DescriptionKey::CellWidth);
            allGiven = allGiven && isSound(leaf);
            sum += isSound(leaf) ? leaf->number : 0;
            percents.push_back(isSound(leaf) ? std::optional(leaf->number) : std::nullopt);
            widths.push_back(cell.element->Width(eTwips));
            total += widths.back();
        }
        if (cells.size() > 1 && (allGiven ? std::abs(sum - 100) > 0.5 : sum >= 100)) {
            engine_.report(DiagnosticId::WidthsSum, source_.placeOf(node.opener),
                           {numberText(sum)});
        }
        const std::int32_t room = document.TextAreaWidth();
        if (room <= 0 || isWidthDoubtful_) {
            return;
        }
        // The even widths are rounded, each cell by less than a twip.
        const auto slack = static_cast<std::int64_t>(cells.size());
        if (total > room + slack && !isOverrunReported_) {
            isOverrunReported_ = true;
            engine_.report(DiagnosticId::TableOverrun, source_.placeOf(node.opener),
                           {std::to_string(total), std::to_string(room)},
                           marginsHint(document, total));
        }
        const bool isMeant = cells.empty() || (cells.size() == 1 && percents.front());
        if (static_cast<double>(total) < room * maxUsed - static_cast<double>(slack) && !isMeant &&
            !hasFallenMargin_ && !isUnderrunReported_) {
            isUnderrunReported_ = true;
            engine_.report(DiagnosticId::TableUnderrun, source_.placeOf(widthLineOf(doc, node)),
                           {std::to_string(total), std::to_string(room)},
                           marginsHint(document, total));
        }
        // The page is to be made to fit the table; then it is the order of the cells that takes
        // widths away.
        const bool fits = static_cast<double>(std::abs(total - room)) <= room * (1 - maxUsed);
        const std::int32_t roomToBe = fits ? room : static_cast<std::int32_t>(total);
        bool hasHint = false;
        for (std::size_t i = 0; i < cells.size(); ++i) {
            if (percents[i] && isOfOtherWidth(widths, i, *percents[i], room)) {
                const Leaf& leaf = *cells[i].node->find(DescriptionKey::CellWidth);
                report(DiagnosticId::WidthClamped, leaf,
                       {std::to_string(std::lround(widths[i] * 100.0 / room)), leaf.text},
                       std::exchange(hasHint, true) ? Hint() : orderHint(percents, roomToBe));
            }
        }
    }

    /// To try the orders takes a while; rows of one table have the same widths.
    Hint orderHint(const CellPercents& percents, std::int32_t room) {
        constexpr std::size_t maxOrders = 20;
        const auto known = orderHints_.find(percents);
        if (known != orderHints_.end() || orderHints_.size() >= maxOrders) {
            return known == orderHints_.end() ? Hint() : known->second;
        }
        return orderHints_.emplace(percents, widthOrderHint(percents, room)).first->second;
    }

    /// The value that the width between the margins comes from, or the row.
    static std::string_view widthLineOf(const DescriptionNode& doc, const DescriptionNode& row) {
        for (const DescriptionKey key : {DescriptionKey::PaperWidth, DescriptionKey::LeftMargin,
                                         DescriptionKey::RightMargin}) {
            if (const Leaf* leaf = doc.find(key); isSound(leaf)) {
                return leaf->text;
            }
        }
        return row.opener;
    }

    /// Margins that leave the table its width, tried on the page.
    static Hint marginsHint(const CRtfDoc& document, std::int64_t tableWidth) {
        NullPlatform platform;
        const Ref<CRtfDoc> trial = CRtfDoc::create(platform);
        const std::int32_t evenWidth = trial->TextAreaWidth();
        // Rounded even widths add up to a little more or less.
        const auto table = std::abs(tableWidth - evenWidth) < 100
                               ? evenWidth
                               : static_cast<std::int32_t>(tableWidth);
        const std::int32_t margins = document.PageWidth() - table;
        const std::int32_t left = margins / 2;
        const std::int32_t right = margins - left;
        // In the order in which the keys are applied.
        trial->setLeftMargin(left);
        trial->setPageWidth(document.PageWidth());
        trial->setRightMargin(right);
        if (left < 1 || isTinyMeasure("left-margin", left) || trial->LeftMargin() != left ||
            trial->RightMargin() != right) {
            return "the cells are laid out before the page is set up; choose paper that is wider "
                   "than "
                   "the table and its margins";
        }
        return "the cells are laid out before the page is set up; choose (left-margin=" +
               std::to_string(left) + ") and (right-margin=" + std::to_string(right) +
               ") to leave " + std::to_string(table) + " twips for them";
    }

    void findInCell(const BuiltTable::Cell& cell, std::span<const BuiltTable::Paragraph> paragraphs,
                    const CRtfDoc& document, bool isLastOfRow) {
        if (styles_ && !isLastOfRow && !paragraphs.empty()) {
            findSharedNumber(*paragraphs.front().node);
            if (paragraphs.size() > 1) {
                findSharedNumber(*paragraphs.back().node);
            }
        }
        std::int32_t background = cell.element->BackColor();
        bool isStyleColor = false;
        if (background == eNoColor && !cell.element->Style().empty() && styles_) {
            background = document.getCellStyleBackColor(cell.element->Style());
            isStyleColor = background != eNoColor;
        }
        for (const BuiltTable::Paragraph& paragraph : paragraphs) {
            const bool turnsWhite =
                isStyleColor && isDarkColor(static_cast<tColorIndex>(background));
            const std::int32_t own = turnsWhite ? eWhite : paragraph.element->ForeColor();
            findContrast(*paragraph.node, own, background);
        }
    }

    void findSharedNumber(const DescriptionNode& paragraph) {
        const Leaf* leaf = paragraph.find(DescriptionKey::ParaStyle);
        const Leaf* text = paragraph.find(DescriptionKey::ParaText);
        if (!isSound(leaf) || !text || text->text.empty()) {
            return;
        }
        const int position = styles_->find(StyleKind::Paragraph, leaf->valueText());
        const StyleList& others = styles_->styles(StyleKind::Character);
        if (position > 0 && static_cast<std::size_t>(position) <= others.count()) {
            report(DiagnosticId::SharedStyleNumber, *leaf,
                   {leaf->valueText(), std::to_string(styleNumber(position)),
                    others.at(position).name});
        }
    }

    void findContrast(const DescriptionNode& paragraph, std::int32_t own, std::int32_t background) {
        const Leaf* text = paragraph.find(DescriptionKey::ParaText);
        if (!isSound(text) || text->text.empty()) {
            return;
        }
        TextColors colors = colorsAfter(formatOf(paragraph), {0, background});
        colors.text = own == eNoColor ? colors.text : own;
        std::vector<TextColors> reported;
        for (const ColoredPart& part : coloredParts(text->text, colors, styles_)) {
            const bool isNew =
                std::find(reported.begin(), reported.end(), part.colors) == reported.end() &&
                reported.size() < maxColorsReported;
            if (isNew && contrastOf(part.colors.text, part.colors.ground) < minContrast) {
                reported.push_back(part.colors);
                engine_.report(
                    DiagnosticId::LowContrast,
                    source_.placeOf(part.colors == colors ? text->text : part.part),
                    {textColorName(part.colors.text), backgroundName(part.colors.ground)});
            }
        }
    }

    /// The format of the style that the paragraph is written in.
    std::string formatOf(const DescriptionNode& paragraph) const {
        if (!styles_ || styles_->styles(StyleKind::Paragraph).empty()) {
            return {};
        }
        const Leaf* leaf = paragraph.find(DescriptionKey::ParaStyle);
        const std::string name = isSound(leaf) ? leaf->valueText() : std::string();
        const int position = styles_->find(StyleKind::Paragraph, name);
        return styles_->styles(StyleKind::Paragraph).at(position > 0 ? position : 1).format();
    }

    KnownStyles* styles_;
    const SourceText& source_;
    DiagnosticEngine& engine_;
    bool isOverrunReported_ = false;
    bool isUnderrunReported_ = false;
    bool hasFallenMargin_ = false;
    // True for measures that are most likely in another unit.
    bool isWidthDoubtful_ = false;
    bool isHeightDoubtful_ = false;
    std::map<CellPercents, Hint> orderHints_;
    int hints_ = 0;
};

}  // namespace

void findDescriptionWarnings(const DescriptionNode& doc, CRtfDoc& document, BuiltTable& table,
                             KnownStyles* styles, const SourceText& source,
                             DiagnosticEngine& engine) {
    DescriptionWarnings warnings(styles, source, engine);
    forEachNode(doc, [&](const DescriptionNode& node) { warnings.findInLeaves(node); });
    try {
        warnings.findInDocument(doc, document, table);
    } catch (const RtfError&) {
        // A page of extreme measures has no widths to compare with.
    }
}

}  // namespace quorvane
