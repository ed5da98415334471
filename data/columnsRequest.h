#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/filters.h"
#include "quorvane/docmodel/enumerations.h"

namespace quorvane::data {

/// What is asked of one column of a table.
struct ColumnRequest {
    /// The field that it shows.
    std::string name;
    /// Without one, the name is the heading.
    std::optional<std::string> heading{};
    /// A width as the extended language has it; empty for one that suits the contents.
    std::string width{};
    /// Without one, numbers stand at the right.
    std::optional<tCellAlign> align{};
    std::vector<Filter> filters{};
};

/// The columns of "sku:12%,name:Article:auto,price:20%:right:money:2": fields with commas between
/// them. After the name of a field come, in any order, its heading, its width ("auto" for one that
/// suits the contents) and its alignment, and at last its filters. Quotation marks around a name or
/// a heading let it hold any character; two stand for one. Error 5 for another text; the
/// description says what to write.
std::vector<ColumnRequest> columnRequests(std::string_view text);

}  // namespace quorvane::data
