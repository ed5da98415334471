#pragma once

#include <windows.h>

#include <oleauto.h>

namespace quorvane::com {

/// The type library, from the DLL's own resources. Its count is the caller's.
HRESULT typeLibrary(ITypeLib** library) noexcept;

/// The description of an interface or class of the type library.
HRESULT typeInfo(REFGUID id, ITypeInfo** info) noexcept;

}  // namespace quorvane::com
