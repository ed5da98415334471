#pragma once

#include <cstdint>
#include <string_view>

namespace quorvane {

class InnerCell;

/// A cell, or a part of one that spans rows, where it stands in a row.
struct PlacedCell {
    enum class Part : std::uint8_t { Whole, First, Covered };

    InnerCell* cell;
    std::int32_t rightEdge;
    Part part = Part::Whole;

    /// The control word that says so in the definition of the cell.
    std::string_view word() const noexcept {
        return part == Part::First ? R"(\clvmgf)" : part == Part::Covered ? R"(\clvmrg)" : "";
    }
};

}  // namespace quorvane
