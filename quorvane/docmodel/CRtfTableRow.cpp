#include "quorvane/docmodel/CRtfTableRow.h"

#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/docmodel/InnerRow.h"
#include "quorvane/support/published.h"

namespace quorvane {

Ref<CRtfDoc> CRtfTableRow::Parent() const {
    TableDocument* document = inner(*this).parent_.get();
    return Ref<CRtfDoc>(document ? document->document() : nullptr);
}

Ref<CRtfTableCells> CRtfTableRow::TableCells() {
    return Ref<CRtfTableCells>(&inner(*this).cells());
}

tColorIndex CRtfTableRow::BackColor() const {
    return static_cast<tColorIndex>(inner(*this).backColor_);
}

void CRtfTableRow::setBackColor(tColorIndex color) {
    published([&] {
        InnerRow& self = inner(*this);
        if (self.backColor_ == color) {
            return;
        }
        beforeChange(self.parent_.get());
        for (InnerCell* cell : self.cells().list()) {
            cell->prepareBackColor(color);
        }
        self.backColor_ = color;
        TableDocument& document = required(self.parent_.get());
        for (InnerCell* cell : self.cells().list()) {
            cell->applyBackColor(&document, color);
        }
        document.markChanged();
    });
}

tBorderWidth CRtfTableRow::BottomBorder() const {
    return inner(*this).borders_[BorderSide::Bottom];
}

tBorderWidth CRtfTableRow::TopBorder() const {
    return inner(*this).borders_[BorderSide::Top];
}

tBorderWidth CRtfTableRow::LeftBorder() const {
    return inner(*this).borders_[BorderSide::Left];
}

tBorderWidth CRtfTableRow::RightBorder() const {
    return inner(*this).borders_[BorderSide::Right];
}

void CRtfTableRow::setBottomBorder(tBorderWidth width) {
    published([&] { inner(*this).setBorder(BorderSide::Bottom, width); });
}

void CRtfTableRow::setTopBorder(tBorderWidth width) {
    published([&] { inner(*this).setBorder(BorderSide::Top, width); });
}

void CRtfTableRow::setLeftBorder(tBorderWidth width) {
    published([&] { inner(*this).setBorder(BorderSide::Left, width); });
}

void CRtfTableRow::setRightBorder(tBorderWidth width) {
    published([&] { inner(*this).setBorder(BorderSide::Right, width); });
}

}  // namespace quorvane
