#pragma once

#include <utility>

#include "capi/HandleError.h"

namespace quorvane::capi {

/// An error about a text, whose place is known.
struct ContentError {
    ErrorText text;
};

}  // namespace quorvane::capi
