#pragma once

#include <string>

namespace quorvane {

/// A line of a text that is being read.
struct SourceLine {
    std::string text;
    /// 1-based line of the original text that it stands in.
    int number = 0;
};

}  // namespace quorvane
