#include "quorvane/diagnostics/fileEncoding.h"

#include <algorithm>

namespace quorvane {

namespace {

constexpr std::string_view utf16Marks[] = {"\xFF\xFE", "\xFE\xFF", "\xC3\xBF\xC3\xBE",
                                           "\xC3\xBE\xC3\xBF"};

}  // namespace

bool isUtf16(std::string_view text) {
    if (text.size() < 4) {
        return false;
    }
    const bool isMarked =
        std::any_of(std::begin(utf16Marks), std::end(utf16Marks),
                    [&](std::string_view bytes) { return text.starts_with(bytes); });
    if (isMarked) {
        return text.find('\0') != std::string_view::npos;
    }
    const bool isEvenZero = text[0] == '\0' && text[2] == '\0';
    const bool isOddZero = text[1] == '\0' && text[3] == '\0';
    return isEvenZero != isOddZero;
}

}  // namespace quorvane
