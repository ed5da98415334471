#pragma once

#include <cstdint>

#include "quorvane/base/values/RtfError.h"

namespace quorvane {

/// Number of the error that a call raises; 0 when it raises none.
template <class Call>
std::int32_t errorNumberOf(const Call& call) {
    try {
        call();
    } catch (const RtfError& error) {
        return error.number;
    }
    return 0;
}

}  // namespace quorvane
