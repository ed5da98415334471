#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane {

/// What a message says about a character of a file in UTF-8, which reads as several in
/// Windows-1252.
std::string mojibakeText(std::string_view shown);

/// Keeps the first diagnostic of each kind about mojibake, which says that there are
/// more: in a file in UTF-8 there is one in every other line.
void keepFirstMojibake(std::vector<Diagnostic>& diagnostics);

}  // namespace quorvane
