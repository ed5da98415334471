#pragma once

#include <string>
#include <system_error>

namespace quorvane::data {

/// Why the system does not let a file be read; no error when it is not the system that does not.
std::error_code whyUnreadable(const std::string& path);

}  // namespace quorvane::data
