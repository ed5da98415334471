#pragma once

#include <windows.h>

namespace quorvane::host {

/// Lets a module's imports of that name lead to the function; returns whether there was one.
bool redirectImport(HMODULE module, const char* name, void* function);

}  // namespace quorvane::host
