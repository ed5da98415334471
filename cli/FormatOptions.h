#pragma once

#include <optional>
#include <string>
#include <vector>

#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/formatting/formatDescription.h"

namespace quorvane::cli {

/// What `quorvane format` was asked to do. Paths are as they were given; "-" is standard input,
/// and a folder stands for the files in it.
struct FormatOptions {
    std::vector<std::string> files;
    EncodingChoice encoding = EncodingChoice::Auto;
    NameForm names = NameForm::Kept;
    /// Write the extended language.
    bool upgrade = false;
    /// The stylesheet of the descriptions that are upgraded, and is upgraded with them.
    std::optional<std::string> styleSheet = {};
    /// Only name the files that are not in their canonical form.
    bool check = false;
    /// Only show what would change.
    bool diff = false;
    /// The name that standard input is formatted and reported under.
    std::optional<std::string> stdinName;
};

}  // namespace quorvane::cli
