#pragma once

#include <windows.h>

namespace quorvane::com {

/// Whom a registration is for.
enum class RegisteredFor { Machine, User };

/// Registers classes, type library and interfaces in the machine's or in the user's part of the
/// registry, and leaves the other part alone. What was there before is replaced; when it fails,
/// nothing is left. Without the right to write there it changes nothing and returns
/// E_ACCESSDENIED.
HRESULT registerServer(RegisteredFor whom) noexcept;

/// Removes what `registerServer` has written for this file. Another file that has been registered
/// since stays registered, as does a component of the other kind (32-bit or 64-bit) with what both
/// have in common: the programs' identifiers and the interfaces. It is not an error when nothing is
/// there. Returns E_ACCESSDENIED without the right to write there.
HRESULT unregisterServer(RegisteredFor whom) noexcept;

}  // namespace quorvane::com
