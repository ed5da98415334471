#pragma once

#include <windows.h>

#include <oleauto.h>

#include "quorvane/base/values/Value.h"

namespace quorvane::com {

/// A host's value as the library's. A variable passed by reference counts as its value. 16-bit and
/// 32-bit integers stay what they are; numbers of all other kinds become doubles; what the library
/// has no kind for (an array, an error) becomes Null, which is neither a text nor a number.
Value valueOf(const VARIANT& value);

/// The same for an optional argument, which is null or the value for "missing" when it is not
/// given.
Value valueOf(const VARIANT* value);

/// True for a variable passed by reference where the reference is null.
bool refersToNothing(const VARIANT& value) noexcept;

}  // namespace quorvane::com
