#pragma once

#include <string>
#include <vector>

namespace quorvane::cli {

/// Runs the command with the arguments after the program's name, on the standard streams. Returns
/// the exit status.
int runCommand(const std::vector<std::string>& arguments);

}  // namespace quorvane::cli
