#pragma once

#include <optional>
#include <string>

#include "data/locale.h"

namespace quorvane::cli {

/// The locale that --locale names; the usual one without the option. A `UsageError` for any other
/// name.
data::Locale localeOf(const std::optional<std::string>& option);

}  // namespace quorvane::cli
