#include "quorvane/rtfgroups/CRtfGrpDocumentFormat.h"

namespace quorvane {

namespace {

// The limit is not rounded: a margin of 12839 fits where the limit is 12839.8.
std::int32_t fittingMargin(std::int32_t twips, std::int32_t paper, std::int32_t oppositeMargin,
                           std::int32_t fallback) {
    const double limit = paper * 0.9 - oppositeMargin;
    return twips < limit && twips >= 1 ? twips : fallback;
}

}  // namespace

void CRtfGrpDocumentFormat::setBottomMargin(std::int32_t twips) {
    change(bottomMargin_, fittingMargin(twips, paperHeight_, topMargin_, 0));
}

void CRtfGrpDocumentFormat::setLeftMargin(std::int32_t twips) {
    change(leftMargin_, fittingMargin(twips, paperWidth_, rightMargin_, 1));
}

void CRtfGrpDocumentFormat::setTopMargin(std::int32_t twips) {
    change(topMargin_, fittingMargin(twips, paperHeight_, bottomMargin_, 2));
}

void CRtfGrpDocumentFormat::setRightMargin(std::int32_t twips) {
    change(rightMargin_, fittingMargin(twips, paperWidth_, leftMargin_, 3));
}

void CRtfGrpDocumentFormat::setPageNumberStart(std::int32_t number) {
    change(pageNumberStart_, number > 0 ? number : 2);
}

void CRtfGrpDocumentFormat::setPaperWidth(std::int32_t twips) {
    owner_.beforeChange();
    paperWidth_ = twips;
    owner_.markChanged();
}

void CRtfGrpDocumentFormat::setPaperHeight(std::int32_t twips) {
    owner_.beforeChange();
    paperHeight_ = twips;
    owner_.markChanged();
}

void CRtfGrpDocumentFormat::render(TextOutput& rtf) const {
    rtf << "\r\n\\deftab360\\defformat"
        << "\\margb" << bottomMargin_ << "\\margl" << leftMargin_ << "\\margt" << topMargin_
        << "\\margr" << rightMargin_ << "\\paperw" << paperWidth_ << "\\paperh" << paperHeight_
        << "\\pgnstart" << pageNumberStart_ << "\\widowctrl\r\n";
}

void CRtfGrpDocumentFormat::renderSection(TextOutput& rtf) const {
    rtf << "\r\n\\sectd\\sbkpage\\pgwsxn" << paperWidth_ << "\\pghsxn" << paperHeight_
        << "\\marglsxn" << leftMargin_ << "\\margrsxn" << rightMargin_ << "\\margtsxn" << topMargin_
        << "\\margbsxn" << bottomMargin_ << "\\pgnrestart\\pgnstarts" << pageNumberStart_ << "\r\n";
}

void CRtfGrpDocumentFormat::change(std::int32_t& setting, std::int32_t value) {
    if (setting != value) {
        owner_.beforeChange();
        setting = value;
        owner_.markChanged();
    }
}

}  // namespace quorvane
