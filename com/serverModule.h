#pragma once

#include <windows.h>

#include <string>

namespace quorvane::com {

// The DLL as a whole: it may be unloaded when no object of it lives and no host locks it.

/// Begins and ends with every object that a host holds.
class ModuleUse {
public:
    ModuleUse() noexcept;
    ModuleUse(const ModuleUse&) = delete;
    ModuleUse& operator=(const ModuleUse&) = delete;
    ~ModuleUse();
};

/// Keeps the module in use until it is unlocked as often.
void lockModule(bool lock) noexcept;

/// True when no object lives and no lock is held.
bool moduleIsUnused() noexcept;

/// Path of the DLL; empty when the system does not know it.
std::wstring modulePath();

}  // namespace quorvane::com
