#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "quorvane/base/text/TextEncoding.h"

namespace quorvane::data {

/// Which records a table shows, and how. The texts are those that `quorvane table` takes.
struct RecordsTableOptions {
    EncodingChoice encoding = EncodingChoice::Auto;
    /// One character, or "tab".
    std::optional<std::string> delimiter{};
    std::optional<std::string> columns{};
    std::optional<std::string> locale{};
    std::optional<std::string> groupBy{};
    std::optional<std::string> sort{};
    /// How many rows a document has at most.
    std::optional<std::size_t> split{};
    std::vector<std::string> totals{};
    /// What stands in the first cell of the row with the sums.
    std::string totalLabel = "Total";
    std::optional<std::size_t> limit{};
    /// Leave rows out that cannot be read.
    bool keepGoing = false;
    /// What stands before the name of an option in messages, such as "--".
    std::string optionMark = "the option ";
};

}  // namespace quorvane::data
