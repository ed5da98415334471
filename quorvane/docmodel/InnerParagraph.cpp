#include "quorvane/docmodel/InnerParagraph.h"

#include <utility>

#include "quorvane/docmodel/picture/renderPicture.h"
#include "quorvane/rtfgroups/GTextMarkedFields.h"

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
    InnerParagraph& self = inner(*paragraph);
    if (!self.isHeldOutside()) {
        retain(self.cell_);
    }
    ++self.references_;
}

void release(CRtfParagraph* paragraph) noexcept {
    InnerParagraph& self = inner(*paragraph);
    const bool wasHeldOutside = self.isHeldOutside();
    --self.references_;
    InnerCell* releasedCell = wasHeldOutside && !self.isHeldOutside() ? self.cell_ : nullptr;
    if (self.references_ == 0) {
        delete &self;
    }
    // Last, as it can be the end of the cell and of the paragraph with it.
    if (releasedCell) {
        release(releasedCell);
    }
}

Ref<InnerParagraph> InnerParagraph::create(InnerCell& cell) {
    void* memory = memoryOf(cell).pool.allocate(sizeof(InnerParagraph));
    return Ref<InnerParagraph>(::new (memory) InnerParagraph(cell));
}

void InnerParagraph::operator delete(InnerParagraph* paragraph, std::destroying_delete_t) noexcept {
    DocumentMemory& memory = memoryOf(*paragraph->cell_);
    if (paragraph->isMarked_) {
        memory.rareValues.erase(paragraph);
    }
    if (paragraph->hasPicture_) {
        memory.additions->pictures.erase(paragraph);
    }
    paragraph->text_.clear(memory.pool);
    paragraph->~InnerParagraph();
    memory.pool.deallocate(paragraph, sizeof(InnerParagraph));
}

void InnerParagraph::enterList() noexcept {
    isListed_ = 1;
    if (!isHeldOutside()) {
        release(cell_);
    }
}

void InnerParagraph::leaveList() noexcept {
    if (!isHeldOutside()) {
        retain(cell_);
    }
    isListed_ = 0;
}

void InnerParagraph::moveTo(InnerCell& cell) noexcept {
    InnerCell* old = std::exchange(cell_, &cell);
    if (isHeldOutside()) {
        retain(cell_);
        release(old);
    }
}

void InnerParagraph::mark(std::string fieldData) {
    memoryOf(*cell_).rareValues[this].fieldData = std::move(fieldData);
    isMarked_ = 1;
}

void InnerParagraph::takeOver(const InnerParagraph& old) {
    text_.assign(old.text_.view(), memoryOf(*cell_).pool);
    style_ = old.style_;
    if (old.hasPicture_) {
        setPicture(*old.picture());
    }
}

void InnerParagraph::setText(std::string_view text) {
    text_.assign(text, memoryOf(*cell_).pool);
}

const RtfPicture* InnerParagraph::picture() const noexcept {
    return hasPicture_ ? memoryOf(*cell_).additions->pictures.find(this) : nullptr;
}

void InnerParagraph::setPicture(std::optional<RtfPicture> picture) {
    DocumentMemory& memory = memoryOf(*cell_);
    if (picture) {
        memory.makeAdditions().pictures.set(this, std::move(*picture));
    } else if (hasPicture_) {
        memory.additions->pictures.erase(this);
    }
    hasPicture_ = picture ? 1 : 0;
}

TableDocument* InnerParagraph::document() const noexcept {
    return documentOf(*cell_);
}

void InnerParagraph::render(TableRendering& rendering, std::size_t position) const {
    TextOutput& out = rendering.out;
    if (isMarked_) {
        GTextMarkedFields::writeFieldStart(memoryOf(*cell_).rareValues.find(this)->second.fieldData,
                                           out);
    }
    if (!text_.empty() || hasPicture_) {
        if (position >= 2) {
            out << "\r\n\\par\\pard\\plain\\intbl";
        } else {
            out << "\r\n\\pard\\plain\\intbl";
        }
        if (rendering.keepsWithNext) {
            out << "\\keepn";
        }
        out << rendering.paragraphStyle(style_);
        if (foreColor_ != eNoColor) {
            out << "\\cf" << foreColor_ << " ";
        }
        out << alignmentWord(align_);
        if (hasPicture_) {
            renderPicture(*picture(), out);
        }
        const std::string_view text = text_.view();
        if (text.find('<') == std::string_view::npos) {
            out << text;
        } else {
            out << rendering.inlineStyles.replace(text);
        }
    }
    if (isMarked_) {
        GTextMarkedFields::writeFieldEnd(out);
    }
}

}  // namespace quorvane
