#include "data/csvRecords.h"

#include <algorithm>
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

bool isBlank(const std::vector<std::string_view>& fields) {
    return fields.size() > 1 &&
           std::all_of(fields.begin(), fields.end(), [](auto field) { return field.empty(); });
}

/// What a spreadsheet shows of a field: ="0012" is how it is told to leave digits as they are.
std::string_view shownField(std::string_view field) {
    constexpr std::string_view begin = "=\"";
    const bool isFormula =
        field.size() > begin.size() && field.starts_with(begin) && field.ends_with('"');
    const std::string_view text =
        isFormula ? field.substr(begin.size(), field.size() - begin.size() - 1) : field;
    return text.find('"') == std::string_view::npos ? text : field;
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
    nextRow(fields);
    for (const std::string_view field : fields) {
        hasHeading_.push_back(!field.empty());
        names_.emplace_back(field.empty() ? "Column " + std::to_string(names_.size() + 1) : field);
    }
}

/// The next row that is not blank.
bool CsvRecords::nextRow(std::vector<std::string_view>& fields) {
    do {
        if (!rows_.next(fields)) {
            return false;
        }
    } while (isBlank(fields));
    for (std::string_view& field : fields) {
        if (field.starts_with('=')) {
            field = shownField(field);
        }
    }
    return true;
}

bool CsvRecords::next(std::vector<std::string_view>& fields) {
    if (!nextRow(fields)) {
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
