#pragma once

#include <string>

#include "quorvane/base/values/RtfError.h"

namespace quorvane::cli {

/// The description of the error's cause and, in parentheses, of the cause's own; empty for an error
/// without a cause.
std::string causeText(const RtfError& error);

/// The text, followed by the error's cause in parentheses if it has one.
std::string withCause(std::string text, const RtfError& error);

}  // namespace quorvane::cli
