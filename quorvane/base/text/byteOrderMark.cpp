#include "quorvane/base/text/byteOrderMark.h"

#include "quorvane/base/text/TextEncoding.h"

namespace quorvane {

namespace {

constexpr std::string_view utf8Marks[] = {utf8Mark, "\xC3\xAF\xC2\xBB\xC2\xBF"};

}  // namespace

std::string_view afterByteOrderMark(std::string_view text) {
    for (const std::string_view mark : utf8Marks) {
        if (text.starts_with(mark)) {
            return text.substr(mark.size());
        }
    }
    return text;
}

}  // namespace quorvane
