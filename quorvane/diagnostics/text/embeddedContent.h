#pragma once

#include <string_view>

#include "quorvane/rtf/RtfWord.h"

namespace quorvane {

// What a text brings into a document that nobody sees in it, such as "a macro"; empty when it
// brings nothing that can do harm.

/// What a control word brings along.
std::string_view contentOfWord(const RtfWord& word);

/// What the instruction of a field, given as plain text, brings along.
std::string_view contentOfField(std::string_view instruction);

}  // namespace quorvane
