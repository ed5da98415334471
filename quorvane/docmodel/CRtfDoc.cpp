#include "quorvane/docmodel/CRtfDoc.h"

#include <functional>
#include <utility>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/docmodel/measures.h"
#include "quorvane/support/GFileSystem.h"
#include "quorvane/support/currentError.h"

namespace quorvane {

namespace {

constexpr const char* moduleName = "CRtfDoc.cls";

std::string lockedFileMessage(const std::string& path) {
    return "Error accessing " + path +
           ". The file seems to be opened with exclusive rights by some other application (maybe "
           "MS Word) and Quorvane can't modify it.  Use a diferent file name or close it.";
}

}  // namespace

void retain(CRtfDoc* document) noexcept {
    document->counts_.retain();
}

void release(CRtfDoc* document) noexcept {
    document->counts_.release(static_cast<TableDocument*>(document));
}

Ref<CRtfDoc> CRtfDoc::create(Platform& platform) {
    return Ref<CRtfDoc>(new CRtfDoc(platform));
}

CRtfDoc::CRtfDoc(Platform& platform)
    : errors_(platform), styleSheet_(std::make_unique<CRtfGrpStyleSheetTable>(*this, platform)) {
    initAllGroups();
}

const std::string& CRtfDoc::Contents() {
    clearCurrentError();
    refresh("Contents");
    return contents_;
}

void CRtfDoc::setStyleSheetFile(const std::string& sName) {
    clearCurrentError();
    styleSheet_->setStyleSheetFile(sName);
}

void CRtfDoc::Commit(const std::string& sPath) {
    clearCurrentError();
    if (!refresh("Commit")) {
        return;
    }
    if (GFileSystem::saveStringToFile(errors_, sPath, contents_, false)) {
        return;
    }
    const RtfError* current = currentError();
    if (!current) {
        // The thread cannot keep an error. The error module already has this one.
        return;
    }
    const RtfError failure = *current;
    if (failure.is(RunTimeError::PathFileAccessError)) {
        RtfError locked(failure.number, lockedFileMessage(sPath));
        locked.cause = failure.cause;
        raise(std::move(locked));
    }
    errors_.handleError(failure, moduleName, "Commit");
}

void CRtfDoc::LoadStyleSheetFromMemmory(std::string_view sStyleSheet) {
    clearCurrentError();
    styleSheet_->loadStyleSheetFromMemory(sStyleSheet);
}

void CRtfDoc::Refresh() {
    clearCurrentError();
    changed_ = true;
    refresh("Refresh");
}

bool CRtfDoc::refresh(const char* procedure) {
    return !changed_ || errors_.absorbing(moduleName, procedure, [this] { render(); });
}

void CRtfDoc::render() {
    std::string rtf;
    if (!styleSheet_->CharacterWordsHoldTokens()) {
        // Only words that hold tokens can make a text endless. Without them the stale text makes
        // room: its memory serves the new one. Should rendering fail for want of memory, the
        // document still counts as changed.
        rtf = std::move(contents_);
        contents_ = "{}";
    }
    rtf.assign(1, '{');
    header_.render(rtf);
    fontTable_.render(rtf);
    colorTable_.render(rtf);
    styleSheet_->render(rtf);
    format_->render(rtf);
    body_.render(rtf);
    rtf += '}';
    contents_ = std::move(rtf);
    changed_ = false;
}

tColorIndex CRtfDoc::getCellStyleBackColor(std::string_view sName) const {
    return static_cast<tColorIndex>(cellStyleColor(sName));
}

void CRtfDoc::ClearStructure() {
    clearCurrentError();
    initAllGroups();
}

void CRtfDoc::setAbsorbedErrorObserver(GError::Observer observer) {
    errors_.setObserver(std::move(observer));
}

std::int32_t CRtfDoc::TextAreaWidth() const {
    return difference(difference(format_->PaperWidth(), format_->RightMargin()),
                      format_->LeftMargin());
}

std::string_view CRtfDoc::GetParagraphStyle(std::string_view sName) const {
    const std::string_view words = styleSheet_->GetParagraphStyle(sName);
    return words.empty() ? std::string_view(" ") : words;
}

std::string_view CRtfDoc::GetCharacterStyle(std::string_view sName) const {
    return styleSheet_->GetCharacterStyle(sName);
}

// The fixed groups hold nothing that could change, and the stylesheet stays: only page and table
// begin anew.
void CRtfDoc::initAllGroups() {
    auto format = std::make_unique<CRtfGrpDocumentFormat>(*this);
    body_ = CRtfGrpBody<CRtfTableRows>(Ref<CRtfTableRows>(new CRtfTableRows(*this)));
    format_ = std::move(format);
}

void CRtfDoc::letGo() noexcept {
    body_.destroy();
    format_.reset();
    styleSheet_.reset();
    contents_ = {};
    names_ = {};
    errors_.setObserver({});
}

std::int32_t CRtfDoc::cellStyleColor(std::string_view sName) const {
    return styleSheet_->getCellStyleBackColor(sName);
}

SharedText CRtfDoc::sharedName(std::string_view sName) {
    SharedText& kept = names_[std::hash<std::string_view>{}(sName) % names_.size()];
    if (kept.view() != sName) {
        kept = SharedText(sName);
    }
    return kept;
}

}  // namespace quorvane
