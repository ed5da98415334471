#include "quorvane/support/CIsisStringCompare.h"

#include <exception>

#include "quorvane/support/recordStrings.h"
#include "quorvane/support/textCase.h"

namespace quorvane {

std::int32_t CIsisStringCompare::comp(std::string_view A, std::string_view B) const noexcept {
    if (subField_.empty()) {
        return compareIgnoringCase(A, B);
    }
    try {
        return compareIgnoringCase(subFieldContents(A, subField_), subFieldContents(B, subField_));
    } catch (const std::exception&) {
        return 0;
    }
}

}  // namespace quorvane
