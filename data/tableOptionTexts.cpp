#include "data/tableOptionTexts.h"

#include <cstddef>

namespace quorvane::data {

bool isDelimiter(std::string_view text) {
    return text == "tab" || (text.size() == 1 && text[0] != '"' && text[0] != '\n' &&
                             text[0] != '\r' && (text[0] & 0x80) == 0);
}

bool isRowCount(std::string_view text) {
    constexpr std::size_t mostDigits = 18;
    return text.size() <= mostDigits &&
           text.find_first_not_of("0123456789") == std::string_view::npos;
}

}  // namespace quorvane::data
