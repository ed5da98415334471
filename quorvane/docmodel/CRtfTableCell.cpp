#include "quorvane/docmodel/CRtfTableCell.h"

#include "quorvane/base/values/RtfError.h"
#include "quorvane/rtfgroups/GTextMarkedFields.h"
#include "quorvane/support/currentError.h"

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

void retain(CRtfTableCell* cell) noexcept {
    cell->counts_.retain();
}

void release(CRtfTableCell* cell) noexcept {
    if (cell->counts_.release()) {
        delete cell;
    }
}

void retain(CRtfParagraphs* paragraphs) noexcept {
    retain(&paragraphs->cell_);
}

void release(CRtfParagraphs* paragraphs) noexcept {
    release(&paragraphs->cell_);
}

TableDocument* documentOf(const CRtfTableCell& cell) noexcept {
    return cell.document();
}

MemoryPool& poolOf(const CRtfTableCell& cell) noexcept {
    return poolOf(*cell.parent_.memory());
}

Ref<CRtfTableCell> CRtfTableCell::create(CRtfTableRow& row) {
    void* memory = poolOf(row).allocate(sizeof(CRtfTableCell));
    return Ref<CRtfTableCell>(::new (memory) CRtfTableCell(row));
}

void CRtfTableCell::operator delete(CRtfTableCell* cell, std::destroying_delete_t) noexcept {
    const WeakRef<CRtfTableRow> row = cell->parent_;
    cell->~CRtfTableCell();
    poolOf(*row.memory()).deallocate(cell, sizeof(CRtfTableCell));
}

Ref<CRtfTableRow> CRtfTableCell::Parent() const {
    return Ref<CRtfTableRow>(parent_.get());
}

TableDocument* CRtfTableCell::document() const noexcept {
    const CRtfTableRow* row = parent_.get();
    return row ? documentOf(*row) : nullptr;
}

CRtfTableRow& CRtfTableCell::row() const {
    CRtfTableRow* row = parent_.get();
    if (!row) {
        raise(RunTimeError::ObjectNotSet);
    }
    return *row;
}

void CRtfTableCell::takeOver(CRtfTableCell& old) {
    backColor_ = old.backColor_;
    borders_ = old.borders_;
    rightEdge_ = old.rightEdge_;
    edgeSpread_ = old.edgeSpread_;
    paragraphs_.takeFrom(old.paragraphs_);
}

void CRtfTableCell::setBorder(BorderSide side, tBorderWidth width) {
    clearCurrentError();
    if (borders_[side] != width) {
        borders_.set(side, width);
        markChanged(document());
    }
}

void CRtfTableCell::setBackColor(tColorIndex color) {
    clearCurrentError();
    applyBackColor(document(), color);
}

void CRtfTableCell::applyBackColor(TableDocument* document, tColorIndex color) {
    if (backColor_ == color) {
        return;
    }
    backColor_ = color;
    if (isDarkColor(color)) {
        paragraphs_.setForeColors(eWhite);
    }
    markChanged(document);
}

std::int32_t CRtfTableCell::Width(tWidthUnit Units) const {
    clearCurrentError();
    return cellWidth(row(), *this, Units);
}

void CRtfTableCell::setWidth(tWidthUnit Units, std::int32_t width) {
    clearCurrentError();
    setCellWidth(row(), *this, Units, width);
}

void CRtfTableCell::setStyle(std::string_view sName) {
    clearCurrentError();
    TableDocument* document = this->document();
    style_ = document ? document->sharedName(sName) : SharedText(sName);
    markChanged(document);
}

void CRtfTableCell::asMarkedField(const Value& vFieldData) {
    clearCurrentError();
    try {
        markedField_ = std::make_unique<std::string>(GTextMarkedFields::fieldData(vFieldData));
    } catch (const RtfError& error) {
        if (TableDocument* document = this->document()) {
            document->errors().handleError(error, "CRtfTableCell.cls", "asMarkedField");
        }
    }
}

void CRtfTableCell::renderDefinition(TableRendering& rendering, std::int32_t rightEdge) {
    TextOutput& out = rendering.out;
    out << rendering.borderText(borders_);
    if (backColor_ != eNoColor || !style_.empty()) {
        if (backColor_ == eNoColor) {
            applyBackColor(
                &rendering.document,
                static_cast<tColorIndex>(rendering.document.cellStyleColor(style_.view())));
        }
        out << "\\clcbpat" << backColor_;
    }
    out << "\\cellx" << rightEdge;
}

void CRtfTableCell::renderContent(TableRendering& rendering) {
    if (align_ != eNoDefault) {
        paragraphs_.setAligns(Align());
    }
    if (markedField_) {
        GTextMarkedFields::writeFieldStart(*markedField_, rendering.out);
    }
    rendering.out << "\r\n";
    paragraphs_.render(rendering);
    if (markedField_) {
        GTextMarkedFields::writeFieldEnd(rendering.out);
    }
}

}  // namespace quorvane
