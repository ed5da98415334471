#include "quorvane/rtfgroups/AddedColors.h"

#include <algorithm>
#include <string>

#include "quorvane/base/values/RtfError.h"

namespace quorvane {

namespace {

std::uint32_t packed(RgbColor color) {
    return std::uint32_t{color.red} << 16U | std::uint32_t{color.green} << 8U | color.blue;
}

}  // namespace

std::optional<std::int32_t> AddedColors::number(RgbColor color) const {
    for (std::int32_t number = 1; number <= CRtfGrpColorTable::colorCount; ++number) {
        if (CRtfGrpColorTable::color(number) == color) {
            return number;
        }
    }
    const auto found = numbers_.find(packed(color));
    return found == numbers_.end() ? std::nullopt : std::optional(found->second);
}

std::int32_t AddedColors::add(RgbColor color) {
    const auto number =
        CRtfGrpColorTable::colorCount + static_cast<std::int32_t>(colors_.size()) + 1;
    if (number > largestNumber) {
        raise(RunTimeError::InvalidProcedureCall,
              "A document has no more than " + std::to_string(largestNumber) + " colors.");
    }
    const auto entry = numbers_.emplace(packed(color), number).first;
    try {
        colors_.push_back(color);
    } catch (...) {
        numbers_.erase(entry);
        throw;
    }
    return number;
}

void AddedColors::use(TableUser user, std::int32_t number) noexcept {
    users_.needs(user,
                 static_cast<std::size_t>(std::max(number - CRtfGrpColorTable::colorCount, 0)));
}

void AddedColors::release(TableUser user) noexcept {
    const std::size_t needed = users_.release(user);
    colors_.resize(std::min(needed, colors_.size()));
    std::erase_if(numbers_, [needed](const auto& entry) {
        return static_cast<std::size_t>(entry.second - CRtfGrpColorTable::colorCount) > needed;
    });
}

}  // namespace quorvane
