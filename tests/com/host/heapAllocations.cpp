#include "tests/com/host/heapAllocations.h"

#include <windows.h>

#include <vector>

namespace quorvane::host {

HeapAllocations heapAllocations() {
    HeapAllocations found;
    std::vector<HANDLE> heaps(64);
    heaps.resize(GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data()));
    for (const HANDLE heap : heaps) {
        PROCESS_HEAP_ENTRY entry{};
        HeapLock(heap);
        while (HeapWalk(heap, &entry)) {
            if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) {
                ++found.count;
                found.bytes += entry.cbData;
            }
        }
        HeapUnlock(heap);
    }
    return found;
}

}  // namespace quorvane::host
