#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace quorvane::host {

std::wstring wideText(std::string_view utf8);
std::string utf8Text(std::wstring_view text);
/// The text of a BSTR; a null one is the empty text.
std::wstring_view textOf(BSTR text);

/// A text that automation takes, freed here.
class Bstr {
public:
    Bstr() = default;
    explicit Bstr(std::wstring_view text)
        : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {}
    explicit Bstr(std::string_view utf8) : Bstr(wideText(utf8)) {}
    Bstr(const Bstr& other) : Bstr(textOf(other.text_)) {}
    Bstr& operator=(const Bstr&) = delete;
    ~Bstr() { SysFreeString(text_); }

    BSTR get() const { return text_; }
    /// Where a callee puts a text.
    BSTR* out() {
        SysFreeString(text_);
        text_ = nullptr;
        return &text_;
    }
    std::string utf8() const { return utf8Text(textOf(text_)); }

private:
    BSTR text_ = nullptr;
};

}  // namespace quorvane::host
