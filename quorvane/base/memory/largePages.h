#pragma once

#include <cstddef>

namespace quorvane {

/// Tells the system that this memory will be filled whole. Where it can, it then supplies it in
/// large pages, which saves most of the cost of memory used for the first time. Does nothing to
/// memory of less than a few such pages.
void preferLargePages(void* start, std::size_t length) noexcept;

}  // namespace quorvane
