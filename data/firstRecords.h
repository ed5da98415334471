#pragma once

#include <cstddef>

namespace quorvane::data {

/// The records that decide how wide columns are: so many that their widths are those of most
/// records, and so few that they take little memory.
class FirstRecords {
public:
    /// True until there are enough of them.
    bool needsMore() const noexcept { return records_ < enoughRecords && bytes_ < enoughBytes; }

    template <class Fields>
    void add(const Fields& fields) {
        ++records_;
        for (const auto& field : fields) {
            bytes_ += field.size();
        }
    }

private:
    static constexpr std::size_t enoughRecords = 1000;
    static constexpr std::size_t enoughBytes = std::size_t{1024} * 1024;

    std::size_t records_ = 0;
    std::size_t bytes_ = 0;
};

}  // namespace quorvane::data
