#include "quorvane/docmodel/CRtfParagraph.h"

#include <utility>

#include "quorvane/docmodel/InnerCell.h"
#include "quorvane/docmodel/InnerParagraph.h"
#include "quorvane/docmodel/markedFieldData.h"
#include "quorvane/support/published.h"

namespace quorvane {

Ref<CRtfTableCell> CRtfParagraph::Parent() const {
    return Ref<CRtfTableCell>(inner(*this).cell_);
}

std::string CRtfParagraph::Text() const {
    return inner(*this).text_.text();
}

void CRtfParagraph::setText(std::string_view text) {
    published([&] {
        if (!text.empty()) {
            InnerParagraph& self = inner(*this);
            TableDocument* document = self.document();
            beforeChange(document);
            self.setText(text);
            markChanged(document);
        }
    });
}

std::string CRtfParagraph::Style() const {
    return inner(*this).style_.text();
}

void CRtfParagraph::setStyle(std::string_view sName) {
    published([&] {
        InnerParagraph& self = inner(*this);
        TableDocument* document = self.document();
        beforeChange(document);
        self.style_ = document ? document->sharedName(sName) : SharedText(sName);
        markChanged(document);
    });
}

tColorIndex CRtfParagraph::ForeColor() const {
    return static_cast<tColorIndex>(inner(*this).foreColor_);
}

void CRtfParagraph::setForeColor(tColorIndex color) {
    published([&] {
        InnerParagraph& self = inner(*this);
        TableDocument* document = self.document();
        beforeChange(document);
        self.foreColor_ = color;
        markChanged(document);
    });
}

tCellAlign CRtfParagraph::Align() const {
    return static_cast<tCellAlign>(inner(*this).align_);
}

void CRtfParagraph::setAlign(tCellAlign align) {
    beforeChange(inner(*this).document());
    inner(*this).align_ = align;
}

const RtfPicture* CRtfParagraph::Picture() const {
    return inner(*this).picture();
}

void CRtfParagraph::setPicture(std::optional<RtfPicture> picture) {
    published([&] {
        InnerParagraph& self = inner(*this);
        TableDocument* document = self.document();
        beforeChange(document);
        self.setPicture(std::move(picture));
        markChanged(document);
    });
}

void CRtfParagraph::asMarkedField(const Value& vFieldData) {
    published([&] {
        InnerParagraph& self = inner(*this);
        beforeChange(self.document());
        try {
            self.mark(markedFieldData(vFieldData, self.document()));
        } catch (const RtfError&) {
            // Data of a type that is refused marks a paragraph all the same; one that was marked
            // keeps what it had.
            if (!self.isMarked_) {
                self.mark({});
            }
        }
    });
}

}  // namespace quorvane
