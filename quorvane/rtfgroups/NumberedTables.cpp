#include "quorvane/rtfgroups/NumberedTables.h"

#include <optional>

#include "quorvane/base/text/textCase.h"
#include "quorvane/rtfgroups/CRtfGrpFontTable.h"

namespace quorvane {

std::int32_t NumberedTables::colorNumber(const RgbColor& color) {
    for (std::int32_t number = 1; number <= CRtfGrpColorTable::colorCount; ++number) {
        if (CRtfGrpColorTable::color(number) == color) {
            return number;
        }
    }
    const std::uint32_t key = color.red << 16U | color.green << 8U | color.blue;
    const auto known = colorNumbers_.find(key);
    if (known != colorNumbers_.end()) {
        return known->second;
    }
    colors_.push_back(color);
    const auto number = CRtfGrpColorTable::colorCount + static_cast<std::int32_t>(colors_.size());
    colorNumbers_.emplace(key, number);
    return number;
}

std::int32_t NumberedTables::fontNumber(const std::string& name) {
    if (const std::optional<std::int32_t> number = CRtfGrpFontTable::fontNumberOfName(name)) {
        return *number;
    }
    const std::string key = lowerCase(name);
    const auto known = fontNumbers_.find(key);
    if (known != fontNumbers_.end()) {
        return known->second;
    }
    fonts_.push_back(name);
    const auto number = CRtfGrpFontTable::fontCount + static_cast<std::int32_t>(fonts_.size()) - 1;
    fontNumbers_.emplace(key, number);
    return number;
}

}  // namespace quorvane
