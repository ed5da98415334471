#include "quorvane/compose/ComposedDocument.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "quorvane/compose/composing.h"
#include "quorvane/compose/textChecks.h"

namespace quorvane {

void retain(ComposedDocument* document) noexcept {
    document->counts_.retain();
}

void release(ComposedDocument* document) noexcept {
    if (document->counts_.release()) {
        delete document;
    }
}

void refuseHandle() {
    refuseCall("This is a handle to nothing, or a document that was moved from.");
}

ComposedDocument::ComposedDocument(Ref<CRtfDoc> document, Platform& platform)
    : document_(std::move(document)),
      platform_(platform),
      layout_(*document_),
      styleNames_(*document_),
      texts_(inner(*document_)) {
    document_->setExtendedStyleSheets(true);
}

tColorIndex ComposedDocument::numberOf(const Color& color) const {
    return color.hasParts_ ? document_->addColor(color.red_, color.green_, color.blue_)
                           : color.index_;
}

void ComposedDocument::setStyleSheet(std::string_view text, const std::string& file) {
    requireSoundStyleSheet(text, file);
    document_->LoadStyleSheetFromMemmory(text);
    styleNames_.forget();
}

void ComposedDocument::fit() {
    layout_.apply();
    inner(*document_).checkLayout();
}

void ComposedDocument::render(SinkOutput::Sink sink) {
    layout_.apply();
    SinkOutput out(std::move(sink));
    inner(*document_).renderOnce(out);
    out.flush();
}

}  // namespace quorvane
