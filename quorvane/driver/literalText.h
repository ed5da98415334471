#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "quorvane/support/FilledValue.h"

namespace quorvane {

/// The words of a character style; empty for a name that is not the name of one.
using CharacterStyleWords = std::function<std::string_view(std::string_view name)>;

/// Appends the RTF of a literal text: it shows what is written, and inline styles such as
/// `<strong=Total>` become groups with the words of their styles. An inline style ends at the first
/// ">" after it that does not end one within it. A "<" that opens no style, and a style that does
/// not end, are text, and so is every one in a part that comes from data. Error 5 for a character
/// that no document can show; see `findUnshowable`.
void appendLiteralText(std::string_view text, const CharacterStyleWords& wordsOf, std::string& rtf,
                       std::span<const TextRange> data = {});

/// Begins the group of an inline style with these words; "}" ends it.
void beginStyledText(std::string_view words, std::string& rtf);

/// The names after each "<" of a literal text that can open a style. None is in a part that comes
/// from data.
std::vector<std::string_view> inlineStyleNames(std::string_view text,
                                               std::span<const TextRange> data = {});

/// The text of a value between its marks: of lines between them, without the line breaks beside the
/// marks and without the blanks that the line of the last mark begins with, and LF between the
/// lines. `block` begins and ends with the mark.
std::string blockText(std::string_view block, std::string_view mark);

/// The lines of that text: views of the block.
std::vector<std::string_view> blockLines(std::string_view block, std::string_view mark);

}  // namespace quorvane
