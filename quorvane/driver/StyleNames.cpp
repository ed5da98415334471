#include "quorvane/driver/StyleNames.h"

#include "quorvane/driver/LeafError.h"

namespace quorvane {

void StyleNames::require(StyleKind kind, std::string_view name) {
    std::string& known = kind == StyleKind::Cell ? knownCellStyle_ : knownParagraphStyle_;
    if (name == known || name.empty()) {
        return;
    }
    if (document_.lacksStyle(kind, name)) {
        throw LeafError(DriverFault::UndefinedStyle,
                        std::string(styleKindName(kind)).append(" style ").append(name));
    }
    known = name;
}

void StyleNames::forget() {
    knownParagraphStyle_.clear();
    knownCellStyle_.clear();
}

}  // namespace quorvane
