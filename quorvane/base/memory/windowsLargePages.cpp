#include "quorvane/base/memory/largePages.h"

namespace quorvane {

// Large pages are a privilege of administrators here.
void preferLargePages(void*, std::size_t) noexcept {}

}  // namespace quorvane
