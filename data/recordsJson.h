#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "data/recordsSource.h"
#include "data/recordsText.h"

namespace quorvane::data {

/// The records of a JSON array of objects, or of objects one after the other (JSON Lines). A number
/// is as it is written, `null` is empty, and a list of single values has commas between them. A
/// field of an object in a record has the names of both: "customer.city".
class JsonRecords final : public RecordSource {
public:
    /// The text must outlive the records.
    explicit JsonRecords(RecordsText& text) : text_(text) {}

    bool next(std::vector<std::string_view>& fields) override;
    std::int64_t line() const noexcept override { return line_; }

private:
    enum class Form : std::uint8_t { Unknown, Array, Objects, Ended };

    bool isAtEnd();
    bool skipBlanks();
    void takeBeginning();
    bool takeSeparator();
    void endArray();
    std::string_view takeObject();
    void parse(std::string_view object);
    bool put(const std::string& name, std::string value, std::string& error);
    std::size_t indexOf(const std::string& name);
    [[noreturn]] void refuse(const std::string& why);

    friend class JsonFields;

    RecordsText& text_;
    Form form_ = Form::Unknown;
    std::size_t at_ = 0;
    std::int64_t line_ = 1;
    std::int64_t nextLine_ = 1;
    bool hasRecords_ = false;
    // By the names.
    std::vector<std::string> values_;
    std::vector<bool> isThere_;
    std::unordered_map<std::string, std::size_t> indexes_;
    // Where the name of the next field probably is.
    std::size_t expected_ = 0;
};

}  // namespace quorvane::data
