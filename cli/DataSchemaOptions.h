#pragma once

#include <optional>
#include <string>

namespace quorvane::cli {

/// The options of `quorvane data-schema`. Paths are as given; "-" is a standard stream.
struct DataSchemaOptions {
    std::string description;
    /// The file that the schema goes to; standard output if it is not given.
    std::optional<std::string> output;
};

}  // namespace quorvane::cli
