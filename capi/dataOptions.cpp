#include "capi/dataOptions.h"

#include <quorvane.h>

#include <algorithm>
#include <charconv>
#include <iterator>
#include <optional>
#include <string>

#include "capi/arguments.h"
#include "capi/callError.h"
#include "data/encodingNames.h"
#include "data/tableOptionTexts.h"

namespace quorvane::capi {

namespace {

std::optional<std::string> textOrNone(std::string_view value) {
    return value.empty() ? std::nullopt : std::optional<std::string>(value);
}

std::optional<std::string> delimiterOf(std::string_view value) {
    if (!value.empty() && !data::isDelimiter(value)) {
        throw CallError("The delimiter is one character, or \"tab\".");
    }
    return textOrNone(value);
}

EncodingChoice encodingOf(std::string_view value) {
    const auto* const named =
        std::find_if(std::begin(data::encodingNames), std::end(data::encodingNames),
                     [value](const data::NamedEncoding& each) { return each.name == value; });
    if (!value.empty() && named == std::end(data::encodingNames)) {
        throw CallError("The encoding is \"auto\", \"utf-8\" or \"windows-1252\".");
    }
    return value.empty() ? EncodingChoice::Auto : named->choice;
}

std::optional<std::size_t> countOf(std::string_view value) {
    if (!data::isRowCount(value)) {
        throw CallError("The limit is a number of rows.");
    }
    std::size_t count = 0;
    std::from_chars(value.data(), value.data() + value.size(), count);
    return value.empty() ? std::nullopt : std::optional(count);
}

}  // namespace

void setDataOption(data::RecordsTableOptions& options, int option, std::string_view value) {
    switch (option) {
        case QUORVANE_TABLE_COLUMNS:
            options.columns = textOrNone(value);
            return;
        case QUORVANE_TABLE_LOCALE:
            options.locale = textOrNone(value);
            return;
        case QUORVANE_TABLE_DELIMITER:
            options.delimiter = delimiterOf(value);
            return;
        case QUORVANE_TABLE_ENCODING:
            options.encoding = encodingOf(value);
            return;
        case QUORVANE_TABLE_SORT:
            options.sort = textOrNone(value);
            return;
        case QUORVANE_TABLE_GROUP_BY:
            options.groupBy = textOrNone(value);
            return;
        case QUORVANE_TABLE_TOTAL:
            if (value.empty()) {
                options.totals.clear();
            } else {
                options.totals.emplace_back(value);
            }
            return;
        case QUORVANE_TABLE_TOTAL_LABEL:
            options.totalLabel =
                value.empty() ? data::RecordsTableOptions().totalLabel : std::string(value);
            return;
        case QUORVANE_TABLE_LIMIT:
            options.limit = countOf(value);
            return;
        case QUORVANE_TABLE_KEEP_GOING:
            options.keepGoing = !value.empty() && choiceArgument(value, "option to keep going");
            return;
        default:
            throw CallError("The argument option is not one of its constants.");
    }
}

}  // namespace quorvane::capi
