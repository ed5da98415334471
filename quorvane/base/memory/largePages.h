#pragma once

#include <cstddef>

namespace quorvane {

/// Announces to the system that all of this memory will be filled. Where it can, the system then
/// supplies it in large pages, which saves most of the cost of memory used for the first time. Does
/// nothing to memory of less than a few such pages.
void preferLargePages(void* start, std::size_t length) noexcept;

}  // namespace quorvane
