#pragma once

#include <cstdint>
#include <string_view>

namespace quorvane {

/// The order that a list of strings is sorted by.
class IStringCompare {
public:
    virtual ~IStringCompare() = default;
    /// Negative, 0 or positive as `A` sorts before, equal to or after `B`.
    virtual std::int32_t comp(std::string_view A, std::string_view B) const = 0;
};

}  // namespace quorvane
