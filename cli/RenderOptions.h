#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "cli/FailOn.h"
#include "cli/RecordRange.h"
#include "quorvane/base/text/TextEncoding.h"

namespace quorvane::cli {

/// The form in which errors are reported on standard error.
enum class ErrorForm { Text, Json };

/// The name that stands for standard input or standard output.
inline constexpr const char* standardStream = "-";

/// What the data is.
enum class DataUse {
    /// One JSON text, which each description is filled with.
    Whole,
    /// Records, each of which gets a document.
    Each,
    /// Records, all of which get one document.
    Join,
};

/// The options of `quorvane render`. Paths are as given.
struct RenderOptions {
    std::vector<std::string> descriptions;
    std::optional<std::string> styleSheet;
    /// The encoding of the descriptions and the stylesheet.
    EncodingChoice encoding = EncodingChoice::Auto;
    /// The file with the data that the descriptions, which are templates, are filled with.
    std::optional<std::string> data;
    /// The file with the JSON Schema that the data is validated with.
    std::optional<std::string> schema;
    DataUse dataUse = DataUse::Whole;
    /// Of the records, those that are used.
    RecordRange records;
    /// The file that says what became of each record.
    std::optional<std::string> report;
    /// The locale in which filters write numbers.
    std::optional<std::string> locale;
    /// Folders whose pictures descriptions may name, besides their own.
    std::vector<std::string> pictureFolders;
    /// The file that the one description goes to.
    std::optional<std::string> output;
    /// The folder that the documents go to, instead of beside their descriptions.
    std::optional<std::string> outputFolder;
    /// The output may replace a description or a stylesheet that is not an input.
    bool replacesSources = false;
    /// Create the folder that the documents go to.
    bool makesOutputFolder = false;
    /// Repair and check the descriptions before building.
    bool check = false;
    /// Write what could be built of a description that has errors.
    bool keepGoing = false;
    /// How many descriptions are rendered at a time; 0 for as many as there are processor cores.
    std::size_t jobs = 1;
    FailOn failOn = FailOn::Error;
    ErrorForm diagnostics = ErrorForm::Text;
};

}  // namespace quorvane::cli
