#pragma once

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

namespace quorvane {

/// A message pattern with the replacements of its placeholders "{0}" to "{9}", whose numbers the
/// function takes.
std::string withReplacements(std::string_view pattern,
                             const std::function<std::string_view(std::size_t)>& replacementOf);

/// The pattern with the arguments in the places of "{0}", "{1}" and so on. A placeholder without an
/// argument is left out.
std::string withArguments(std::string_view pattern,
                          std::initializer_list<std::string_view> arguments);

}  // namespace quorvane
