#include "quorvane/stylesheet/stylesheetParser.h"

#include <cstddef>
#include <optional>
#include <utility>

#include "quorvane/base/text/textCase.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/stylesheet/LineNumbers.h"
#include "quorvane/stylesheet/extendedStyleSheet.h"
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

std::string subField(const StyleKeyword& keyword, std::string_view value) {
    return "^" + std::string(keyword.subField) + std::string(value);
}

[[noreturn]] void raiseViolation(const ExtendedViolation& violation, std::string_view text) {
    const std::int32_t line = LineNumbers(text).lineOf(violation.part);
    RtfError error(extendedFaultRow(violation.fault).number,
                   "Line " + std::to_string(line) + ": " + violation.message);
    error.line = line;
    raise(std::move(error));
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

void parseExtendedStyleSheet(std::string_view text, DocumentTables& tables,
                             const std::function<void(StyleDefinition)>& file) {
    const std::vector<ExtendedStyle> styles = readExtendedStyleSheet(
        text, [&](const ExtendedViolation& violation) { raiseViolation(violation, text); });
    for (const ExtendedStyle& style : styles) {
        file(definitionOf(style, tables));
    }
}

StyleDefinition definitionOf(const ExtendedStyle& style, DocumentTables& tables) {
    const auto kind = static_cast<std::size_t>(style.kind);
    std::string record = subField(kindKeyword, styleKindWords[kind]);
    if (style.kind != StyleKind::Cell) {
        record += subField(formatKeyword, controlWordsOf(style.format, style.kind, tables));
    } else if (!style.format.empty()) {
        record += subField(formatKeyword, style.format.front().text);
    }
    if (!style.basedOn.empty()) {
        record += subField(basedOnKeyword, lowerCase(style.basedOn));
    }
    if (!style.next.empty()) {
        record += subField(nextKeyword, lowerCase(style.next));
    }
    if (style.kind == StyleKind::Character) {
        record += subField(additiveKeyword, styleTruthWords[0]);
    }
    record += "^" + std::string(writtenNameSubField) + std::string(style.name);
    return {{lowerCase(style.name)}, std::move(record)};
}

}  // namespace quorvane
