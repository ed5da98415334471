#pragma once

#include <string_view>

#include "data/RecordsTableOptions.h"

namespace quorvane::capi {

/// Sets one of the options for tables of data.
void setDataOption(data::RecordsTableOptions& options, int option, std::string_view value);

}  // namespace quorvane::capi
