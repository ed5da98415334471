#include "tests/com/richEdit/RichEdit.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace quorvane::host {

namespace {

DWORD CALLBACK readSome(DWORD_PTR cookie, BYTE* buffer, LONG size, LONG* count) {
    auto& rest = *reinterpret_cast<std::string_view*>(cookie);
    const std::size_t length = std::min(rest.size(), static_cast<std::size_t>(size));
    std::memcpy(buffer, rest.data(), length);
    rest.remove_prefix(length);
    *count = static_cast<LONG>(length);
    return 0;
}

DWORD CALLBACK writeSome(DWORD_PTR cookie, BYTE* buffer, LONG size, LONG* count) {
    reinterpret_cast<std::string*>(cookie)->append(reinterpret_cast<const char*>(buffer),
                                                   static_cast<std::size_t>(size));
    *count = size;
    return 0;
}

}  // namespace

RichEdit::RichEdit()
    : library_(LoadLibraryW(L"riched20.dll")),
      window_(CreateWindowExW(0, RICHEDIT_CLASSW, L"", WS_POPUP | ES_MULTILINE, 0, 0, 800, 600,
                              nullptr, nullptr, nullptr, nullptr)) {
    if (!window_) {
        throw std::runtime_error("there is no rich edit control");
    }
    SendMessageW(window_, EM_EXLIMITTEXT, 0, 0x7FFFFFF);
}

RichEdit::~RichEdit() {
    DestroyWindow(window_);
    FreeLibrary(library_);
}

DWORD RichEdit::read(std::string_view rtf) const {
    EDITSTREAM stream{reinterpret_cast<DWORD_PTR>(&rtf), 0, readSome};
    SendMessageW(window_, EM_STREAMIN, SF_RTF, reinterpret_cast<LPARAM>(&stream));
    return stream.dwError;
}

std::string RichEdit::written() const {
    std::string rtf;
    EDITSTREAM stream{reinterpret_cast<DWORD_PTR>(&rtf), 0, writeSome};
    SendMessageW(window_, EM_STREAMOUT, SF_RTF, reinterpret_cast<LPARAM>(&stream));
    if (stream.dwError != 0) {
        throw std::runtime_error("the rich edit control does not write");
    }
    return rtf;
}

std::wstring RichEdit::text() const {
    GETTEXTLENGTHEX measure{GTL_NUMCHARS | GTL_PRECISE, 1200};
    const auto length = static_cast<std::size_t>(
        SendMessageW(window_, EM_GETTEXTLENGTHEX, reinterpret_cast<WPARAM>(&measure), 0));
    std::wstring text(length + 1, L'\0');
    TEXTRANGEW range{{0, static_cast<LONG>(length)}, text.data()};
    const LRESULT count =
        SendMessageW(window_, EM_GETTEXTRANGE, 0, reinterpret_cast<LPARAM>(&range));
    text.resize(static_cast<std::size_t>(count));
    return text;
}

CHARFORMAT2W RichEdit::characterFormatAt(std::size_t position) const {
    select(position);
    CHARFORMAT2W format{};
    format.cbSize = sizeof format;
    SendMessageW(window_, EM_GETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
    return format;
}

PARAFORMAT2 RichEdit::paragraphFormatAt(std::size_t position) const {
    select(position);
    PARAFORMAT2 format{};
    format.cbSize = sizeof format;
    SendMessageW(window_, EM_GETPARAFORMAT, 0, reinterpret_cast<LPARAM>(&format));
    return format;
}

void RichEdit::select(std::size_t position) const {
    CHARRANGE range{static_cast<LONG>(position), static_cast<LONG>(position) + 1};
    SendMessageW(window_, EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&range));
}

}  // namespace quorvane::host
