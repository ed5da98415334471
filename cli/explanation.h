#pragma once

#include <string>

namespace quorvane::cli {

/// What the table of diagnostics tells of an identifier, for a person. Throws `UsageError` when
/// there is no such identifier.
std::string explanation(const std::string& identifier);

}  // namespace quorvane::cli
