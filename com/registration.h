#pragma once

#include <windows.h>

namespace quorvane::com {

/// Whom a registration is for.
enum class RegisteredFor { Machine, User };

/// Registers classes, type library and interfaces. What was there before is replaced; when it
/// fails, nothing is left behind.
HRESULT registerServer(RegisteredFor whom) noexcept;

/// Takes away all that `registerServer` leaves. It is no error when nothing is there.
HRESULT unregisterServer(RegisteredFor whom) noexcept;

}  // namespace quorvane::com
