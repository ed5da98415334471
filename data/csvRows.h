#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "data/recordsText.h"

namespace quorvane::data {

/// The rows of a text whose fields have a delimiter between them. A field between quotation marks
/// can hold delimiters and line breaks, and two quotation marks for one. Rows end with LF, CR or
/// both; blank lines are no rows.
class CsvRows {
public:
    /// The text must outlive the rows. Its beginning has that line number.
    CsvRows(RecordsText& text, char delimiter, std::int64_t firstLine = 1);

    /// Reads the next row; false at the end. The fields are good until the next call. A
    /// `RecordError` for a row that cannot be read.
    bool next(std::vector<std::string_view>& fields);

    /// The line where the row begins that was read last, from 1.
    std::int64_t line() const noexcept { return line_; }

private:
    /// A field by its place in the text, which may move.
    struct Place {
        std::size_t begin;
        std::size_t end;
    };

    bool isAtEnd();
    void makeRoom();
    void skipLineEnds();
    void readRow();
    void readField();
    void readPlain();
    void readQuoted();
    bool takeQuoted(std::size_t& end);
    void takeLineEnd();
    void skipLine();
    void requireLength();
    void requireFields();
    [[noreturn]] void refuse(const char* why, bool canGoOn);

    RecordsText& text_;
    char delimiter_;
    // True for the characters that end a field without quotation marks.
    std::array<bool, 256> endsField_{};
    std::size_t rowBegin_ = 0;
    std::size_t at_ = 0;
    std::vector<Place> places_;
    std::int64_t line_ = 0;
    std::int64_t nextLine_;
    bool isBroken_ = false;
};

}  // namespace quorvane::data
