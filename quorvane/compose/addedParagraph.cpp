#include "quorvane/compose/addedParagraph.h"

#include "quorvane/compose/Insertion.h"

namespace quorvane {

ParagraphContent contentOf(ComposedDocument& document, const TextView& text,
                           std::string_view style) {
    document.styleNames().require(StyleKind::Paragraph, style);
    return {document.texts().rtfOf(text), style};
}

InnerParagraph& addedParagraph(InnerCell& cell, std::size_t index,
                               const ParagraphContent& content) {
    Insertion insertion(cell.paragraphs(), index);
    InnerParagraph& paragraph = insertion.element();
    paragraph.setText(content.rtf);
    if (!content.style.empty()) {
        paragraph.setStyle(content.style);
    }
    if (isDarkColor(static_cast<tColorIndex>(cell.backColor()))) {
        paragraph.fillForeColor(eWhite);
    }
    return insertion.keep();
}

}  // namespace quorvane
