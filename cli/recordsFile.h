#pragma once

#include <string>

#include "data/recordsText.h"

namespace quorvane::cli {

/// Opens a file with records, or standard input for "-". Throws `data::UnreadableInput`, as the
/// reader does.
data::BlockReader openRecords(const std::string& path);

}  // namespace quorvane::cli
