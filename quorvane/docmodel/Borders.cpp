#include "quorvane/docmodel/Borders.h"

#include <algorithm>

namespace quorvane {

struct Borders::Wide {
    std::uint32_t references;
    Widths widths;
};

Borders::Borders(const Borders& other) noexcept : low_(other.low_), high_(other.high_) {
    if (!isPacked()) {
        ++wide()->references;
    }
}

// Retaining before releasing is also right for an assignment to itself.
// NOLINTNEXTLINE(cert-oop54-cpp)
Borders& Borders::operator=(const Borders& other) noexcept {
    if (!other.isPacked()) {
        ++other.wide()->references;
    }
    if (!isPacked()) {
        releaseWide();
    }
    setBits(other.bits());
    return *this;
}

tBorderWidth Borders::operator[](BorderSide side) const noexcept {
    const auto index = static_cast<std::size_t>(side);
    return static_cast<tBorderWidth>(isPacked() ? unpacked(index, bits()) : wide()->widths[index]);
}

void Borders::set(BorderSide side, tBorderWidth width) {
    const auto index = static_cast<std::size_t>(side);
    if (isPacked() && fits(width)) {
        setBits((bits() & ~packed(index, -1)) | packed(index, width));
        return;
    }
    Widths changed = widths();
    changed[index] = width;
    std::uint64_t fresh = 1;
    if (std::all_of(changed.begin(), changed.end(), fits)) {
        for (std::size_t i = 0; i < changed.size(); ++i) {
            fresh |= packed(i, changed[i]);
        }
    } else {
        fresh = reinterpret_cast<std::uintptr_t>(new Wide{1, changed});
    }
    if (!isPacked()) {
        releaseWide();
    }
    setBits(fresh);
}

bool Borders::operator==(const Borders& other) const noexcept {
    return bits() == other.bits() ||
           (!isPacked() && !other.isPacked() && wide()->widths == other.wide()->widths);
}

bool Borders::fits(std::int32_t width) noexcept {
    constexpr std::int32_t limit = 1 << (bitsOfAWidth - 1);
    return width >= -limit && width < limit;
}

std::uint64_t Borders::packed(std::size_t side, std::int32_t width) noexcept {
    constexpr std::uint64_t mask = (1U << bitsOfAWidth) - 1;
    return (static_cast<std::uint64_t>(width) & mask) << shiftOf(side);
}

std::int32_t Borders::unpacked(std::size_t side, std::uint64_t bits) noexcept {
    // The width's highest bit becomes the sign.
    const auto raised = static_cast<std::uint32_t>(bits >> shiftOf(side)) << (32 - bitsOfAWidth);
    return static_cast<std::int32_t>(raised) >> (32 - bitsOfAWidth);
}

void Borders::setBits(std::uint64_t bits) noexcept {
    low_ = static_cast<std::uint32_t>(bits);
    high_ = static_cast<std::uint32_t>(bits >> 32);
}

Borders::Wide* Borders::wide() const noexcept {
    // The bits are those of a pointer that `set` put there.
    // NOLINTNEXTLINE(performance-no-int-to-ptr)
    return reinterpret_cast<Wide*>(static_cast<std::uintptr_t>(bits()));
}

Borders::Widths Borders::widths() const noexcept {
    if (!isPacked()) {
        return wide()->widths;
    }
    Widths widths{};
    for (std::size_t i = 0; i < widths.size(); ++i) {
        widths[i] = unpacked(i, bits());
    }
    return widths;
}

void Borders::releaseWide() noexcept {
    Wide* mine = wide();
    if (--mine->references == 0) {
        delete mine;
    }
}

}  // namespace quorvane
