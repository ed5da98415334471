#pragma once

#include <string>
#include <vector>

namespace quorvane::cli {

/// Does what the arguments after the program's name ask for, on the standard streams. Answers the
/// exit status.
int runCommand(const std::vector<std::string>& arguments);

}  // namespace quorvane::cli
