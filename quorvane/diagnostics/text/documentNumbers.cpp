#include "quorvane/diagnostics/text/documentNumbers.h"

#include "quorvane/rtfgroups/CRtfGrpColorTable.h"
#include "quorvane/rtfgroups/CRtfGrpFontTable.h"
#include "quorvane/stylesheet/StyleList.h"

namespace quorvane {

namespace {

bool isStyleMissing(int number, const KnownStyles* styles, StyleKind kind) {
    if (number == 0 && kind == StyleKind::Paragraph) {
        return false;
    }
    if (!styles) {
        return false;
    }
    const SheetForm& form = formOf(*styles);
    const int first = (kind == StyleKind::Paragraph ? form.paragraph : form.character).first;
    return number < first || number >= first + static_cast<int>(stylesOf(*styles, kind).count());
}

}  // namespace

std::string_view missingReference(const RtfWord& word, const RtfControl& control,
                                  const KnownStyles* styles) {
    const int number = control.number.value_or(0);
    if (word.role == RtfRole::Font) {
        return number < 0 || number >= CRtfGrpFontTable::fontCount ? "font" : "";
    }
    if (namesColor(word.role)) {
        return number < 0 || number > CRtfGrpColorTable::colorCount ? "color" : "";
    }
    if (word.role == RtfRole::ParagraphStyle || word.role == RtfRole::CharacterStyle) {
        const StyleKind kind =
            word.role == RtfRole::ParagraphStyle ? StyleKind::Paragraph : StyleKind::Character;
        return isStyleMissing(number, styles, kind) ? "style" : "";
    }
    return namesStyle(word.role) ? "style" : "";
}

}  // namespace quorvane
