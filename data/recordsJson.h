#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "data/jsonObjects.h"
#include "data/recordsSource.h"
#include "data/recordsText.h"

namespace quorvane::data {

/// The records of a JSON array of objects or of JSON Lines, see `JsonObjects`. A number is as it is
/// written, `null` is empty, and a list of single values has commas between them. A field of an
/// object in a record has the names of both: "customer.city".
class JsonRecords final : public RecordSource {
public:
    /// The text must outlive the records.
    explicit JsonRecords(RecordsText& text) : objects_(text) {}

    bool next(std::vector<std::string_view>& fields) override;
    std::int64_t line() const noexcept override { return objects_.line(); }

private:
    void parse(std::string_view object);
    bool put(const std::string& name, std::string value, std::string& error);
    std::size_t indexOf(const std::string& name);

    friend class JsonFields;

    JsonObjects objects_;
    // By the names.
    std::vector<std::string> values_;
    std::vector<bool> isThere_;
    std::unordered_map<std::string, std::size_t> indexes_;
    // Where the name of the next field probably is.
    std::size_t expected_ = 0;
};

}  // namespace quorvane::data
