#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "quorvane/support/SourceLine.h"

namespace quorvane {

// A record string is a text that carries subfields: "^", the one character of the subfield's code,
// and its content up to the next "^" or the end ("^aSmith^bJohn"). Codes match without regard to
// case.

/// One subfield; the views are into the text that it was found in.
struct SubFieldView {
    /// Where its "^" stands.
    std::size_t position = 0;
    /// All of it, "^" and code included.
    std::string_view whole;
    /// The character after "^", another "^" included; empty at the text's end.
    std::string_view code;
    std::string_view content;
};

/// The first subfield whose "^" stands at the position or after it; nothing when there is none.
std::optional<SubFieldView> findSubField(std::string_view text, std::size_t position = 0);

/// The first subfield of that code; nothing when there is none. A code that is not one character
/// names none.
std::optional<SubFieldView> findSubFieldOf(std::string_view text, std::string_view code);

/// True when the text begins with "^" and one more character.
bool IsIsisFormated(std::string_view text);

/// The content of the first subfield of that code; empty when there is none.
std::string GetSubField(std::string_view text, std::string_view code);

/// The contents of the subfields that the characters of `codes` name, joined in that order.
std::string subFieldContents(std::string_view text, std::string_view codes);

/// True when the text is empty, or is formatted and every content is empty but for blanks.
bool AllSubFieldsEmpty(std::string_view text);

/// The text without the blanks (0x20, nothing else) at its ends.
std::string_view TrimEx(std::string_view text);

/// What stands after the first separator, without blanks at its ends; empty when the text holds no
/// separator or the separator is empty.
std::string GetValue(std::string_view text, std::string_view separator);

/// The pieces between the delimiters, empty ones included. An empty text has no pieces; an empty
/// delimiter leaves the text whole.
std::vector<std::string> Parse(std::string_view text, std::string_view delimiter);

/// The text with every occurrence of `search` replaced, from left to right, case-sensitively and
/// without a second look at what was put in. An empty `search` replaces nothing.
std::string ReplaceString(std::string_view text, std::string_view search,
                          std::string_view replacement);

/// The lines with content, as views of the text: without the blanks and tabs at their ends,
/// without empty lines and without those whose first character is ";". Lines end with CR LF, LF or
/// CR.
///
/// With a mark, a line of the form `(key=MARK` goes on up to the next line that ends in `MARK)`,
/// and is one line with all that is between them. Without such a line it ends as any other.
std::vector<SourceLine> PreProcessRawData(std::string_view text, std::string_view blockMark = {});

}  // namespace quorvane
