#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace quorvane {

/// The lines of a text. Lines end with CR LF, LF or CR. They are counted when the first number is
/// asked for.
class LineNumbers {
public:
    explicit LineNumbers(std::string_view text) : text_(text) {}

    /// The number, from 1, of the line on which a part of the text begins.
    std::int32_t lineOf(std::string_view part) {
        if (starts_.empty()) {
            findStarts();
        }
        const auto position = static_cast<std::size_t>(part.data() - text_.data());
        return static_cast<std::int32_t>(
            std::upper_bound(starts_.begin(), starts_.end(), position) - starts_.begin());
    }

private:
    void findStarts() {
        starts_.push_back(0);
        for (std::size_t at = text_.find_first_of("\r\n"); at != std::string_view::npos;
             at = text_.find_first_of("\r\n", starts_.back())) {
            starts_.push_back(at + (text_.substr(at).starts_with("\r\n") ? 2 : 1));
        }
    }

    std::string_view text_;
    std::vector<std::size_t> starts_;
};

}  // namespace quorvane
