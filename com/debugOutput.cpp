#include "com/debugOutput.h"

#include <windows.h>

#include <algorithm>
#include <cstdint>

#include "quorvane/base/text/utf16.h"

namespace quorvane::com {

namespace {

void write(std::string text, const RtfError& error) {
    text =
        "Quorvane: " + text + ": " + error.description + " (" + std::to_string(error.number) + ")";
    std::replace_if(
        text.begin(), text.end(), [](char each) { return each >= 0 && each < ' '; }, ' ');
    OutputDebugStringW(utf16FromUtf8<wchar_t>(text + "\n").c_str());
}

}  // namespace

void writeToDebugOutput(const AbsorbedError& absorbed) {
    const std::string& module = absorbed.moduleName;
    write(module.substr(0, module.find('.')) + "." + absorbed.procedureName, absorbed.error);
}

void writeToDebugOutput(std::string_view method, std::string_view file, const RtfError& error) {
    write(std::string(method) + ": " + (file.empty() ? "(empty path)" : std::string(file)), error);
}

}  // namespace quorvane::com
