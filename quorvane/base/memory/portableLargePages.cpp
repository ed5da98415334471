#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>

#include "quorvane/base/memory/largePages.h"

namespace quorvane {

#if defined(MADV_HUGEPAGE)

void preferLargePages(void* start, std::size_t length) noexcept {
    constexpr std::size_t worthwhile = std::size_t{4} * 1024 * 1024;
    if (length < worthwhile) {
        return;
    }
    const auto pageSize = static_cast<std::uintptr_t>(::sysconf(_SC_PAGESIZE));
    const auto address = reinterpret_cast<std::uintptr_t>(start);
    const std::uintptr_t first = (address + pageSize - 1) / pageSize * pageSize;
    const std::uintptr_t end = (address + length) / pageSize * pageSize;
    // It is a wish: without large pages everything works as well.
    static_cast<void>(
        ::madvise(static_cast<char*>(start) + (first - address), end - first, MADV_HUGEPAGE));
}

#else

void preferLargePages(void*, std::size_t) noexcept {}

#endif

}  // namespace quorvane
