#pragma once

#include <string>
#include <vector>

namespace quorvane::cli {

/// What a text is escaped for.
enum class EscapeUse { Description, Model };

/// The options of `quorvane escape`. Paths are as given.
struct EscapeOptions {
    /// Standard input is read if it is not given.
    std::vector<std::string> files;
    EscapeUse use = EscapeUse::Description;
};

}  // namespace quorvane::cli
