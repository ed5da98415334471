#include "quorvane/base/text/extendedMark.h"

#include "quorvane/base/text/byteOrderMark.h"
#include "quorvane/base/text/trimming.h"

namespace quorvane {

namespace {

constexpr std::string_view blanks = " \t";

}  // namespace

bool isMarkedExtended(std::string_view text) {
    const std::string_view whole = afterByteOrderMark(text);
    const std::string_view line =
        trimCharacters(whole.substr(0, whole.find_first_of("\r\n")), blanks);
    return line.starts_with(extendedMark.front()) &&
           trimCharacters(line.substr(1), blanks) == trimCharacters(extendedMark.substr(1), blanks);
}

}  // namespace quorvane
