#include <windows.h>

#include <memory>

#include "quorvane/support/currentError.h"

// The error stands in a slot of the system, which calls back when a thread ends. A `thread_local`
// object would not do: the compiler's run-time code frees the memory of such objects before it runs
// their destructors when it is linked into a DLL.

namespace quorvane {

namespace {

using IsEnding = BOOLEAN(NTAPI*)();

IsEnding findIsEnding() noexcept {
    const HMODULE system = GetModuleHandleW(L"ntdll.dll");
    const FARPROC function = system ? GetProcAddress(system, "RtlDllShutdownInProgress") : nullptr;
    return reinterpret_cast<IsEnding>(reinterpret_cast<void*>(function));
}

// Found beforehand: the system holds a lock while it calls back, and the loader's lock must not be
// taken after that one.
constinit IsEnding isEnding = nullptr;

/// While the process ends, the other threads have been stopped wherever they were, and the heap
/// must be left alone.
void CALLBACK deleteError(void* error) noexcept {
    if (!isEnding || !isEnding()) {
        delete static_cast<RtfError*>(error);
    }
}

/// The system calls back for as long as threads end, so the code must stay where it is: the module
/// that holds it is never unloaded.
DWORD allocateSlot() noexcept {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN,
                       reinterpret_cast<const wchar_t*>(&deleteError), &module);
    isEnding = findIsEnding();
    return FlsAlloc(deleteError);
}

/// FLS_OUT_OF_INDEXES when the process has no slot left. Threads then have no current error.
DWORD slot() noexcept {
    static const DWORD allocated = allocateSlot();
    return allocated;
}

RtfError* keptError() noexcept {
    return static_cast<RtfError*>(FlsGetValue(slot()));
}

}  // namespace

const RtfError* currentError() noexcept {
    return keptError();
}

// What the slot holds is whole at every moment: a thread may be stopped here for good.

void setCurrentError(const RtfError& raised) {
    auto error = std::make_unique<RtfError>(raised);
    const std::unique_ptr<RtfError> previous(keptError());
    if (FlsSetValue(slot(), error.get())) {
        static_cast<void>(error.release());
    }
}

void clearCurrentError() noexcept {
    if (const std::unique_ptr<RtfError> previous(keptError()); previous) {
        FlsSetValue(slot(), nullptr);
    }
}

}  // namespace quorvane
