#include "tests/com/host/Thread.h"

#include <objbase.h>

#include <stdexcept>
#include <utility>

namespace quorvane::host {

Thread::Thread(std::function<void()> body, Apartment apartment)
    : body_(std::move(body)),
      apartment_(apartment),
      handle_(CreateThread(nullptr, 0, run, this, 0, nullptr)) {
    if (!handle_) {
        throw std::runtime_error("no thread");
    }
}

Thread::~Thread() {
    WaitForSingleObject(handle_, INFINITE);
    CloseHandle(handle_);
}

void Thread::waitWithCalls() const {
    while (MsgWaitForMultipleObjects(1, &handle_, FALSE, INFINITE, QS_ALLINPUT) != WAIT_OBJECT_0) {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            DispatchMessageW(&message);
        }
    }
}

DWORD WINAPI Thread::run(void* self) {
    const auto& thread = *static_cast<Thread*>(self);
    const bool isSingle = thread.apartment_ == Apartment::SingleThreaded;
    CoInitializeEx(nullptr, isSingle ? COINIT_APARTMENTTHREADED : COINIT_MULTITHREADED);
    thread.body_();
    CoUninitialize();
    return 0;
}

}  // namespace quorvane::host
