#pragma once

#include <string_view>

namespace quorvane {

struct FilledValue;

/// A line of a text that is being read; a view of it.
struct SourceLine {
    std::string_view text;
    /// 1-based line of the original text that it stands in.
    int number = 0;
    /// True for a line that is not in the text: a repair put it in.
    bool isInserted = false;
    /// What the key on a line of a template is filled with; null for a line as it is written.
    const FilledValue* filled = nullptr;
};

}  // namespace quorvane
