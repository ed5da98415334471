#pragma once

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string_view>

#include "quorvane/stylesheet/stylesheetSyntax.h"

namespace quorvane {

/// An error of loading a stylesheet, as it is published; "{0}" stands for what it names.
struct StyleSheetErrorRow {
    StyleSheetFault fault;
    std::int32_t number;
    std::string_view text;
};

/// The texts are published; the one about a kind alone has no heading.
inline constexpr StyleSheetErrorRow styleSheetErrorTable[] = {
    {StyleSheetFault::BracesUnderflow, 31037,
     "Error in stylesheet\r\nBraces stack underflow: there are more } than {."},
    {StyleSheetFault::BracesOverflow, 31037,
     "Error in stylesheet\r\nBraces stack overflow: there are more { than }"},
    {StyleSheetFault::BadKeyword, 445,
     "Error while processing stylesheet.\r\n{0} is not a valid keyword."},
    {StyleSheetFault::BadStyleKind, 445, "{0} is not a valid value for style-def"},
    {StyleSheetFault::BadAdditive, 445,
     "Error while processing stylesheet.\r\n{0} is not a valid value for additive"},
};

constexpr const StyleSheetErrorRow& styleSheetErrorRow(StyleSheetFault fault) {
    return *std::find_if(std::begin(styleSheetErrorTable), std::end(styleSheetErrorTable),
                         [=](const StyleSheetErrorRow& row) { return row.fault == fault; });
}

/// The published text.
constexpr std::string_view styleSheetErrorText(StyleSheetFault fault) {
    return styleSheetErrorRow(fault).text;
}

}  // namespace quorvane
