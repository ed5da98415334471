#pragma once

#include <string>
#include <string_view>

namespace quorvane::data {

/// What is wrong with the pattern of a date; empty where nothing is. See `Filter`.
std::string wrongDatePattern(std::string_view pattern);

/// True for a date or time in the form of ISO 8601.
bool isIsoDate(std::string_view text);

/// A date or time in the form of ISO 8601 by a sound pattern. False for any other text and for a
/// day that no calendar has.
bool dateText(std::string_view iso, std::string_view pattern, std::string& text);

}  // namespace quorvane::data
