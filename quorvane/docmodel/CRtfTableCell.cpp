#include "quorvane/docmodel/CRtfTableCell.h"

#include "quorvane/docmodel/InnerCell.h"
#include "quorvane/docmodel/InnerRow.h"
#include "quorvane/docmodel/markedFieldData.h"
#include "quorvane/support/published.h"

namespace quorvane {

namespace {

constexpr std::uint64_t bit(tColorIndex color) {
    return std::uint64_t{1} << color;
}

constexpr std::uint64_t darkColors =
    bit(eBlack) | bit(eBlue) | bit(eBrown) | bit(eDarkCyan) | bit(eDarkGray) | bit(eDarkGreen) |
    bit(eDarkMagenta) | bit(eDarkRed) | bit(eDarkSlateBlue) | bit(eDarkYellow) | bit(eDeepSkyBlue) |
    bit(eGray) | bit(eNavyBlue) | bit(eOliveGreen) | bit(ePurple) | bit(eSeaGreen) | bit(eBrick) |
    bit(eCork) | bit(eDarkCork) | bit(eGrayBlue) | bit(eDarkNavyBlue) | bit(eViolet) |
    bit(eSargassoGreen) | bit(eRoyalBlue) | bit(eDeepPurple) | bit(eSteelBlue) | bit(eAsphalt) |
    bit(eDarkGrass) | bit(eRedBrick);

}  // namespace

bool isDarkColor(tColorIndex color) noexcept {
    return color >= 0 && color < 64 && (darkColors >> color & 1U) != 0;
}

Ref<CRtfTableRow> CRtfTableCell::Parent() const {
    return Ref<CRtfTableRow>(inner(*this).parent_.get());
}

tBorderWidth CRtfTableCell::BottomBorder() const {
    return inner(*this).borders_[BorderSide::Bottom];
}

tBorderWidth CRtfTableCell::TopBorder() const {
    return inner(*this).borders_[BorderSide::Top];
}

tBorderWidth CRtfTableCell::LeftBorder() const {
    return inner(*this).borders_[BorderSide::Left];
}

tBorderWidth CRtfTableCell::RightBorder() const {
    return inner(*this).borders_[BorderSide::Right];
}

void CRtfTableCell::setBottomBorder(tBorderWidth width) {
    published([&] { inner(*this).setBorder(BorderSide::Bottom, width); });
}

void CRtfTableCell::setTopBorder(tBorderWidth width) {
    published([&] { inner(*this).setBorder(BorderSide::Top, width); });
}

void CRtfTableCell::setLeftBorder(tBorderWidth width) {
    published([&] { inner(*this).setBorder(BorderSide::Left, width); });
}

void CRtfTableCell::setRightBorder(tBorderWidth width) {
    published([&] { inner(*this).setBorder(BorderSide::Right, width); });
}

tColorIndex CRtfTableCell::BackColor() const {
    return static_cast<tColorIndex>(inner(*this).backColor());
}

void CRtfTableCell::setBackColor(tColorIndex color) {
    published([&] {
        InnerCell& self = inner(*this);
        TableDocument* document = self.document();
        if (self.backColor() != color) {
            beforeChange(document);
        }
        self.applyBackColor(document, color);
    });
}

std::int32_t CRtfTableCell::Width(tWidthUnit Units) const {
    return published([&] { return cellsOf(inner(*this).row()).widthOf(inner(*this), Units); });
}

void CRtfTableCell::setWidth(tWidthUnit Units, std::int32_t width) {
    published([&] { cellsOf(inner(*this).row()).setWidthOf(inner(*this), Units, width); });
}

Ref<CRtfParagraphs> CRtfTableCell::Paragraphs() {
    return Ref<CRtfParagraphs>(&inner(*this).paragraphs());
}

tCellAlign CRtfTableCell::Align() const {
    return static_cast<tCellAlign>(inner(*this).align());
}

void CRtfTableCell::setAlign(tCellAlign align) {
    beforeChange(inner(*this).document());
    inner(*this).setAlign(align);
}

std::string CRtfTableCell::Style() const {
    return inner(*this).style_.text();
}

void CRtfTableCell::setStyle(std::string_view sName) {
    published([&] {
        TableDocument* document = inner(*this).document();
        beforeChange(document);
        inner(*this).style_ = document ? document->sharedName(sName) : SharedText(sName);
        markChanged(document);
    });
}

std::int32_t CRtfTableCell::ColumnSpan() const {
    return inner(*this).span().columns;
}

void CRtfTableCell::setColumnSpan(std::int32_t count) {
    published([&] { inner(*this).setSpan(&CellSpan::columns, count); });
}

std::int32_t CRtfTableCell::RowSpan() const {
    return inner(*this).span().rows;
}

void CRtfTableCell::setRowSpan(std::int32_t count) {
    published([&] { inner(*this).setSpan(&CellSpan::rows, count); });
}

void CRtfTableCell::asMarkedField(const Value& vFieldData) {
    published([&] {
        beforeChange(inner(*this).document());
        try {
            inner(*this).mark(markedFieldData(vFieldData, inner(*this).document()));
        } catch (const RtfError& error) {
            if (TableDocument* document = inner(*this).document()) {
                document->errors().handleError(error, "CRtfTableCell.cls", "asMarkedField");
            }
        }
    });
}

}  // namespace quorvane
