#pragma once

#include <string>
#include <string_view>

namespace quorvane::data {

// The letters of Latin, Greek and Cyrillic alphabets have case; all other characters stay as they
// are.

/// The text in capital letters; ß becomes SS.
std::string upperCaseText(std::string_view utf8);

/// The text in small letters.
std::string lowerCaseText(std::string_view utf8);

}  // namespace quorvane::data
