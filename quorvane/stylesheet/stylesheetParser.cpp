#include "quorvane/stylesheet/stylesheetParser.h"

#include <optional>
#include <utility>

#include "quorvane/base/text/textCase.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/stylesheet/styleSheetErrorTable.h"
#include "quorvane/stylesheet/stylesheetSyntax.h"
#include "quorvane/support/recordStrings.h"

namespace quorvane {

namespace {

[[noreturn]] void raiseFault(StyleSheetFault fault, std::string_view argument = {}) {
    const StyleSheetErrorRow& row = styleSheetErrorRow(fault);
    raise(RtfError(row.number, ReplaceString(row.text, "{0}", argument)));
}

std::vector<std::string> parseNames(const StyleItem& item) {
    if (const auto fault = faultOfFirst(item)) {
        raiseFault(*fault, item.keyword);
    }
    std::vector<std::string> names;
    for (const std::string_view name : styleNamesIn(item.value)) {
        names.push_back(lowerCase(name));
    }
    return names;
}

std::string parseFormat(const std::string& value) {
    return IsIsisFormated(value) ? subFieldContents(value, formatSubFields) : value;
}

// The subfield for an item other than the first.
std::string parseSubField(const StyleItem& item) {
    const std::string value = lowerCase(item.value);
    if (const auto fault = faultOf(item, value)) {
        raiseFault(*fault, item.known ? value : item.keyword);
    }
    return "^" + std::string(item.known->subField) +
           (item.is(formatKeyword) ? parseFormat(value) : value);
}

StyleDefinition parseDefinition(std::string_view body) {
    StyleItems items(body);
    const StyleItem* const first = items.next();
    if (!first) {
        raiseFault(StyleSheetFault::BadKeyword);
    }
    StyleDefinition definition{parseNames(*first), {}};
    while (const StyleItem* const item = items.next()) {
        definition.record += parseSubField(*item);
    }
    return definition;
}

}  // namespace

void parseStyleSheet(std::string_view text, const std::function<void(StyleDefinition)>& file) {
    if (const auto fault = faultOf(countBraces(text))) {
        raiseFault(*fault);
    }
    BracedTexts definitions(text);
    while (const std::optional<BracedText> definition = definitions.next()) {
        file(parseDefinition(definition->body));
    }
}

}  // namespace quorvane
