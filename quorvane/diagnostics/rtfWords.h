#pragma once

#include <string_view>

namespace quorvane {

// The control words of RTF up to version 1.9.1, those of the marked fields included.

/// True for a control word, given without its backslash and number. Case counts.
bool isRtfWord(std::string_view word);

/// True for a control word that begins a destination: a group with a meaning of its own.
bool isRtfDestination(std::string_view word);

}  // namespace quorvane
