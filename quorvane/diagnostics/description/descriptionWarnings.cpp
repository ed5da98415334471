#include "quorvane/diagnostics/description/descriptionWarnings.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "quorvane/base/text/numberText.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/diagnostics/description/InlineTokens.h"
#include "quorvane/diagnostics/description/TrialPlatform.h"
#include "quorvane/diagnostics/description/colorContrast.h"
#include "quorvane/diagnostics/description/htmlTags.h"
#include "quorvane/diagnostics/description/rtfText.h"
#include "quorvane/diagnostics/description/textColors.h"
#include "quorvane/diagnostics/description/trialDocument.h"
#include "quorvane/diagnostics/description/widthOrder.h"
#include "quorvane/diagnostics/engine/nearestWord.h"
#include "quorvane/diagnostics/stylesheet/measureHints.h"

namespace quorvane {

namespace {

constexpr std::size_t mostCells = 63;
constexpr double leastContrast = 3;
// A table that uses a larger part of the page's width is none that is too narrow.
constexpr double mostUsed = 0.95;
// Pairs of colors that are told of one paragraph.
constexpr std::size_t mostColorsTold = 10;
// Looking for the style that was meant takes a while.
constexpr int mostHints = 1000;

bool isSound(const OutlineLeaf* leaf) {
    return leaf && !leaf->isFaulty;
}

class DescriptionWarnings {
public:
    DescriptionWarnings(KnownStyles* styles, const SourceText& source, DiagnosticEngine& engine)
        : styles_(styles), source_(source), engine_(engine) {}

    void findInLeaves(const OutlineNode& node) {
        for (const OutlineLeaf& leaf : node.leaves) {
            if (leaf.isFaulty) {
                continue;
            }
            findCutValue(leaf);
            if (leaf.key.ends_with("-key")) {
                findLeadingZeros(leaf);
                findLostAlignment(node, leaf);
            } else if (leaf.key.ends_with("-marked-field")) {
                findInFieldData(leaf);
            } else if (leaf.key == "cell-style") {
                findLeadingZeros(leaf);
                findCellStyle(leaf);
            } else if (leaf.key == "para-style") {
                findLeadingZeros(leaf);
                findParagraphStyle(leaf);
            } else if (leaf.key == "para-text") {
                findInText(leaf);
            }
        }
    }

    void findInDocument(const OutlineNode& doc, CRtfDoc& document) {
        findTinyMeasures(doc);
        findMargins(doc, document);
        findRoom(doc, document);
        const Ref<CRtfTableRows> rows = document.TableRows();
        std::int32_t position = 0;
        for (const OutlineNode* row : builtChildren(doc)) {
            findInRow(doc, *row, *rows->Item(++position), document);
        }
    }

private:
    void report(DiagnosticId id, const OutlineLeaf& leaf,
                std::initializer_list<std::string_view> arguments, Hint hint = {}) {
        engine_.report(id, source_.placeOf(leaf.text), arguments, std::move(hint));
    }

    /// A value with a "(" that ends at the first ")" while another one stands in the comment behind
    /// the leaf.
    void findCutValue(const OutlineLeaf& leaf) {
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
                           leaf.key == "para-text" ? "write \\'29 for a literal )"
                                                   : "this value cannot contain a )");
        }
    }

    void findLeadingZeros(const OutlineLeaf& leaf) {
        const std::string read = valueText(leaf.value());
        if (read != leaf.text) {
            report(DiagnosticId::LeadingZeros, leaf, {leaf.text, read});
        }
    }

    void findLostAlignment(const OutlineNode& node, const OutlineLeaf& leaf) {
        const OutlineLeaf* alignment =
            node.find(node.kind == NodeKind::Cell ? "cell-alignment" : "para-alignment");
        if (isSound(alignment)) {
            report(DiagnosticId::LostAlignment, *alignment, {leaf.key, nodeKindName(node.kind)});
        }
    }

    void findInFieldData(const OutlineLeaf& leaf) {
        findTextWarnings(leaf.text, TextUse::FieldData, styles_, source_, engine_);
        if (leaf.number) {
            report(DiagnosticId::RefusedMarkedField, leaf, {leaf.text},
                   "put a letter in front of the number: N" + std::string(leaf.text));
        }
    }

