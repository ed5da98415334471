#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "quorvane/docmodel/enumerations.h"

namespace quorvane {

/// The sides of a cell.
enum class BorderSide : std::size_t { Bottom, Left, Right, Top };

/// The widths of the borders of a cell or row, by side; none at first.
///
/// Documents have millions of them: four widths of usual size take eight bytes, and only a width
/// beyond -16,384 to 16,383 makes them a counted object of their own. Copying needs no memory.
class Borders {
public:
    Borders() = default;
    Borders(const Borders& other) noexcept;
    Borders& operator=(const Borders& other) noexcept;
    ~Borders() {
        if (!isPacked()) {
            releaseWide();
        }
    }

    tBorderWidth operator[](BorderSide side) const noexcept;
    /// A failure for want of memory changes nothing.
    void set(BorderSide side, tBorderWidth width);
    bool operator==(const Borders& other) const noexcept;

private:
    using Widths = std::array<std::int32_t, 4>;
    struct Wide;

    static constexpr unsigned bitsOfAWidth = 15;
    // Four times -1, and the bit that distinguishes packed widths from an address.
    static constexpr std::uint64_t noBorders = UINT64_C(0x1FFFFFFFFFFFFFFF);

    static bool fits(std::int32_t width) noexcept;
    static std::uint64_t packed(std::size_t side, std::int32_t width) noexcept;
    static std::int32_t unpacked(std::size_t side, std::uint64_t bits) noexcept;
    static unsigned shiftOf(std::size_t side) noexcept {
        return 1 + bitsOfAWidth * static_cast<unsigned>(side);
    }

    bool isPacked() const noexcept { return (low_ & 1U) != 0; }
    std::uint64_t bits() const noexcept { return std::uint64_t{high_} << 32 | low_; }
    void setBits(std::uint64_t bits) noexcept;
    Wide* wide() const noexcept;
    Widths widths() const noexcept;
    void releaseWide() noexcept;

    // In halves, since a whole would be aligned to eight bytes.
    std::uint32_t low_ = static_cast<std::uint32_t>(noBorders);
    std::uint32_t high_ = static_cast<std::uint32_t>(noBorders >> 32);
};

}  // namespace quorvane
