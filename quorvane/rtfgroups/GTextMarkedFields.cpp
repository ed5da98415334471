#include "quorvane/rtfgroups/GTextMarkedFields.h"

#include "quorvane/base/text/StringOutput.h"
#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/text/hexadecimal.h"
#include "quorvane/base/values/RtfError.h"

namespace quorvane::GTextMarkedFields {

std::string toStringRepr(const Value& value) {
    if (value.isText()) {
        return value.text();
    }
    if (value.holds<std::int16_t>() || value.holds<std::int32_t>()) {
        return std::to_string(static_cast<std::int32_t>(value.number()));
    }
    raise(RtfError(refusedDataError, "A Marked Text Field Data can only be String or Long",
                   "GTextMarkedField.toStringRepr()"));
}

std::string toHexString(std::string_view text) {
    std::string digits;
    for (const char character : codePage1252FromUtf8(text)) {
        digits += hexadecimal(static_cast<unsigned char>(character), 1);
    }
    return digits;
}

std::string fieldData(const Value& value) {
    return toHexString(toStringRepr(value));
}

void writeFieldStart(std::string_view data, TextOutput& rtf) {
    rtf << R"({\*\txfieldstart\txfieldtype0\txfieldflags128\txfieldbin)";
    if (!data.empty()) {
        rtf << R"(\txfielddata )" << data;
    }
    rtf << "}";
}

void writeFieldEnd(TextOutput& rtf) {
    rtf << R"({\*\txfieldend})";
}

std::string wrapMarkedField(std::string_view rtf, std::string_view data) {
    std::string wrapped;
    StringOutput output(wrapped);
    writeFieldStart(data, output);
    output << rtf;
    writeFieldEnd(output);
    output.flush();
    return wrapped;
}

}  // namespace quorvane::GTextMarkedFields
