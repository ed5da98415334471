#pragma once

#include <string>
#include <string_view>

namespace quorvane {

/// The text as UTF-16 units, one an element, for places that are counted in them. A byte that is
/// part of no well-formed character is an element of its own.
std::u32string utf16Units(std::string_view text);

/// The text that the units stand for; a pair of surrogates is one character again.
std::string textOfUtf16Units(std::u32string_view units);

}  // namespace quorvane
