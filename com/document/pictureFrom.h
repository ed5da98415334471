#pragma once

#include <windows.h>

#include <oleauto.h>

#include "quorvane/compose/Picture.h"

namespace quorvane::com {

/// Reads a picture file, to be shown in that size; lengths that are not given follow from the file.
Picture pictureFrom(BSTR path, const VARIANT* width, const VARIANT* height);

}  // namespace quorvane::com
