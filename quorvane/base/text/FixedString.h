#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace quorvane {

/// A short text within the object itself, for large tables of constants: a table of pointers to
/// texts is written to when a program starts, page by page.
template <std::size_t Capacity>
class FixedString {
public:
    constexpr FixedString() = default;
    /// A longer text does not compile.
    template <std::size_t Size>
    requires(Size - 1 <= Capacity) consteval FixedString(const char (&letters)[Size])
        : length_(Size - 1) {
        std::copy_n(letters, Size - 1, letters_);
    }

    constexpr operator std::string_view() const { return {letters_, length_}; }

private:
    static_assert(Capacity < 256);

    char letters_[Capacity] = {};
    unsigned char length_ = 0;
};

}  // namespace quorvane
