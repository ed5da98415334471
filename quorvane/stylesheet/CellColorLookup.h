#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "quorvane/stylesheet/StyleList.h"
#include "quorvane/stylesheet/StylePositions.h"

namespace quorvane {

/// The colors of the cell styles of a list, ready for rendering.
class CellColorLookup {
public:
    CellColorLookup() = default;
    explicit CellColorLookup(const StyleList& styles);

    /// Number in the color table of the color that the style has as its format; 0 for a name that
    /// the list does not have and for a format that does not name a color.
    std::int32_t find(const StyleList& styles, std::string_view name) const;

    bool keepsNames() const noexcept { return positions_.areKept(); }

private:
    StylePositions positions_;
    std::vector<std::int32_t> colors_;
};

}  // namespace quorvane
