#pragma once

#include <optional>
#include <string>

#include "data/locale.h"

namespace quorvane::data {

/// The locale of an option; the usual one without it. An `OptionError` for any other name.
Locale optionLocale(const std::optional<std::string>& option);

}  // namespace quorvane::data
