#include "quorvane/docmodel/CRtfParagraph.h"

#include <utility>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/docmodel/inlineStyles.h"
#include "quorvane/rtfgroups/GTextMarkedFields.h"
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
    if (!paragraph->isHeldOutside()) {
        retain(paragraph->cell_);
    }
    ++paragraph->references_;
}

void release(CRtfParagraph* paragraph) noexcept {
    const bool wasHeldOutside = paragraph->isHeldOutside();
    --paragraph->references_;
    CRtfTableCell* releasedCell =
        wasHeldOutside && !paragraph->isHeldOutside() ? paragraph->cell_ : nullptr;
    if (paragraph->references_ == 0) {
        delete paragraph;
    }
    // Last, as it can be the end of the cell and of the paragraph with it.
    if (releasedCell) {
        release(releasedCell);
    }
}

Ref<CRtfParagraph> CRtfParagraph::create(CRtfTableCell& cell) {
    void* memory = poolOf(cell).allocate(sizeof(CRtfParagraph));
    return Ref<CRtfParagraph>(::new (memory) CRtfParagraph(cell));
}

void CRtfParagraph::operator delete(CRtfParagraph* paragraph, std::destroying_delete_t) noexcept {
    MemoryPool& pool = poolOf(*paragraph->cell_);
    paragraph->text_.clear(pool);
    paragraph->~CRtfParagraph();
    pool.deallocate(paragraph, sizeof(CRtfParagraph));
}

Ref<CRtfTableCell> CRtfParagraph::Parent() const {
    return Ref<CRtfTableCell>(cell_);
}

void CRtfParagraph::setText(std::string_view text) {
    clearCurrentError();
    if (!text.empty()) {
        text_.assign(text, pool());
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
    } catch (const RtfError&) {
        // Refused are data of another type only: the paragraph keeps what it had.
    }
}

void CRtfParagraph::enterList() noexcept {
    isListed_ = 1;
    if (!isHeldOutside()) {
        release(cell_);
    }
}

void CRtfParagraph::leaveList() noexcept {
    if (!isHeldOutside()) {
        retain(cell_);
    }
    isListed_ = 0;
}

void CRtfParagraph::moveTo(CRtfTableCell& cell) noexcept {
    CRtfTableCell* old = std::exchange(cell_, &cell);
    if (isHeldOutside()) {
        retain(cell_);
        release(old);
    }
}

void CRtfParagraph::takeOver(const CRtfParagraph& old) {
    text_.assign(old.text_.view(), pool());
    style_ = old.style_;
}

TableDocument* CRtfParagraph::document() const noexcept {
    return documentOf(*cell_);
}

MemoryPool& CRtfParagraph::pool() const noexcept {
    return poolOf(*cell_);
}

void CRtfParagraph::render(TableRendering& rendering, std::size_t position) const {
    TextOutput& out = rendering.out;
    if (markedField_) {
        GTextMarkedFields::writeFieldStart(*markedField_, out);
    }
    if (!text_.empty()) {
        if (position >= 2) {
            out << "\r\n\\par\\pard\\plain\\intbl";
        } else {
            out << "\r\n\\pard\\plain\\intbl";
        }
        out << rendering.paragraphStyle(style_);
        if (foreColor_ != eNoColor) {
            out << "\\cf" << foreColor_ << " ";
        }
        out << alignmentWord(align_);
        const std::string_view text = text_.view();
        if (text.find('<') == std::string_view::npos) {
            out << text;
        } else {
            out << withCharacterStyles(rendering.document, text);
        }
    }
    if (markedField_) {
        GTextMarkedFields::writeFieldEnd(out);
    }
}

}  // namespace quorvane
