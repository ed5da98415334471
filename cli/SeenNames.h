#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace quorvane::cli {

/// Remembers names by a number of 64 bits each, so that a million take 16 MB, and 24 MB while room
/// is made for more. With as many, the chance that a new name is taken for one that was seen is one
/// in 37 million.
class SeenNames {
public:
    /// Returns false for a name that was added before.
    bool add(std::string_view name);

private:
    bool put(std::uint64_t hash);
    void grow();

    std::vector<std::uint64_t> slots_ = std::vector<std::uint64_t>(1024);
    std::size_t count_ = 0;
};

}  // namespace quorvane::cli
