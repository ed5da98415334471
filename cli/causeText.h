#pragma once

#include <string>

#include "quorvane/base/values/RtfError.h"

namespace quorvane::cli {

/// What lies behind the error: the description of its cause and, in parentheses, of the cause's
/// own. Empty when nothing does.
std::string causeText(const RtfError& error);

/// The text with what lies behind the error after it, in parentheses, when anything does.
std::string withCause(std::string text, const RtfError& error);

}  // namespace quorvane::cli
