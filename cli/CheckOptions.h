#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/FailOn.h"
#include "quorvane/base/text/TextEncoding.h"

namespace quorvane::cli {

/// The form in which diagnostics are reported on standard output.
enum class ReportForm { Text, Json, Sarif };

/// What `quorvane check` was asked to do. Paths are as they were given; "-" is standard input, and
/// a folder stands for the files below it.
struct CheckOptions {
    std::vector<std::string> files;
    std::optional<std::string> styleSheet;
    /// The encoding of descriptions and stylesheets.
    EncodingChoice encoding = EncodingChoice::Auto;
    /// The JSON file that the descriptions, which are templates, are filled with.
    std::optional<std::string> data;
    /// The file with the JSON Schema that the data is validated with.
    std::optional<std::string> schema;
    /// The locale in which filters write numbers.
    std::optional<std::string> locale;
    /// Folders whose pictures descriptions may name, besides their own.
    std::vector<std::string> pictureFolders;
    ReportForm form = ReportForm::Text;
    /// Identifiers of diagnostics to leave out, and of those to report that are off by default.
    std::vector<std::string> ignored;
    std::vector<std::string> enabled;
    FailOn failOn = FailOn::Warning;
    /// No summary.
    bool isQuiet = false;
    /// Makes the fixes that diagnostics carry.
    bool fixes = false;
    /// Shows what the fixes would change, without applying them.
    bool showsDiff = false;
    /// The name that standard input is checked and reported under.
    std::optional<std::string> stdinName;
    /// The identifier to be explained instead.
    std::optional<std::string> explained;
    /// Lists the diagnostics instead.
    bool lists = false;
};

}  // namespace quorvane::cli
