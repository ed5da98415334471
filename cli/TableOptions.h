#pragma once

#include <optional>
#include <string>

#include "data/RecordsTableOptions.h"

namespace quorvane::cli {

/// What `quorvane table` writes.
enum class TableForm { Document, Description, StyleSheet };

/// The options of `quorvane table`. Paths are as given.
struct TableOptions : data::RecordsTableOptions {
    TableOptions() { optionMark = "--"; }

    /// The file with the data; empty only for a stylesheet.
    std::string input;
    std::optional<std::string> output;
    TableForm form = TableForm::Document;
    std::optional<std::string> styleSheet;
    std::optional<std::string> title;
    std::optional<std::string> page;
    std::optional<std::string> stripe;
    std::optional<std::string> border;
    /// Whether each group begins a page.
    bool groupPages = false;
};

}  // namespace quorvane::cli
