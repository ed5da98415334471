#include "data/TableOrder.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <unordered_map>

#include "data/fieldNamed.h"
#include "data/optionLocale.h"
#include "data/sortKey.h"

namespace quorvane::data {

namespace {

std::string_view fieldAt(std::span<const std::string_view> fields, std::size_t position) {
    // A record of JSON that was read early can lack fields that came later.
    return position < fields.size() ? fields[position] : std::string_view();
}

/// The numbers of groups, in the order of their first rows.
class GroupNumbers {
public:
    void append(std::string_view group, std::string& key) {
        constexpr int byteBits = 8;
        const std::size_t number =
            numbers_.try_emplace(std::string(group), numbers_.size()).first->second;
        for (int byte = sizeof number - 1; byte >= 0; --byte) {
            key += static_cast<char>((number >> (byte * byteBits)) & 0xFFU);
        }
    }

private:
    std::unordered_map<std::string, std::size_t> numbers_;
};

struct Column {
    std::size_t field;
    SortColumn order;
};

std::vector<Column> columnsOf(const std::vector<SortRequest>& requests,
                              const std::vector<std::string>& names, bool areJson) {
    std::vector<Column> columns;
    columns.reserve(requests.size());
    for (const SortRequest& request : requests) {
        columns.push_back(
            {fieldNamed(request.name, names), SortColumn(request.isDescending, areJson)});
    }
    return columns;
}

}  // namespace

TableOrder::TableOrder(const RecordsTableOptions& options)
    : requests_(sortRequests(*options.sort)), groupBy_(options.groupBy) {
    if (options.locale) {
        locale_ = optionLocale(options.locale);
    }
    // The field of the groups comes first.
    std::stable_partition(requests_.begin(), requests_.end(),
                          [&](const SortRequest& request) { return request.name == groupBy_; });
}

void TableOrder::sort(KeptRows& rows, const std::vector<std::string>& names, bool areJson) const {
    std::vector<Column> columns = columnsOf(requests_, names, areJson);
    std::vector<std::string_view> fields;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        rows.read(i, fields);
        for (Column& column : columns) {
            column.order.look(fieldAt(fields, column.field));
        }
    }
    for (Column& column : columns) {
        column.order.decide(names[column.field], locale_ ? &*locale_ : nullptr);
    }
    const std::optional<std::size_t> group =
        groupBy_ ? std::optional(fieldNamed(*groupBy_, names)) : std::nullopt;
    const bool sortsGroups = group && columns.front().field == *group;
    GroupNumbers numbers;
    rows.sort([&](std::span<const std::string_view> row, std::string& key) {
        for (std::size_t i = 0; i < columns.size(); ++i) {
            // Also groups whose names count as the same stay apart.
            if (group && i == (sortsGroups ? 1U : 0U)) {
                numbers.append(fieldAt(row, *group), key);
            }
            columns[i].order.append(fieldAt(row, columns[i].field), key);
        }
        if (sortsGroups && columns.size() == 1) {
            numbers.append(fieldAt(row, *group), key);
        }
    });
}

}  // namespace quorvane::data
