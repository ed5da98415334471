#pragma once

#include <windows.h>

#include <oleauto.h>

#include <optional>
#include <vector>

#include "com/OwnedVariant.h"

namespace quorvane::com {

using HostValues = std::vector<OwnedVariant>;

/// What a variable that is passed by reference refers to, or the value itself. Error "wrong-value"
/// for a reference to nothing.
const VARIANT& referredValue(const VARIANT& value);

/// The elements of an array: one of automation with one dimension, of any bounds and element type,
/// or an object of a script that has a `length`. Nothing for a value that is not an array; error
/// "wrong-value" for an array with more dimensions.
std::optional<HostValues> elementsOf(const VARIANT& value);

/// The elements of an array of automation with two dimensions, row by row; nothing for any other
/// value.
std::optional<std::vector<HostValues>> rowsOf(const VARIANT& value);

}  // namespace quorvane::com
