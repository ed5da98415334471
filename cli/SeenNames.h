#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace quorvane::cli {

/// Remembers names, and a number for each, in 12 bytes, so that a million take 24 MB, and 36 MB
/// while room is made for more. With as many, the chance that a new name is taken for one that was
/// seen is one in 37 million.
class SeenNames {
public:
    /// Adds a name with a number. Returns the number that it was added with before, if it was.
    std::optional<std::uint32_t> add(std::string_view name, std::uint32_t number);

private:
    struct Slots {
        explicit Slots(std::size_t count) : hashes(count), numbers(count) {}

        /// The slot with a hash, or a free one for it.
        std::size_t find(std::uint64_t hash) const;

        std::vector<std::uint64_t> hashes;
        std::vector<std::uint32_t> numbers;
    };

    void grow();

    Slots slots_{1024};
    std::size_t count_ = 0;
};

}  // namespace quorvane::cli
