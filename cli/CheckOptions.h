#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quorvane::cli {

/// The form in which findings are told on standard output.
enum class FindingsForm { Text, Json, Sarif };

/// What `quorvane check` was asked to do. Paths are as they were given; "-" is standard input.
struct CheckOptions {
    std::vector<std::string> files;
    std::optional<std::string> styleSheet;
    FindingsForm form = FindingsForm::Text;
    /// The name that standard input is checked and reported under.
    std::optional<std::string> stdinName;
    /// The identifier to be explained instead.
    std::optional<std::string> explained;
};

}  // namespace quorvane::cli
