#pragma once

#include <string>
#include <string_view>

#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane {

/// True for a measure of the page that is far too small to be meant in twips: paper of less than an
/// inch, or a margin of more than 0 and less than two millimeters. The key is in its long form.
bool isTinyMeasure(std::string_view key, double twips);

/// The measure in millimeters, for messages.
std::string millimeterText(double twips);

/// The hint for such a measure: what it is in twips when it is meant in the likely unit.
Hint tinyMeasureHint(std::string_view key, double number);

}  // namespace quorvane
