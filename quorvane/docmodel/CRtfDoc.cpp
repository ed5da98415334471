#include "quorvane/docmodel/CRtfDoc.h"

#include <utility>

#include "quorvane/docmodel/InnerDocument.h"
#include "quorvane/docmodel/layout/pageTextRtf.h"
#include "quorvane/support/published.h"

namespace quorvane {

namespace {

std::uint8_t colorPart(std::int32_t part) {
    if (part < 0 || part > UINT8_MAX) {
        raise(RunTimeError::InvalidProcedureCall,
              "A part of a color is a number from 0 to 255, not " + std::to_string(part) + ".");
    }
    return static_cast<std::uint8_t>(part);
}

PageText pageText(std::string_view left, std::string_view center, std::string_view right) {
    for (const std::string_view part : {left, center, right}) {
        pageTextRtf(part);
    }
    return {std::string(left), std::string(center), std::string(right)};
}

}  // namespace

Ref<CRtfDoc> CRtfDoc::create(Platform& platform) {
    return Ref<CRtfDoc>(new InnerDocument(platform));
}

const std::string& CRtfDoc::Contents() {
    return published([&]() -> const std::string& { return inner(*this).contents(); });
}

bool CRtfDoc::Changed() const {
    return inner(*this).changed();
}

void CRtfDoc::setChanged(bool changed) {
    inner(*this).setChanged(changed);
}

const std::string& CRtfDoc::StyleSheetFile() const {
    return inner(*this).styleSheet_->StyleSheetFile();
}

void CRtfDoc::setStyleSheetFile(const std::string& sName) {
    published([&] { inner(*this).styleSheet_->setStyleSheetFile(sName); });
}

bool CRtfDoc::ExtendedStyleSheets() const {
    return inner(*this).styleSheet_->acceptsExtended();
}

void CRtfDoc::setExtendedStyleSheets(bool accept) {
    inner(*this).setExtendedStyleSheets(accept);
}

bool CRtfDoc::StyleSheetOk() const {
    return inner(*this).styleSheet_->StyleSheetOk();
}

std::int32_t CRtfDoc::BottomMargin() const {
    return inner(*this).format_->BottomMargin();
}

void CRtfDoc::setBottomMargin(std::int32_t twips) {
    inner(*this).format_->setBottomMargin(twips);
}

std::int32_t CRtfDoc::TopMargin() const {
    return inner(*this).format_->TopMargin();
}

void CRtfDoc::setTopMargin(std::int32_t twips) {
    inner(*this).format_->setTopMargin(twips);
}

std::int32_t CRtfDoc::LeftMargin() const {
    return inner(*this).format_->LeftMargin();
}

void CRtfDoc::setLeftMargin(std::int32_t twips) {
    inner(*this).format_->setLeftMargin(twips);
}

std::int32_t CRtfDoc::RightMargin() const {
    return inner(*this).format_->RightMargin();
}

void CRtfDoc::setRightMargin(std::int32_t twips) {
    inner(*this).format_->setRightMargin(twips);
}

std::int32_t CRtfDoc::PageNumberStart() const {
    return inner(*this).format_->PageNumberStart();
}

void CRtfDoc::setPageNumberStart(std::int32_t number) {
    inner(*this).format_->setPageNumberStart(number);
}

std::int32_t CRtfDoc::PageHeight() const {
    return inner(*this).format_->PaperHeight();
}

void CRtfDoc::setPageHeight(std::int32_t twips) {
    inner(*this).format_->setPaperHeight(twips);
}

std::int32_t CRtfDoc::PageWidth() const {
    return inner(*this).format_->PaperWidth();
}

void CRtfDoc::setPageWidth(std::int32_t twips) {
    inner(*this).format_->setPaperWidth(twips);
}

const std::vector<std::int32_t>& CRtfDoc::ColumnWidths() const {
    return inner(*this).page().columnWidths;
}

void CRtfDoc::setColumnWidths(std::vector<std::int32_t> twips) {
    published([&] {
        requireWidths(twips);
        inner(*this).set(&PageAdditions::columnWidths, std::move(twips));
    });
}

HeadingForm CRtfDoc::HeadingForm() const {
    return inner(*this).page().headingForm;
}

void CRtfDoc::setHeadingForm(quorvane::HeadingForm form) {
    published([&] { inner(*this).set(&PageAdditions::headingForm, form); });
}

bool CRtfDoc::EndsInSmallParagraph() const {
    return inner(*this).page().endsInSmallParagraph;
}

void CRtfDoc::setEndsInSmallParagraph(bool ends) {
    published([&] { inner(*this).set(&PageAdditions::endsInSmallParagraph, ends); });
}

const PageText& CRtfDoc::PageHeader() const {
    return inner(*this).page().header;
}

void CRtfDoc::setPageHeader(std::string_view left, std::string_view center,
                            std::string_view right) {
    published([&] { inner(*this).set(&PageAdditions::header, pageText(left, center, right)); });
}

const PageText& CRtfDoc::PageFooter() const {
    return inner(*this).page().footer;
}

void CRtfDoc::setPageFooter(std::string_view left, std::string_view center,
                            std::string_view right) {
    published([&] { inner(*this).set(&PageAdditions::footer, pageText(left, center, right)); });
}

tColorIndex CRtfDoc::addColor(std::int32_t red, std::int32_t green, std::int32_t blue) {
    return published([&] {
        return inner(*this).addColor({colorPart(red), colorPart(green), colorPart(blue)});
    });
}

std::int32_t CRtfDoc::addFont(std::string_view name) {
    return published([&] { return inner(*this).addFont(name); });
}

Ref<CRtfTableRows> CRtfDoc::TableRows() const {
    return inner(*this).body_.TableRows();
}

void CRtfDoc::Commit(const std::string& sPath) {
    published([&] { inner(*this).commit(sPath); });
}

void CRtfDoc::LoadStyleSheetFromMemmory(std::string_view sStyleSheet) {
    published([&] { inner(*this).styleSheet_->loadStyleSheetFromMemory(sStyleSheet); });
}

void CRtfDoc::Refresh() {
    published([&] { inner(*this).refresh(); });
}

tColorIndex CRtfDoc::getCellStyleBackColor(std::string_view sName) const {
    return static_cast<tColorIndex>(inner(*this).cellStyleColor(sName));
}

void CRtfDoc::ClearStructure() {
    published([&] { inner(*this).clearStructure(); });
}

void CRtfDoc::setAbsorbedErrorObserver(GError::Observer observer) {
    inner(*this).errors_.setObserver(std::move(observer));
}

void CRtfDoc::setLostCharacterObserver(LostCharacterObserver observer) {
    inner(*this).errors_.setLostCharacterObserver(std::move(observer));
}

std::int32_t CRtfDoc::TextAreaWidth() const {
    return published([&] { return inner(*this).TextAreaWidth(); });
}

std::string_view CRtfDoc::GetParagraphStyle(std::string_view sName) const {
    return inner(*this).GetParagraphStyle(sName);
}

std::string_view CRtfDoc::GetCharacterStyle(std::string_view sName) const {
    return inner(*this).GetCharacterStyle(sName);
}

GError& CRtfDoc::errors() noexcept {
    return inner(*this).errors_;
}

}  // namespace quorvane
