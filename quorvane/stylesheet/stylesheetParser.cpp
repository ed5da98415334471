#include "quorvane/stylesheet/stylesheetParser.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/support/recordStrings.h"

namespace quorvane {

namespace {

constexpr std::int32_t badItemError = 445;
constexpr std::int32_t unbalancedBracesError = 31037;

[[noreturn]] void raiseBadItem(const std::string& message) {
    raise(RtfError(badItemError, "Error while processing stylesheet.\r\n" + message));
}

[[noreturn]] void raiseBadKeyword(const std::string& keyword) {
    raiseBadItem(keyword + " is not a valid keyword.");
}

std::string badValue(const std::string& value, const std::string& keyword) {
    return value + " is not a valid value for " + keyword;
}

void requireBalancedBraces(std::string_view text) {
    const auto opened = std::count(text.begin(), text.end(), '{');
    const auto closed = std::count(text.begin(), text.end(), '}');
    if (opened < closed) {
        raise(RtfError(unbalancedBracesError,
                       "Error in stylesheet\r\n"
                       "Braces stack underflow: there are more } than {."));
    }
    if (opened > closed) {
        raise(RtfError(unbalancedBracesError,
                       "Error in stylesheet\r\n"
                       "Braces stack overflow: there are more { than }"));
    }
}

struct Item {
    std::string keyword;
    std::string_view value;
};

Item parseItem(std::string_view text) {
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos) {
        return {lowerCase(trimWhitespace(text)), {}};
    }
    return {lowerCase(trimWhitespace(text.substr(0, colon))), text.substr(colon + 1)};
}

std::string lowerTrimmed(std::string_view text) {
    return lowerCase(trimWhitespace(text));
}

std::vector<std::string> parseNames(const Item& item) {
    if (item.keyword != "name") {
        raiseBadKeyword(item.keyword);
    }
    std::vector<std::string> names;
    std::size_t start = 0;
    for (;;) {
        const std::size_t comma = item.value.find(',', start);
        names.push_back(lowerTrimmed(item.value.substr(start, comma - start)));
        if (comma == std::string_view::npos) {
            return names;
        }
        start = comma + 1;
    }
}

std::string parseFormat(const std::string& value) {
    if (!IsIsisFormated(value)) {
        return value;
    }
    return GetSubField(value, "v") + GetSubField(value, "f") + GetSubField(value, "p");
}

// The subfield that an item other than the first stands for.
std::string parseSubField(const Item& item) {
    const std::string value = lowerTrimmed(item.value);
    if (item.keyword == "style-def") {
        if (value != "s" && value != "cs" && value != "cell") {
            raise(RtfError(badItemError, badValue(value, item.keyword)));
        }
        return "^d" + value;
    }
    if (item.keyword == "additive") {
        if (value != "yes" && value != "no") {
            raiseBadItem(badValue(value, item.keyword));
        }
        return "^a" + value;
    }
    if (item.keyword == "format") {
        return "^f" + parseFormat(value);
    }
    if (item.keyword == "based-on") {
        return "^b" + value;
    }
    if (item.keyword == "next") {
        return "^n" + value;
    }
    raiseBadKeyword(item.keyword);
}

StyleDefinition parseDefinition(std::string_view text) {
    StyleDefinition definition;
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = std::min(text.find(';', start), text.size());
        const std::string_view part = text.substr(start, end - start);
        start = end + 1;
        if (end == text.size() && trimWhitespace(part).empty()) {
            break;
        }
        const Item item = parseItem(part);
        if (definition.names.empty()) {
            definition.names = parseNames(item);
        } else {
            definition.record += parseSubField(item);
        }
    }
    if (definition.names.empty()) {
        raiseBadKeyword({});
    }
    return definition;
}

}  // namespace

void parseStyleSheet(std::string_view text, const std::function<void(StyleDefinition)>& file) {
    requireBalancedBraces(text);
    std::size_t open = text.find('{');
    std::size_t close = text.find('}');
    while (close != std::string_view::npos) {
        // A "}" may stand before its "{": the definition is empty then.
        const std::size_t length = close > open ? close - open - 1 : 0;
        file(parseDefinition(text.substr(open + 1, length)));
        open = text.find('{', open + 1);
        close = text.find('}', close + 1);
    }
}

}  // namespace quorvane
