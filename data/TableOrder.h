#pragma once

#include <optional>
#include <string>
#include <vector>

#include "data/RecordsTableOptions.h"
#include "data/keptRows.h"
#include "data/locale.h"
#include "data/sortRequest.h"

namespace quorvane::data {

/// The order that the option `sort` asks for. The rows of a group stay together: the groups are in
/// the order of their first rows, or in that of their own field if it is among those to sort by.
class TableOrder {
public:
    /// The options have `sort`. Error 5 if it is wrong; an `OptionError` for a wrong locale.
    explicit TableOrder(const RecordsTableOptions& options);

    /// Error 5 for a field that is not there, and for one whose values can be read in two ways.
    void sort(KeptRows& rows, const std::vector<std::string>& names, bool areJson) const;

private:
    std::vector<SortRequest> requests_;
    std::optional<std::string> groupBy_;
    std::optional<Locale> locale_;
};

}  // namespace quorvane::data
