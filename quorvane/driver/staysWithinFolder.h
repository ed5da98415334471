#pragma once

#include <string>

namespace quorvane {

/// True for a name that stays within the folder that it is looked up in: one without "..", a drive
/// and a root.
bool staysWithinFolder(const std::string& name);

}  // namespace quorvane
