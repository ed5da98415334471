#include "quorvane/formatting/ParagraphStyleUpgrade.h"

#include "quorvane/formatting/upgradeStyleSheet.h"

namespace quorvane {

ParagraphStyleUpgrade::ParagraphStyleUpgrade(const std::optional<std::string>& styleSheet) {
    if (styleSheet) {
        first_ = styleInPlaceOfNone(*styleSheet);
        styles_.emplace(*styleSheet);
    }
}

std::string ParagraphStyleUpgrade::styleFor(const DescriptionNode& paragraph) const {
    if (first_.empty()) {
        return {};
    }
    const Leaf* const own = paragraph.find(DescriptionKey::ParaStyle);
    const bool isKnown = own && styles_->find(StyleKind::Paragraph, own->valueText()) > 0;
    return isKnown ? std::string() : first_;
}

}  // namespace quorvane