    Hint styleHint(StyleKind kind, std::string_view name) {
        if (++hints_ > mostHints) {
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
        for (int i = 1; list.count() <= mostCandidates && i <= static_cast<int>(list.count());
             ++i) {
            names.push_back(list.at(i).name);
        }
        // What was misspelt is used all the same.
        styles_->markUsed(kind, nearestWord(name, names));
        Hint hint = spellingHint(name, names);
        // Such a name cannot be written where it is meant.
        if (hint.replacement && hint.replacement->find_first_of("()<>=\r\n") != std::string::npos) {
            hint.replacement.reset();
        }
        return hint;
    }

    void findCellStyle(const OutlineLeaf& leaf) {
        const std::string name = valueText(leaf.value());
        if (!styles_ || name.empty()) {
            return;
        }
        styles_->markUsed(StyleKind::Cell, name);
        if (styles_->lacks(StyleKind::Cell, name)) {
            report(DiagnosticId::UnknownCellStyle, leaf, {name}, styleHint(StyleKind::Cell, name));
        }
    }

    void findParagraphStyle(const OutlineLeaf& leaf) {
        const std::string name = valueText(leaf.value());
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

    void findInText(const OutlineLeaf& leaf) {
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

    std::size_t startOf(const OutlineLeaf& leaf) const {
        return static_cast<std::size_t>(leaf.text.data() - source_.text().data());
    }

    /// Without a ">" that ends it, an inline style is none and stands in the text as it is written.
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
        constexpr std::size_t mostTold = 10;
        open.resize(std::min(open.size(), mostTold));
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
    void findTinyMeasures(const OutlineNode& doc) {
        for (const OutlineLeaf& leaf : doc.leaves) {
            if (!isSound(&leaf) || !leaf.number || !isTinyMeasure(leaf.key, *leaf.number)) {
                continue;
            }
            report(DiagnosticId::TinyMeasure, leaf,
                   {leaf.key, leaf.text, millimeterText(*leaf.number)},
                   tinyMeasureHint(leaf.key, *leaf.number));
            const bool isOfHeight = leaf.key == "paper-height" || leaf.key.starts_with("top-") ||
                                    leaf.key.starts_with("bottom-");
            (isOfHeight ? isHeightDoubtful_ : isWidthDoubtful_) = true;
        }
    }

    void findMargins(const OutlineNode& doc, const CRtfDoc& document) {
        const auto check = [&](std::string_view key, std::int32_t actual, DiagnosticId id) {
            const OutlineLeaf* leaf = doc.find(key);
            const bool isOfWidth = key == "left-margin" || key == "right-margin";
            const bool isDoubtful =
                key.ends_with("-margin") && (isOfWidth ? isWidthDoubtful_ : isHeightDoubtful_);
            if (isSound(leaf) && leaf->number && std::abs(*leaf->number - actual) > 0.5 &&
                !isDoubtful) {
                report(id, *leaf, {std::to_string(actual)});
                hasFallenMargin_ = hasFallenMargin_ || isOfWidth;
            }
        };
        check("left-margin", document.LeftMargin(), DiagnosticId::MarginFallback);
        check("right-margin", document.RightMargin(), DiagnosticId::MarginFallback);
        check("top-margin", document.TopMargin(), DiagnosticId::MarginFallback);
        check("bottom-margin", document.BottomMargin(), DiagnosticId::MarginFallback);
        check("page-number-start", document.PageNumberStart(), DiagnosticId::PageNumberFallback);
    }

    /// A margin is compared with the paper as it is when the margin's turn comes.
    void findRoom(const OutlineNode& doc, const CRtfDoc& document) {
        const auto check = [&](std::int64_t paper, std::int64_t margins, std::string_view direction,
                               std::initializer_list<std::string_view> keys, bool isDoubtful) {
            if (paper > margins || isDoubtful) {
                return;
            }
            std::string_view part = doc.line;
            for (const std::string_view key : keys) {
                const OutlineLeaf* leaf = doc.find(key);
                part = isSound(leaf) ? leaf->text : part;
            }
            engine_.report(DiagnosticId::NoRoom, source_.placeOf(part),
                           {std::to_string(margins), direction, std::to_string(paper)});
        };
        check(document.PageWidth(), std::int64_t{document.LeftMargin()} + document.RightMargin(),
              "wide", {"left-margin", "right-margin", "paper-width"}, isWidthDoubtful_);
        check(document.PageHeight(), std::int64_t{document.TopMargin()} + document.BottomMargin(),
              "high", {"top-margin", "bottom-margin", "paper-height"}, isHeightDoubtful_);
    }

    void findInRow(const OutlineNode& doc, const OutlineNode& node, CRtfTableRow& row,
                   const CRtfDoc& document) {
        const std::vector<OutlineNode*> nodes = builtChildren(node);
        const Ref<CRtfTableCells> cells = row.TableCells();
        if (nodes.size() > mostCells) {
            engine_.report(DiagnosticId::TooManyCells, source_.placeOf(node.line),
                           {std::to_string(nodes.size())});
        }
        findWidths(doc, node, nodes, *cells, document);
        std::int32_t position = 0;
        for (const OutlineNode* cell : nodes) {
            const bool isLast = cell == nodes.back();
            findInCell(*cell, *cells->Item(++position), document, isLast);
        }
    }

    void findWidths(const OutlineNode& doc, const OutlineNode& node,
                    const std::vector<OutlineNode*>& nodes, const CRtfTableCells& cells,
                    const CRtfDoc& document) {
        double sum = 0;
        bool allGiven = !nodes.empty();
        std::int64_t total = 0;
        std::vector<std::int32_t> widths;
        CellPercents percents;
        for (std::size_t i = 0; i < nodes.size(); ++i) {
            const OutlineLeaf* leaf = nodes[i]->find("cell-width");
            allGiven = allGiven && isSound(leaf);
            sum += isSound(leaf) ? *leaf->number : 0;
            percents.push_back(isSound(leaf) ? leaf->number : std::nullopt);
            widths.push_back(cells.Item(static_cast<std::int32_t>(i) + 1)->Width(eTwips));
            total += widths.back();
        }
        if (nodes.size() > 1 && (allGiven ? std::abs(sum - 100) > 0.5 : sum >= 100)) {
            engine_.report(DiagnosticId::WidthsSum, source_.placeOf(node.line), {numberText(sum)});
        }
        const std::int32_t room = document.TextAreaWidth();
        if (room <= 0 || isWidthDoubtful_) {
            return;
        }
        // The even widths are rounded, each cell by less than a twip.
        const auto slack = static_cast<std::int64_t>(nodes.size());
        if (total > room + slack && !toldOverrun_) {
            toldOverrun_ = true;
            engine_.report(DiagnosticId::TableOverrun, source_.placeOf(node.line),
                           {std::to_string(total), std::to_string(room)},
                           marginsHint(document, total));
        }
        const bool isMeant = nodes.empty() || (nodes.size() == 1 && percents.front());
        if (static_cast<double>(total) < room * mostUsed - static_cast<double>(slack) && !isMeant &&
            !hasFallenMargin_ && !toldUnderrun_) {
            toldUnderrun_ = true;
            engine_.report(DiagnosticId::TableUnderrun, source_.placeOf(widthLineOf(doc, node)),
                           {std::to_string(total), std::to_string(room)},
                           marginsHint(document, total));
        }
        // The page is to be made to fit the table; then it is the order of the cells that takes
        // widths away.
        const bool fits = static_cast<double>(std::abs(total - room)) <= room * (1 - mostUsed);
        const std::int32_t roomToBe = fits ? room : static_cast<std::int32_t>(total);
        bool hasHint = false;
        for (std::size_t i = 0; i < nodes.size(); ++i) {
            if (percents[i] && isOfOtherWidth(widths, i, *percents[i], room)) {
                report(DiagnosticId::WidthClamped, *nodes[i]->find("cell-width"),
                       {std::to_string(std::lround(widths[i] * 100.0 / room)),
                        nodes[i]->find("cell-width")->text},
                       std::exchange(hasHint, true) ? Hint() : orderHint(percents, roomToBe));
            }
        }
    }

    /// To try the orders takes a while; rows of one table have the same widths.
    Hint orderHint(const CellPercents& percents, std::int32_t room) {
        constexpr std::size_t mostOrders = 20;
        const auto known = orderHints_.find(percents);
        if (known != orderHints_.end() || orderHints_.size() >= mostOrders) {
            return known == orderHints_.end() ? Hint() : known->second;
        }
        return orderHints_.emplace(percents, widthOrderHint(percents, room)).first->second;
    }

    /// The value that the width between the margins comes from, or the row.
    static std::string_view widthLineOf(const OutlineNode& doc, const OutlineNode& row) {
        for (const char* key : {"paper-width", "left-margin", "right-margin"}) {
            if (const OutlineLeaf* leaf = doc.find(key); isSound(leaf)) {
                return leaf->text;
            }
        }
        return row.line;
    }

    /// Margins that leave the table its width, tried on the page.
    static Hint marginsHint(const CRtfDoc& document, std::int64_t tableWidth) {
        TrialPlatform platform;
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

    void findInCell(const OutlineNode& node, CRtfTableCell& cell, const CRtfDoc& document,
                    bool isLastOfRow) {
        const std::vector<OutlineNode*> paragraphs = builtChildren(node);
        if (styles_ && !isLastOfRow && !paragraphs.empty()) {
            findSharedNumber(*paragraphs.front());
            if (paragraphs.size() > 1) {
                findSharedNumber(*paragraphs.back());
            }
        }
        std::int32_t background = cell.BackColor();
        bool isStyleColor = false;
        if (background == eNoColor && !cell.Style().empty() && styles_) {
            background = document.getCellStyleBackColor(cell.Style());
            isStyleColor = background != eNoColor;
        }
        std::int32_t position = 0;
        for (const OutlineNode* paragraph : paragraphs) {
            const CRtfParagraph& built = *cell.Paragraphs()->Item(++position);
            const bool turnsWhite =
                isStyleColor && isDarkColor(static_cast<tColorIndex>(background));
            const std::int32_t own = turnsWhite ? eWhite : built.ForeColor();
            findContrast(*paragraph, own, background);
        }
    }

    void findSharedNumber(const OutlineNode& paragraph) {
        const OutlineLeaf* leaf = paragraph.find("para-style");
        const OutlineLeaf* text = paragraph.find("para-text");
        if (!isSound(leaf) || !text || text->text.empty()) {
            return;
        }
        const int position = styles_->find(StyleKind::Paragraph, valueText(leaf->value()));
        const StyleList& others = styles_->styles(StyleKind::Character);
        if (position > 0 && static_cast<std::size_t>(position) <= others.count()) {
            report(DiagnosticId::SharedStyleNumber, *leaf,
                   {valueText(leaf->value()), std::to_string(styleNumber(position)),
                    others.at(position).name});
        }
    }

    void findContrast(const OutlineNode& paragraph, std::int32_t own, std::int32_t background) {
        const OutlineLeaf* text = paragraph.find("para-text");
        if (!isSound(text) || text->text.empty()) {
            return;
        }
        TextColors colors = colorsBehind(formatOf(paragraph), {0, background});
        colors.text = own == eNoColor ? colors.text : own;
        std::vector<TextColors> told;
        for (const ColoredPart& part : coloredParts(text->text, colors, styles_)) {
            const bool isNew = std::find(told.begin(), told.end(), part.colors) == told.end() &&
                               told.size() < mostColorsTold;
            if (isNew && contrastOf(part.colors.text, part.colors.ground) < leastContrast) {
                told.push_back(part.colors);
                engine_.report(
                    DiagnosticId::LowContrast,
                    source_.placeOf(part.colors == colors ? text->text : part.part),
                    {textColorName(part.colors.text), backgroundName(part.colors.ground)});
            }
        }
    }

    /// The format of the style that the paragraph is written in.
    std::string formatOf(const OutlineNode& paragraph) const {
        if (!styles_ || styles_->styles(StyleKind::Paragraph).empty()) {
            return {};
        }
        const OutlineLeaf* leaf = paragraph.find("para-style");
        const std::string name = isSound(leaf) ? valueText(leaf->value()) : std::string();
        const int position = styles_->find(StyleKind::Paragraph, name);
        return styles_->styles(StyleKind::Paragraph).at(position > 0 ? position : 1).format();
    }

    KnownStyles* styles_;
    const SourceText& source_;
    DiagnosticEngine& engine_;
    bool toldOverrun_ = false;
    bool toldUnderrun_ = false;
    bool hasFallenMargin_ = false;
    // True for measures that are most likely in another unit.
    bool isWidthDoubtful_ = false;
    bool isHeightDoubtful_ = false;
    std::map<CellPercents, Hint> orderHints_;
    int hints_ = 0;
};

}  // namespace

void findDescriptionWarnings(const DescriptionOutline& outline, CRtfDoc* document,
                             KnownStyles* styles, const SourceText& source,
                             DiagnosticEngine& engine) {
    DescriptionWarnings warnings(styles, source, engine);
    for (const OutlineNode& node : outline.nodes) {
        if (!node.isOutside) {
            warnings.findInLeaves(node);
        }
    }
    if (document && outline.doc) {
        try {
            warnings.findInDocument(*outline.doc, *document);
        } catch (const RtfError&) {
            // A page of extreme measures has no widths to compare with.
        }
    }
}

}  // namespace quorvane
