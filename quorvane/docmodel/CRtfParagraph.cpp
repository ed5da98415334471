#include "quorvane/docmodel/CRtfParagraph.h"

#include "quorvane/docmodel/inlineStyles.h"
#include "quorvane/rtfgroups/GTextMarkedFields.h"
#include "quorvane/support/RtfError.h"
#include "quorvane/support/appendNumber.h"
#include "quorvane/support/currentError.h"

namespace quorvane {

namespace {

std::string_view alignmentWord(std::int32_t align) {
    switch (align) {
        case eCentered:
            return R"(\qc )";
        case eLeft:
            return R"(\ql )";
        case eRight:
            return R"(\qr )";
        case eJustified:
            return R"(\qj )";
        default:
            return {};
    }
}

}  // namespace

void retain(CRtfParagraph* paragraph) noexcept {
    paragraph->counts_.retain();
}

void release(CRtfParagraph* paragraph) noexcept {
    if (paragraph->counts_.release()) {
        delete paragraph;
    }
}

Ref<CRtfTableCell> CRtfParagraph::Parent() const {
    return Ref<CRtfTableCell>(parent_.get());
}

void CRtfParagraph::setText(std::string_view text) {
    clearCurrentError();
    if (!text.empty()) {
        text_ = SharedText(text);
        markChanged(document());
    }
}

void CRtfParagraph::setStyle(std::string_view sName) {
    clearCurrentError();
    TableDocument* document = this->document();
    style_ = document ? document->sharedName(sName) : SharedText(sName);
    markChanged(document);
}

void CRtfParagraph::setForeColor(tColorIndex color) {
    clearCurrentError();
    foreColor_ = color;
    markChanged(document());
}

void CRtfParagraph::asMarkedField(const Value& vFieldData) {
    clearCurrentError();
    if (!markedField_) {
        markedField_ = std::make_unique<std::string>();
    }
    try {
        *markedField_ = GTextMarkedFields::fieldData(vFieldData);
    } catch (const RtfError& error) {
        if (error.number != GTextMarkedFields::refusedDataError) {
            throw;
        }
    }
}

void CRtfParagraph::takeOver(const CRtfParagraph& old) {
    text_ = old.text_;
    style_ = old.style_;
}

TableDocument* CRtfParagraph::document() const noexcept {
    const CRtfTableCell* cell = parent_.get();
    return cell ? documentOf(*cell) : nullptr;
}

void CRtfParagraph::render(const TableDocument& document, std::size_t position,
                           std::string& rtf) const {
    if (markedField_) {
        GTextMarkedFields::appendFieldStart(*markedField_, rtf);
    }
    if (!text_.empty()) {
        rtf += position >= 2 ? "\r\n\\par\\pard\\plain\\intbl" : "\r\n\\pard\\plain\\intbl";
        rtf += document.GetParagraphStyle(style_.view());
        const std::size_t bodyStart = rtf.size();
        if (foreColor_ != eNoColor) {
            rtf += "\\cf";
            appendNumber(foreColor_, rtf);
            rtf += ' ';
        }
        rtf += alignmentWord(align_);
        rtf += text_.view();
        applyCharacterStyles(document, bodyStart, rtf);
    }
    if (markedField_) {
        GTextMarkedFields::appendFieldEnd(rtf);
    }
}

}  // namespace quorvane
