#include "quorvane/diagnostics/description/CellWarnings.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "quorvane/diagnostics/text/colorContrast.h"
#include "quorvane/diagnostics/text/textColors.h"
#include "quorvane/driver/soundLeaf.h"
#include "quorvane/rtfgroups/CRtfGrpColorTable.h"
#include "quorvane/stylesheet/StyleList.h"

namespace quorvane {

namespace {

constexpr double minContrast = 3;
// Pairs of colors that are reported for one paragraph.
constexpr std::size_t maxColorsReported = 10;

/// Only the colors that every document has are known here.
bool isInTable(std::int32_t color) {
    return color <= CRtfGrpColorTable::colorCount;
}

}  // namespace

void CellWarnings::findInCell(const BuiltTable::Cell& cell,
                              std::span<const BuiltTable::Paragraph> paragraphs,
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
        const bool turnsWhite = isStyleColor && isDarkColor(static_cast<tColorIndex>(background));
        const std::int32_t own = turnsWhite ? eWhite : paragraph.element->ForeColor();
        findContrast(*paragraph.node, own, background);
    }
}

void CellWarnings::findSharedNumber(const DescriptionNode& paragraph) {
    const Leaf* leaf = soundLeaf(paragraph, DescriptionKey::ParaStyle);
    const Leaf* text = paragraph.find(DescriptionKey::ParaText);
    if (!leaf || !text || text->text.empty()) {
        return;
    }
    const int position = styles_->find(StyleKind::Paragraph, leaf->valueText());
    const StyleList& others = stylesOf(*styles_, StyleKind::Character);
    const SheetForm& form = formOf(*styles_);
    if (position > 0 && !form.isExtended && static_cast<std::size_t>(position) <= others.count()) {
        engine_.report(DiagnosticId::SharedStyleNumber, source_.placeOf(leaf->text),
                       {leaf->valueText(), std::to_string(form.paragraph.at(position)),
                        others.at(position).name});
    }
}

void CellWarnings::findContrast(const DescriptionNode& paragraph, std::int32_t own,
                                std::int32_t background) {
    const Leaf* text = soundLeaf(paragraph, DescriptionKey::ParaText);
    if (!text || text->text.empty()) {
        return;
    }
    TextColors colors = colorsAfter(formatOf(paragraph), {0, background});
    colors.text = own == eNoColor ? colors.text : own;
    std::vector<TextColors> reported;
    for (const ColoredPart& part : coloredParts(text->text, colors, styles_)) {
        const bool isNew =
            std::find(reported.begin(), reported.end(), part.colors) == reported.end() &&
            reported.size() < maxColorsReported;
        if (isNew && isInTable(part.colors.text) && isInTable(part.colors.ground) &&
            contrastOf(part.colors.text, part.colors.ground) < minContrast) {
            reported.push_back(part.colors);
            engine_.report(DiagnosticId::LowContrast,
                           source_.placeOf(part.colors == colors ? text->text : part.part),
                           {textColorName(part.colors.text), backgroundName(part.colors.ground)});
        }
    }
}

/// The format of the style that the paragraph is written in.
std::string CellWarnings::formatOf(const DescriptionNode& paragraph) const {
    if (!styles_) {
        return {};
    }
    const Leaf* leaf = soundLeaf(paragraph, DescriptionKey::ParaStyle);
    const std::string name = leaf ? leaf->valueText() : std::string();
    const int position = styles_->find(StyleKind::Paragraph, name);
    const int used = position > 0 ? position : formOf(*styles_).unknown;
    return used > 0 ? stylesOf(*styles_, StyleKind::Paragraph).at(used).format() : std::string();
}

}  // namespace quorvane
