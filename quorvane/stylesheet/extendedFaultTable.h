#pragma once

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string_view>

namespace quorvane {

/// What makes an extended stylesheet invalid.
enum class ExtendedFault {
    BadCharacter,
    LoneBrace,
    StrayText,
    NamelessStyle,
    BadStyleName,
    StyleTwice,
    MissingKind,
    BadKind,
    UnknownItem,
    MissingSemicolon,
    ItemTwice,
    MisplacedItem,
    MissingValue,
    BadValue,
    MissingStyle,
    StyleCircle
};

/// The number and the text of an error of loading; "{0}", "{1}" stand for what it names.
struct ExtendedFaultRow {
    ExtendedFault fault;
    std::int32_t number;
    std::string_view text;
};

/// The numbers are those of the errors that the original language has for braces and for all else.
inline constexpr ExtendedFaultRow extendedFaultTable[] = {
    {ExtendedFault::BadCharacter, 445, "{0}."},
    {ExtendedFault::LoneBrace, 31037, "This {0} is not one of a pair."},
    {ExtendedFault::StrayText, 445, "Outside the braces there can only be comments."},
    {ExtendedFault::NamelessStyle, 445, "A style begins with its name."},
    {ExtendedFault::BadStyleName, 445, "{0} cannot be the name of a style."},
    {ExtendedFault::StyleTwice, 445, "The {0} style {1} is defined already, on line {2}."},
    {ExtendedFault::MissingKind, 445, "The style {0} does not say what it is for."},
    {ExtendedFault::BadKind, 445, "{0} is not a kind of style."},
    {ExtendedFault::UnknownItem, 445, "{0} is not a keyword of a style."},
    {ExtendedFault::MissingSemicolon, 445, "There is no ; before {0}."},
    {ExtendedFault::ItemTwice, 445, "The style sets {0} already."},
    {ExtendedFault::MisplacedItem, 445, "A {0} style cannot have {1}."},
    {ExtendedFault::MissingValue, 445, "{0} has no value."},
    {ExtendedFault::BadValue, 445, "{0} is not a valid value for {1}."},
    {ExtendedFault::MissingStyle, 445, "There is no {0} style {1}."},
    {ExtendedFault::StyleCircle, 445, "The style {0} is based on itself."},
};

constexpr const ExtendedFaultRow& extendedFaultRow(ExtendedFault fault) {
    return *std::find_if(std::begin(extendedFaultTable), std::end(extendedFaultTable),
                         [=](const ExtendedFaultRow& row) { return row.fault == fault; });
}

/// The text of the error.
constexpr std::string_view extendedFaultText(ExtendedFault fault) {
    return extendedFaultRow(fault).text;
}

}  // namespace quorvane
