#include "data/columnsParts.h"

#include <algorithm>
#include <cstddef>

#include "data/refuse.h"
#include "quorvane/base/values/RtfError.h"

namespace quorvane::data {

ColumnsPart ColumnsParts::takeColumn() {
    bool isQuoted = false;
    std::size_t end = 0;
    for (; end < rest_.size() && (isQuoted || rest_[end] != ','); ++end) {
        isQuoted = isQuoted != (rest_[end] == '"');
    }
    ColumnsPart part{std::string(rest_.substr(0, end))};
    rest_.remove_prefix(end);
    return part;
}

bool ColumnsParts::takeSign(char sign) {
    const bool isThere = rest_.starts_with(sign);
    rest_.remove_prefix(isThere ? 1 : 0);
    return isThere;
}

std::string_view ColumnsParts::untilSign() const {
    return rest_.substr(0, std::min(rest_.find_first_of(":,|"), rest_.size()));
}

void ColumnsParts::requireEnd() const {
    if (!rest_.empty()) {
        refuse("\"" + std::string(rest_) +
               "\" cannot stand after a quotation mark; write a comma or a colon before it.");
    }
}

ColumnsPart ColumnsParts::takeUpTo(std::string_view signs) {
    const std::size_t end = std::min(rest_.find_first_of(signs), rest_.size());
    ColumnsPart part{std::string(rest_.substr(0, end))};
    rest_.remove_prefix(end);
    return part;
}

ColumnsPart ColumnsParts::takeQuoted() {
    ColumnsPart part{{}, true};
    for (;;) {
        rest_.remove_prefix(1);
        const std::size_t end = rest_.find('"');
        if (end == std::string_view::npos) {
            refuse("A quotation mark in the columns is not closed.");
        }
        part.text += rest_.substr(0, end);
        rest_.remove_prefix(end + 1);
        if (!rest_.starts_with('"')) {
            return part;
        }
        part.text += '"';
    }
}

}  // namespace quorvane::data
