#include "quorvane/docmodel/CRtfTableRow.h"

#include <utility>

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

const std::vector<std::int32_t>& CRtfTableRow::ColumnWidths() const {
    return inner(*this).settings().columnWidths;
}

void CRtfTableRow::setColumnWidths(std::vector<std::int32_t> twips) {
    published([&] {
        requireWidths(twips);
        inner(*this).set(&RowSettings::columnWidths, std::move(twips));
    });
}

bool CRtfTableRow::RepeatsAsHeading() const {
    return inner(*this).settings().repeatsAsHeading;
}

void CRtfTableRow::setRepeatsAsHeading(bool repeats) {
    published([&] { inner(*this).set(&RowSettings::repeatsAsHeading, repeats); });
}

bool CRtfTableRow::KeepTogether() const {
    return inner(*this).settings().keepsTogether;
}

void CRtfTableRow::setKeepTogether(bool keep) {
    published([&] { inner(*this).set(&RowSettings::keepsTogether, keep); });
}

bool CRtfTableRow::KeepWithNext() const {
    return inner(*this).settings().keepsWithNext;
}

void CRtfTableRow::setKeepWithNext(bool keep) {
    published([&] { inner(*this).set(&RowSettings::keepsWithNext, keep); });
}

bool CRtfTableRow::StartsPage() const {
    return inner(*this).settings().startsPage;
}

void CRtfTableRow::setStartsPage(bool starts) {
    published([&] { inner(*this).set(&RowSettings::startsPage, starts); });
}

}  // namespace quorvane
