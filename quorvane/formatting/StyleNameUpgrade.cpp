#include "quorvane/formatting/StyleNameUpgrade.h"

#include "quorvane/formatting/upgradeStyleSheet.h"

namespace quorvane {

StyleNameUpgrade::StyleNameUpgrade(const std::optional<std::string>& styleSheet) {
    if (styleSheet) {
        inPlaceOfNone_ = styleInPlaceOfNone(*styleSheet);
        const Upgrade upgrade = upgradedStyleSheet(*styleSheet);
        styles_.emplace(upgrade.errors.empty() ? upgrade.text : *styleSheet, TextEncoding::Utf8);
    }
}

std::string StyleNameUpgrade::nameFor(const Leaf& leaf, StyleKind kind) const {
    std::string name = leaf.valueText();
    if (!styles_ || styles_->find(kind, name) > 0) {
        return name;
    }
    return kind == StyleKind::Paragraph ? inPlaceOfNone_ : std::string();
}

}  // namespace quorvane
