#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "quorvane/support/CStringList.h"

namespace quorvane {

/// How a text is searched.
enum class TextCompare {
    Binary,
    IgnoringCase,
};

/// A text that may be a record string: "^" and a one-character code open a subfield. Codes match
/// without regard to case. Positions and lengths count characters.
class CString {
public:
    CString() = default;
    explicit CString(std::string text) : text_(std::move(text)) {}

    /// The subfields in order of occurrence, each whole ("^aX"), so that joining them gives the
    /// text again. None for a text that is not formatted.
    CStringList GetSubFields() const;

    /// The wrapped text; empty at first.
    const std::string& Text() const { return text_; }
    void setText(std::string text) { text_ = std::move(text); }

    /// The text up to and including its first character of code 0; one is appended when there is
    /// none.
    std::string StrZ() const;

    /// True when `Code` occurs in what `GetDelims` returns, without regard to case. False for an
    /// empty code.
    bool hasSubfield(std::string_view Code) const;

    /// How often `Sub` occurs in the text, overlapping occurrences included; 0 for an empty `Sub`.
    std::int32_t Occs(std::string_view Sub, TextCompare Compare = TextCompare::Binary) const;

    /// True when the text begins with "^" and one more character.
    bool IsisFormated() const;

    /// The subfield codes: the character after every "^", in order, repeated ones included.
    std::string GetDelims() const;

    /// The pieces of the text between the delimiters, empty ones included; none for an empty text.
    CStringList Parse(std::string_view Delims) const;

    /// Replaces every occurrence of `search`, case-sensitively; an empty `search` changes nothing.
    void ReplaceString(std::string_view search, std::string_view replacement);

    /// The text in code page 1252, filled up at its end to at least `length` characters with the
    /// code page's character `fill`. A negative length is as good as 0.
    std::string StrToBytes(std::int32_t length = 0, char fill = ' ') const;

    /// The content of the first subfield of that code, empty when there is none; for a longer code
    /// the contents for each of its characters, joined in the order given.
    std::string SubField(std::string_view Code) const;

    /// Replaces the content of the first subfield of that code; appends the subfield when there is
    /// none. Error 5 when the code is not one character, or is "^".
    void setSubField(std::string_view Code, std::string_view content);

    /// Sorts the subfields, codes included, without regard to case. A text that is not formatted
    /// stays as it is.
    void SortSubFields();

    /// True when the text is empty, or is formatted and every content is empty but for blanks.
    bool AllSubFieldsEmpty() const;

    /// Removes every subfield of that code; for a longer code those of each of its characters.
    void RemoveSubField(std::string_view Code);

    /// The character at the 1-based position. Error 5 when the text has no such position.
    std::string Char(std::int32_t Position) const;

    /// Replaces the character at the 1-based position. Error 5 when the text has no such position,
    /// or `character` is not exactly one.
    void setChar(std::int32_t Position, std::string_view character);

private:
    std::string_view characterAt(std::int32_t position) const;

    std::string text_;
};

}  // namespace quorvane
