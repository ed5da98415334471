#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quorvane {

/// The lines of an upgraded text, each of which knows the line that it was made of.
class UpgradedLines {
public:
    explicit UpgradedLines(std::string_view lineEnd) : lineEnd_(lineEnd) {}

    /// Adds a line, or several ones with LF between them. `origin` is 1-based.
    void add(std::string_view text, int origin);

    const std::string& text() const { return text_; }
    /// The line of which that line was made; both are 1-based. A line after the last one counts as
    /// the last one.
    int originOf(std::int64_t line) const {
        return origins_[std::min(static_cast<std::size_t>(line), origins_.size()) - 1];
    }

private:
    std::string_view lineEnd_;
    std::string text_;
    std::vector<int> origins_;
};

}  // namespace quorvane
