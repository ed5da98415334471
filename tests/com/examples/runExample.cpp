#include "tests/com/examples/runExample.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/com/host/Component.h"
#include "tests/com/host/text.h"

namespace quorvane::host {

namespace {

std::wstring windowsPath(const std::string& file) {
    std::wstring path = wideText(file);
    std::replace(path.begin(), path.end(), L'/', L'\\');
    return path;
}

}  // namespace

std::wstring inQuotes(const std::wstring& text) {
    return L"\"" + text + L"\"";
}

std::wstring script(const std::string& file) {
    return L"cscript.exe //nologo " + inQuotes(windowsPath(QUORVANE_EXAMPLES "/" + file));
}

std::wstring builtProgram(const std::string& file) {
    return inQuotes(windowsPath(QUORVANE_BUILT_EXAMPLES "/" + file));
}

void registerComponent(const std::wstring& arguments) {
    const ProcessResult result =
        Process(L"regsvr32.exe " + arguments + L" " + inQuotes(componentFile()), L".").wait();
    ASSERT_EQ(result.status, 0U);
}

ProcessResult run(const std::wstring& program, const std::wstring& arguments) {
    ProcessResult result = Process(program + L" " + arguments, L".").wait();
    std::erase(result.output, '\r');
    return result;
}

}  // namespace quorvane::host
