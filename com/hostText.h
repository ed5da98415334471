#pragma once

#include <windows.h>

#include <oleauto.h>

#include <cstddef>
#include <new>
#include <string>
#include <string_view>

#include "quorvane/base/text/utf16.h"

namespace quorvane::com {

/// A host's text, which may be null, as the library's.
inline std::string textOf(BSTR text) {
    return text ? utf8FromUtf16(std::wstring_view(text, SysStringLen(text))) : std::string();
}

/// A library's text as a host's, which the caller must free.
inline BSTR newBstr(std::string_view text) {
    constexpr std::size_t longest = 0x3FFFFFFF;
    const std::size_t length = utf16Length(text);
    BSTR units =
        length <= longest ? SysAllocStringLen(nullptr, static_cast<UINT>(length)) : nullptr;
    if (!units) {
        throw std::bad_alloc();
    }
    writeUtf16(text, units);
    return units;
}

/// A host's text that is freed at its end.
class OwnedBstr {
public:
    explicit OwnedBstr(std::string_view text) : text_(newBstr(text)) {}
    OwnedBstr(const OwnedBstr&) = delete;
    OwnedBstr& operator=(const OwnedBstr&) = delete;
    ~OwnedBstr() { SysFreeString(text_); }

    BSTR get() const noexcept { return text_; }

private:
    BSTR text_;
};

}  // namespace quorvane::com
