#pragma once

#include <string>

#include "quorvane/driver/DescriptionNode.h"

namespace quorvane {

/// The value in the extended language of a leaf of the original one whose value is neither of the
/// page nor a text: names in place of the numbers of colors, borders and alignments, and numbers in
/// their shortest form where they are names.
std::string upgradedValue(const Leaf& leaf);

/// True for a leaf without any effect in the original language.
bool isWithoutEffect(const Leaf& leaf);

}  // namespace quorvane
