#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

namespace quorvane {

/// Whose formats hold numbers of entries that were added to a table.
enum class TableUser {
    Document,
    StyleSheet,
    /// Texts that were rendered, and are kept elsewhere.
    Sections
};

/// How many of the first entries each user needs.
class TableUsers {
public:
    void needs(TableUser user, std::size_t count) noexcept {
        std::size_t& needed = counts_[static_cast<std::size_t>(user)];
        needed = std::max(needed, count);
    }
    /// Forgets what a user needs; returns how many entries are needed still.
    std::size_t release(TableUser user) noexcept {
        counts_[static_cast<std::size_t>(user)] = 0;
        return *std::max_element(counts_.begin(), counts_.end());
    }

private:
    std::array<std::size_t, 3> counts_{};
};

}  // namespace quorvane
