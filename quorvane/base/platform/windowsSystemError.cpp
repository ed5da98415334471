#include "quorvane/base/platform/windowsSystemError.h"

#include <windows.h>

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "quorvane/base/platform/windowsErrorToRunTimeError.h"
#include "quorvane/base/text/utf16.h"

namespace quorvane {

namespace {

/// What the system calls an error, without the line break at its end.
std::string messageOf(DWORD code) {
    std::array<wchar_t, 512> text{};
    std::wstring_view message(
        text.data(),
        FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code, 0,
                       text.data(), static_cast<DWORD>(text.size()), nullptr));
    while (!message.empty() && (message.back() <= L' ' || message.back() == L'.')) {
        message.remove_suffix(1);
    }
    return message.empty() ? "error " + std::to_string(code) : utf8FromUtf16(message);
}

}  // namespace

void raiseSystemError(RunTimeError number, unsigned long code) {
    RtfError error(number);
    error.cause = std::make_shared<RtfError>(static_cast<std::int32_t>(code), messageOf(code));
    raise(std::move(error));
}

void raiseSystemError(unsigned long code) {
    raiseSystemError(windowsErrorToRunTimeError(code), code);
}

}  // namespace quorvane
