#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace quorvane::capi {

/// The texts of one row, from arrays of pointers and lengths; see `quorvane_table_add_row`.
class RowTexts {
public:
    RowTexts(const char* const texts[], const std::size_t lengths[], std::size_t count);

    std::span<const std::string_view> cells() const { return cells_; }

private:
    std::vector<std::string_view> cells_;
};

/// The texts of many rows, one after the other; see `quorvane_table_add_rows`.
class JoinedRows {
public:
    JoinedRows(std::string_view texts, std::size_t cellsInRow, std::size_t rows);

    /// Goes to the next row; false after the last.
    bool next();
    std::span<const std::string_view> cells() const { return cells_; }

private:
    std::string_view rest_;
    std::size_t rowsLeft_;
    std::vector<std::string_view> cells_;
};

}  // namespace quorvane::capi
