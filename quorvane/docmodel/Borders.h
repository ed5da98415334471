#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "quorvane/docmodel/enumerations.h"

namespace quorvane {

/// The sides of a cell.
enum class BorderSide : std::size_t { Bottom, Left, Right, Top };

/// The widths of the borders of a cell or row, by side; none at first.
class Borders {
public:
    tBorderWidth operator[](BorderSide side) const {
        return static_cast<tBorderWidth>(widths_[static_cast<std::size_t>(side)]);
    }
    void set(BorderSide side, tBorderWidth width) {
        widths_[static_cast<std::size_t>(side)] = width;
    }
    bool operator==(const Borders&) const = default;

private:
    std::array<std::int32_t, 4> widths_{eNone, eNone, eNone, eNone};
};

}  // namespace quorvane
