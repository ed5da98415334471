#include "tests/com/testComponents/ErrorCollection.h"

#include <cstdio>
#include <string>

#include "tests/com/host/Variant.h"
#include "tests/com/host/text.h"

namespace quorvane::host {

namespace {

std::string argumentText(const VARIANT& argument) {
    if (argument.vt == (VT_BYREF | VT_BSTR)) {
        return "by reference BSTR " + utf8Text(textOf(*argument.pbstrVal));
    }
    if (argument.vt == (VT_BYREF | VT_DISPATCH)) {
        return *argument.ppdispVal ? "by reference Object" : "by reference Nothing";
    }
    if (argument.vt == (VT_BYREF | VT_VARIANT)) {
        return "by reference " + argumentText(*argument.pvarVal);
    }
    return describe(argument);
}

void writeCall(const std::string& name, const CallArguments& arguments) {
    std::string line = name;
    for (UINT i = 0; i < arguments.count(); ++i) {
        line += " [" + argumentText(arguments.raw(i)) + "]";
    }
    wchar_t file[MAX_PATH] = L"";
    GetEnvironmentVariableW(L"QUORVANE_ERROR_COLLECTION", file, MAX_PATH);
    if (std::FILE* stream = _wfopen(file, L"ab")) {
        std::fprintf(stream, "%s\n", line.c_str());
        std::fclose(stream);
    }
}

}  // namespace

ErrorCollection::ErrorCollection() {
    for (const char* name : {"Create", "sendError"}) {
        addMember(wideText(name), [name](const CallArguments& call, VARIANT&) {
            writeCall(name, call);
            return S_OK;
        });
    }
}

}  // namespace quorvane::host
