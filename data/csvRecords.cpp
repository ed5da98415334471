#include "data/csvRecords.h"

#include <string>

#include "data/csvDelimiter.h"

namespace quorvane::data {

namespace {

/// Takes a line that names the delimiter, if the text begins with one.
std::optional<char> takeDelimiterLine(RecordsText& text) {
    constexpr std::string_view sign = "sep=";
    const std::string_view beginning = text.view();
    const std::size_t end = beginning.find_first_of("\r\n");
    if (!beginning.starts_with(sign) || end != sign.size() + 1) {
        return std::nullopt;
    }
    const char delimiter = beginning[sign.size()];
    text.discard(end + (beginning.substr(end).starts_with("\r\n") ? 2 : 1));
    return delimiter;
}

CsvRows rowsOf(RecordsText& text, std::optional<char> delimiter) {
    text.readMore();
    const std::optional<char> named = takeDelimiterLine(text);
    if (!delimiter) {
        delimiter = named ? named : csvDelimiter(text.view());
    }
    return CsvRows(text, *delimiter, named ? 2 : 1);
}

}  // namespace

CsvRecords::CsvRecords(RecordsText& text, std::optional<char> delimiter)
    : rows_(rowsOf(text, delimiter)) {
    std::vector<std::string_view> fields;
    rows_.next(fields);
    for (const std::string_view field : fields) {
        names_.emplace_back(field.empty() ? "Column " + std::to_string(names_.size() + 1) : field);
    }
}

bool CsvRecords::next(std::vector<std::string_view>& fields) {
    if (!rows_.next(fields)) {
        return false;
    }
    if (fields.size() != names_.size()) {
        throw RecordError(rows_.line(),
                          "The row has " + std::to_string(fields.size()) +
                              (fields.size() == 1 ? " field" : " fields") +
                              ", and the heading has " + std::to_string(names_.size()) + ".",
                          true);
    }
    return true;
}

}  // namespace quorvane::data
