#include "quorvane/support/CStringCompare.h"

#include "quorvane/base/text/textCase.h"

namespace quorvane {

std::int32_t CStringCompare::comp(std::string_view A, std::string_view B) const {
    return compareIgnoringCase(A, B);
}

}  // namespace quorvane
