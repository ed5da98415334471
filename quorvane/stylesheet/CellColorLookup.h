#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "quorvane/stylesheet/StyleList.h"
#include "quorvane/stylesheet/StylePositions.h"

namespace quorvane {

/// The colors of the cell styles of a list, ready for rendering.
class CellColorLookup {
public:
    CellColorLookup() = default;
    /// `numberOf` gives the number of the color that a format names.
    CellColorLookup(const StyleList& styles,
                    const std::function<std::int32_t(const std::string&)>& numberOf);

    /// Number in the color table of the color that the style has as its format; 0 for a name that
    /// the list does not have and for a format that does not name a color.
    std::int32_t find(const StyleList& styles, std::string_view name) const;

    bool keepsNames() const noexcept { return positions_.areKept(); }

private:
    StylePositions positions_;
    std::vector<std::int32_t> colors_;
};

}  // namespace quorvane
