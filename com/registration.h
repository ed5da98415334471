#pragma once

#include <windows.h>

namespace quorvane::com {

/// Whom a registration is for.
enum class RegisteredFor { Machine, User };

/// Registers classes, type library and interfaces in the machine's or in the user's part of the
/// registry, and leaves the other part alone. What was there before is replaced; when it fails,
/// nothing is left behind. Without the right to write there it changes nothing.
HRESULT registerServer(RegisteredFor whom) noexcept;

/// Takes away all that `registerServer` leaves, but for the programs' identifiers while a component
/// of the other kind (32-bit or 64-bit) is registered. It is no error when nothing is there.
HRESULT unregisterServer(RegisteredFor whom) noexcept;

}  // namespace quorvane::com
