#pragma once

#include <windows.h>

#include <richedit.h>
#include <string>
#include <string_view>

namespace quorvane::host {

/// The system's rich edit control, not shown to anybody.
class RichEdit {
public:
    RichEdit();
    RichEdit(const RichEdit&) = delete;
    RichEdit& operator=(const RichEdit&) = delete;
    ~RichEdit();

    /// Has it read a document through EM_STREAMIN. Returns the error that it reports, 0 for none.
    DWORD read(std::string_view rtf) const;

    /// The document that it writes through EM_STREAMOUT. An error that it reports ends the test
    /// with an exception.
    std::string written() const;

    /// All its text. Cells end in a tab, rows in a line break; a row begins with a line break, too.
    std::wstring text() const;

    CHARFORMAT2W characterFormatAt(std::size_t position) const;
    PARAFORMAT2 paragraphFormatAt(std::size_t position) const;

private:
    void select(std::size_t position) const;

    HMODULE library_;
    HWND window_;
};

}  // namespace quorvane::host
