#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "quorvane/base/text/TextEncoding.h"

namespace quorvane::cli {

/// What `quorvane table` writes.
enum class TableForm { Document, Description, StyleSheet };

/// The options of `quorvane table`. Paths are as given.
struct TableOptions {
    /// The file with the data; empty only for a stylesheet.
    std::string input;
    std::optional<std::string> output;
    TableForm form = TableForm::Document;
    std::optional<std::string> styleSheet;
    EncodingChoice encoding = EncodingChoice::Auto;
    /// One character.
    std::optional<std::string> delimiter;
    std::optional<std::string> columns;
    std::optional<std::string> locale;
    std::optional<std::string> title;
    std::optional<std::string> page;
    std::optional<std::string> stripe;
    std::optional<std::string> border;
    std::optional<std::string> groupBy;
    /// Whether each group begins a page.
    bool groupPages = false;
    std::optional<std::string> sort;
    /// How many rows a document has at most.
    std::optional<std::size_t> split;
    std::vector<std::string> totals;
    /// What stands in the first cell of the row with the sums.
    std::string totalLabel = "Total";
    std::optional<std::size_t> limit;
    /// Leave rows out that cannot be read.
    bool keepGoing = false;
};

}  // namespace quorvane::cli
