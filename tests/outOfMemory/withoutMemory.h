#pragma once

#include <functional>

namespace quorvane {

/// True when the call throws std::bad_alloc as there is no memory left.
bool isOutOfMemory(const std::function<void()>& call);

}  // namespace quorvane
