#pragma once

#include <string>
#include <string_view>

#include "quorvane/base/text/TextOutput.h"
#include "quorvane/base/values/Value.h"

/// Marked text fields: a run of text between two private destinations, the first of which carries
/// data of the host.
namespace quorvane::GTextMarkedFields {

/// The text form of a field's data: a text as it is, a 16-bit or 32-bit integer in decimal. Error
/// 0x800405EA for a value of any other type.
std::string toStringRepr(const Value& value);

/// Hexadecimal text of the text's bytes in code page 1252, upper case. A byte below 16 is a single
/// digit, so the text cannot always be read back.
std::string toHexString(std::string_view text);

/// The data as it is kept with a marked paragraph or cell: the hexadecimal text of its text form.
std::string fieldData(const Value& value);

/// Writes the group that opens a field with this hexadecimal data.
void writeFieldStart(std::string_view data, TextOutput& rtf);

/// Writes the group that closes a field.
void writeFieldEnd(TextOutput& rtf);

/// The RTF text as a marked field with this hexadecimal data.
std::string wrapMarkedField(std::string_view rtf, std::string_view data);

/// Number of the error that refuses a field's data.
inline constexpr std::int32_t refusedDataError = static_cast<std::int32_t>(0x800405EA);

}  // namespace quorvane::GTextMarkedFields
