#pragma once

#include <string>
#include <string_view>

namespace quorvane {

/// The RTF of the raw text of a paragraph, which the paragraph's own text can follow: control words
/// that format, words for characters, and fields, with text between them. What could change the
/// document around it is a `LeafError` of the fault `WrongValue`: words of tables, sections and the
/// document, `\bin`, `\u` (characters are written as they are), and groups that do not end.
std::string rawRtf(std::string_view text);

}  // namespace quorvane
