#pragma once

#include <string_view>

namespace quorvane {

/// True for a control word that formats characters or paragraphs and does nothing else: it neither
/// shows or hides text, nor belongs to a table, a section or the document.
bool isFormattingWord(std::string_view word);

}  // namespace quorvane
