#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string_view>
#include <unordered_set>

namespace quorvane::data {

/// Notices groups whose rows do not follow each other.
class GroupWatch {
public:
    /// A heading of a group begins.
    void begin(std::string_view group) {
        const std::size_t hash = std::hash<std::string_view>{}(group);
        if (hash == last_) {
            return;
        }
        last_ = hash;
        if (!areScattered_ && seen_.size() < mostGroups) {
            areScattered_ = !seen_.insert(hash).second;
        }
    }

    bool areScattered() const noexcept { return areScattered_; }

private:
    // Of more groups, only the first ones are remembered.
    static constexpr std::size_t mostGroups = 100'000;

    std::unordered_set<std::size_t> seen_;
    std::optional<std::size_t> last_;
    bool areScattered_ = false;
};

}  // namespace quorvane::data
