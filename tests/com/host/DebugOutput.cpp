#include "tests/com/host/DebugOutput.h"

#include <cstddef>

#include "tests/com/host/text.h"

namespace quorvane::host {

namespace {

constexpr DWORD textWritten = 0x40010006;
constexpr DWORD wideTextWritten = 0x4001000A;

std::vector<std::string>& collected() {
    static std::vector<std::string> lines;
    return lines;
}

std::wstring wideFromSystemCodePage(const char* text) {
    std::wstring wide(
        static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, text, -1, nullptr, 0)), L'\0');
    MultiByteToWideChar(CP_ACP, 0, text, -1, wide.data(), static_cast<int>(wide.size()));
    wide.pop_back();  // the NUL
    return wide;
}

// The arguments of the exceptions are the length, with the NUL, and the place of the text. Some
// systems raise the wide one first, others only the one in the system's code page.
LONG CALLBACK collect(EXCEPTION_POINTERS* pointers) {
    const EXCEPTION_RECORD& record = *pointers->ExceptionRecord;
    if (record.ExceptionCode == wideTextWritten) {
        const auto* text = reinterpret_cast<const wchar_t*>(record.ExceptionInformation[1]);
        collected().push_back(utf8Text(text));
        return EXCEPTION_CONTINUE_EXECUTION;
    }
    if (record.ExceptionCode == textWritten) {
        const auto* text = reinterpret_cast<const char*>(record.ExceptionInformation[1]);
        collected().push_back(utf8Text(wideFromSystemCodePage(text)));
        return EXCEPTION_CONTINUE_EXECUTION;
    }
    return EXCEPTION_CONTINUE_SEARCH;
}

}  // namespace

DebugOutput::DebugOutput() : handler_(AddVectoredExceptionHandler(TRUE, collect)) {
    collected().clear();
}

DebugOutput::~DebugOutput() {
    RemoveVectoredExceptionHandler(handler_);
}

const std::vector<std::string>& DebugOutput::lines() const {
    return collected();
}

}  // namespace quorvane::host
