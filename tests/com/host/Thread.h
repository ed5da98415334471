#pragma once

#include <windows.h>

#include <functional>

namespace quorvane::host {

/// A thread in an apartment of its own.
class Thread {
public:
    enum class Apartment { SingleThreaded, MultiThreaded };

    explicit Thread(std::function<void()> body, Apartment apartment = Apartment::SingleThreaded);
    Thread(const Thread&) = delete;
    Thread& operator=(const Thread&) = delete;
    /// Waits for the thread's end.
    ~Thread();

    /// Waits for the thread's end while calls of others are let into this thread's apartment.
    void waitWithCalls() const;
    /// Stops the thread where it is.
    void kill() const { TerminateThread(handle_, 0); }

private:
    static DWORD WINAPI run(void* self);

    std::function<void()> body_;
    Apartment apartment_;
    HANDLE handle_;
};

}  // namespace quorvane::host
