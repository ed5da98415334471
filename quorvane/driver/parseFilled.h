#pragma once

#include <vector>

#include "quorvane/driver/CRtfDriver.h"
#include "quorvane/support/SourceLine.h"

namespace quorvane {

/// Analyzes the lines of a description of the extended language whose values are filled from data,
/// as `ParseFromMemmory` analyzes a text. Lines, their texts and their values must not change
/// before the call returns.
void parseFilled(CRtfDriver& driver, const std::vector<SourceLine>& lines);

}  // namespace quorvane
