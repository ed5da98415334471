#include "quorvane/stylesheet/stylesheetParser.h"

#include <cstdint>
#include <optional>
#include <utility>

#include "quorvane/base/text/textCase.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/stylesheet/stylesheetSyntax.h"
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

[[noreturn]] void raiseBadValue(const std::string& value, const std::string& keyword) {
    const std::string message = value + " is not a valid value for " + keyword;
    if (keyword == "style-def") {
        // The message of this keyword alone has no heading.
        raise(RtfError(badItemError, message));
    }
    raiseBadItem(message);
}

void requireBalancedBraces(std::string_view text) {
    const auto [opened, closed] = countBraces(text);
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

std::vector<std::string> parseNames(const StyleItem& item) {
    if (faultOfFirst(item) != StyleItemFault::None) {
        raiseBadKeyword(item.keyword);
    }
    std::vector<std::string> names;
    for (const std::string_view name : styleNamesIn(item.value)) {
        names.push_back(lowerCase(name));
    }
    return names;
}

std::string parseFormat(const std::string& value) {
    return IsIsisFormated(value) ? subFieldContents(value, "vfp") : value;
}

// The subfield for an item other than the first.
std::string parseSubField(const StyleItem& item) {
    const std::string value = lowerCase(item.value);
    switch (faultOf(item, value)) {
        case StyleItemFault::Keyword:
            raiseBadKeyword(item.keyword);
        case StyleItemFault::Value:
            raiseBadValue(value, item.keyword);
        case StyleItemFault::None:
            break;
    }
    return std::string{'^', item.known->subField} +
           (item.keyword == "format" ? parseFormat(value) : value);
}

StyleDefinition parseDefinition(std::string_view body) {
    StyleItems items(body);
    const StyleItem* const first = items.next();
    if (!first) {
        raiseBadKeyword({});
    }
    StyleDefinition definition{parseNames(*first), {}};
    while (const StyleItem* const item = items.next()) {
        definition.record += parseSubField(*item);
    }
    return definition;
}

}  // namespace

void parseStyleSheet(std::string_view text, const std::function<void(StyleDefinition)>& file) {
    requireBalancedBraces(text);
    BracedTexts definitions(text);
    while (const std::optional<BracedText> definition = definitions.next()) {
        file(parseDefinition(definition->body));
    }
}

}  // namespace quorvane
