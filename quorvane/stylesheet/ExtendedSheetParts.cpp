#include "quorvane/stylesheet/ExtendedSheetParts.h"

#include <algorithm>
#include <utility>

#include "quorvane/base/text/byteOrderMark.h"
#include "quorvane/base/text/trimming.h"

namespace quorvane {

using Kind = ExtendedSheetPart::Kind;

ExtendedSheetParts::ExtendedSheetParts(std::string_view text) : rest_(afterByteOrderMark(text)) {}

std::optional<ExtendedSheetPart> ExtendedSheetParts::next() {
    while (!rest_.empty() && isWhitespace(rest_.front())) {
        isLineNew_ = isLineNew_ || rest_.front() == '\r' || rest_.front() == '\n';
        rest_.remove_prefix(1);
    }
    if (rest_.empty()) {
        return std::nullopt;
    }
    const bool beginsLine = std::exchange(isLineNew_, false);
    if (rest_.front() == ';' && beginsLine) {
        return take(Kind::Comment, rest_.find_first_of("\r\n"));
    }
    if (rest_.front() == '{') {
        return takeDefinition();
    }
    return rest_.front() == '}' ? take(Kind::LoneBrace, 1)
                                : take(Kind::StrayText, rest_.find_first_of("\r\n{}"));
}

ExtendedSheetPart ExtendedSheetParts::take(Kind kind, std::size_t length) {
    const std::string_view whole = rest_.substr(0, length);
    rest_.remove_prefix(whole.size());
    return {kind, trimWhitespace(whole)};
}

ExtendedSheetPart ExtendedSheetParts::takeDefinition() {
    const std::size_t end = std::min(rest_.find_first_of("{}", 1), rest_.size());
    const std::string_view body = rest_.substr(1, end - 1);
    const bool isClosed = end < rest_.size() && rest_[end] == '}';
    ExtendedSheetPart part =
        take(isClosed ? Kind::Definition : Kind::UnclosedDefinition, isClosed ? end + 1 : end);
    part.body = body;
    return part;
}

}  // namespace quorvane
