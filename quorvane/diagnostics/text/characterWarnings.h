#pragma once

#include <cstddef>
#include <string_view>

#include "quorvane/diagnostics/text/TextReporter.h"
#include "quorvane/diagnostics/text/TextUse.h"

namespace quorvane {

/// Warns of the character at a position of the text if a document cannot show it: a control
/// character, one that Windows-1252 lacks, or one of a file in UTF-8. Returns the bytes that it
/// takes up.
std::size_t findInCharacter(std::string_view text, std::size_t at, TextUse use,
                            TextReporter& reporter);

}  // namespace quorvane
