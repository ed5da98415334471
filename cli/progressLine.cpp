#include "cli/progressLine.h"

#include "cli/oneLine.h"

namespace quorvane::cli {

namespace {

bool continuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// Cuts the UTF-8 text to so many bytes, and so to no more columns, between two characters.
void cut(std::string& text, std::size_t length) {
    if (text.size() <= length) {
        return;
    }
    while (length > 0 && continuesCharacter(text[length])) {
        --length;
    }
    text.resize(length);
}

}  // namespace

std::string progressLine(std::size_t number, std::size_t count, std::string_view name,
                         std::size_t columns) {
    std::string line = std::to_string(number) +
                       (count > 0 ? "/" + std::to_string(count) : std::string()) + " " +
                       oneLine(name);
    // The last column stays free: a terminal may go to the next line once it is filled.
    cut(line, columns > 0 ? columns - 1 : 0);
    return std::string(erasedLine) + line;
}

}  // namespace quorvane::cli
