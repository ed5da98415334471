#include "capi/rowTexts.h"

#include <algorithm>

#include "capi/arguments.h"
#include "capi/callError.h"

namespace quorvane::capi {

RowTexts::RowTexts(const char* const texts[], const std::size_t lengths[], std::size_t count) {
    if (count > 0) {
        requireArgument(texts, "texts");
    }
    cells_.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        cells_.push_back(textArgument(texts[i], lengths ? lengths[i] : QUORVANE_NUL_TERMINATED));
    }
}

JoinedRows::JoinedRows(std::string_view texts, std::size_t cellsInRow, std::size_t rows)
    : rest_(texts), rowsLeft_(rows) {
    const auto ends = static_cast<std::size_t>(std::count(texts.begin(), texts.end(), '\0'));
    // A product could be too large.
    const bool fits = cellsInRow == 0 ? ends == 0 && rows == 0
                                      : ends % cellsInRow == 0 && ends / cellsInRow == rows;
    if (!fits || (!texts.empty() && texts.back() != '\0')) {
        throw CallError("There are " + std::to_string(ends) +
                        " texts that end with a zero byte, and not " + std::to_string(rows) +
                        " rows of " + std::to_string(cellsInRow) + ".");
    }
    // Without rows nothing limits how many cells they would have.
    cells_.resize(rows == 0 ? 0 : cellsInRow);
}

bool JoinedRows::next() {
    if (rowsLeft_ == 0) {
        return false;
    }
    --rowsLeft_;
    for (std::string_view& cell : cells_) {
        const std::size_t end = rest_.find('\0');
        cell = rest_.substr(0, end);
        rest_.remove_prefix(end + 1);
    }
    return true;
}

}  // namespace quorvane::capi
