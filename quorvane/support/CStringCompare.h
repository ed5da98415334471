#pragma once

#include "quorvane/support/IStringCompare.h"

namespace quorvane {

/// Orders whole strings without regard to case.
class CStringCompare : public IStringCompare {
public:
    /// -1, 0 or 1.
    std::int32_t comp(std::string_view A, std::string_view B) const override;
};

}  // namespace quorvane
