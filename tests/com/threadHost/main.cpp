// A host whose threads come and go, as those of a service do: threadHost SCENE. Each thread uses
// the component on its own, sees errors and ends in the way that the scene is about. The exit
// status is 0 when all went well; an access violation anywhere, also one that somebody handles,
// ends the program at once with status 2.

#include <windows.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "tests/com/host/ComPtr.h"
#include "tests/com/host/Component.h"
#include "tests/com/host/Thread.h"
#include "tests/com/host/interfaces.h"
#include "tests/com/host/text.h"

namespace quorvane::host {
namespace {

constexpr UINT accessViolated = 2;

LONG CALLBACK endAtAccessViolations(EXCEPTION_POINTERS* exception) {
    if (exception->ExceptionRecord->ExceptionCode == EXCEPTION_ACCESS_VIOLATION) {
        const char message[] = "access violation\n";
        DWORD written = 0;
        WriteFile(GetStdHandle(STD_ERROR_HANDLE), message, sizeof message - 1, &written, nullptr);
        TerminateProcess(GetCurrentProcess(), accessViolated);
    }
    return EXCEPTION_CONTINUE_SEARCH;
}

void require(bool condition, const char* what) {
    if (!condition) {
        std::fprintf(stderr, "%s\n", what);
        std::fflush(stderr);
        TerminateProcess(GetCurrentProcess(), 1);
    }
}

/// Makes a driver, lets it meet an error of a description and one of a path, and releases it. The
/// last error stays the thread's current one.
void meetErrors(const Component& component) {
    const auto driver = component.create<_CRtfDriver>(__uuidof(::CRtfDriver));
    driver->put_ErroneousInput(VARIANT_TRUE);
    const Bstr description(L"(doc\r\n(row\r\n(bogus=1)\r\n(cell\r\ncell)\r\nrow)\r\ndoc)");
    require(driver->ParseFromMemmory(description.get()) == S_OK, "the description is not read");
    require(FAILED(driver->ParseFile(Bstr(L"").get())), "the empty path is accepted");
}

void inThreads(int count, int atATime, const std::function<void()>& body) {
    for (int begun = 0; begun < count; begun += atATime) {
        std::vector<std::unique_ptr<Thread>> threads;
        for (int i = 0; i < atATime; ++i) {
            threads.push_back(std::make_unique<Thread>(body));
        }
    }
}

constexpr int manyThreads = 80;
constexpr int atATime = 4;

/// 80 threads, four at a time, end while an error is their current one.
void end() {
    const Component component;
    inThreads(manyThreads, atATime, [&component] { meetErrors(component); });
}

/// The same, and each thread loads and frees the component itself.
void endAfterFreeing() {
    inThreads(manyThreads, atATime, [] { meetErrors(Component()); });
}

/// Threads that were there before the component end after it has been freed.
void outliveTheComponent() {
    const HANDLE freed = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    std::vector<std::unique_ptr<Thread>> threads;
    {
        const Component component;
        std::vector<HANDLE> done;
        for (int i = 0; i < atATime; ++i) {
            done.push_back(CreateEventW(nullptr, TRUE, FALSE, nullptr));
            threads.push_back(std::make_unique<Thread>([&component, freed, mine = done.back()] {
                meetErrors(component);
                SetEvent(mine);
                WaitForSingleObject(freed, INFINITE);
            }));
        }
        WaitForMultipleObjects(static_cast<DWORD>(done.size()), done.data(), TRUE, INFINITE);
    }
    SetEvent(freed);
}

/// Threads are stopped from outside after their calls.
void areKilled() {
    static const Component component;
    for (int i = 0; i < 10; ++i) {
        std::vector<std::unique_ptr<Thread>> threads;
        std::atomic<int> begun = 0;
        for (int j = 0; j < atATime; ++j) {
            threads.push_back(std::make_unique<Thread>([&begun] {
                meetErrors(component);
                ++begun;
                Sleep(INFINITE);
            }));
        }
        while (begun < atATime) {
            Sleep(1);
        }
        for (const auto& thread : threads) {
            thread->kill();
        }
    }
    inThreads(atATime, atATime, [] { meetErrors(component); });
}

/// The program ends while a thread is in a call. No other thread competes with it for a lock of the
/// system, and nothing is cleaned up first: Wine's waits for locks take a lock of their own, which
/// waits forever for a thread that was stopped while it held it.
void workToTheEnd() {
    static const Component component;
    static std::atomic<int> rounds = 0;
    [[maybe_unused]] static const auto& neverDeleted = *new Thread([] {
        while (true) {
            meetErrors(component);
            ++rounds;
        }
    });
    while (rounds < manyThreads) {
        Sleep(1);
    }
    ExitProcess(0);
}

struct FiberWork {
    const Component& component;
    void* thread;
};

void WINAPI meetErrorsInFiber(void* parameter) {
    const auto& work = *static_cast<const FiberWork*>(parameter);
    meetErrors(work.component);
    SwitchToFiber(work.thread);
}

/// Fibers end while an error is their current one.
void areFibers() {
    const Component component;
    inThreads(atATime, 1, [&component] {
        FiberWork work{component, ConvertThreadToFiber(nullptr)};
        for (int i = 0; i < manyThreads; ++i) {
            void* fiber = CreateFiber(0, meetErrorsInFiber, &work);
            meetErrors(component);
            SwitchToFiber(fiber);
            DeleteFiber(fiber);
        }
        ConvertFiberToThread();
    });
}

/// Documents are used by the threads, and released by one that comes later.
void leaveObjectsBehind() {
    const Component component;
    std::vector<ComPtr<_CRtfDriver>> drivers;
    inThreads(manyThreads, 1, [&] {
        drivers.push_back(component.create<_CRtfDriver>(__uuidof(::CRtfDriver)));
        require(FAILED(drivers.back()->ParseFile(Bstr(L"").get())), "the empty path is accepted");
    });
    inThreads(1, 1, [&] { drivers.clear(); });
    require(component.canUnloadNow() == S_OK, "an object is left");
}

/// The component is loaded and freed thousands of times, each time for a thread of its own.
void loadAndFree() {
    inThreads(3000, atATime, [] { meetErrors(Component()); });
}

/// No error can be kept: the process has given all its slots to others.
void haveNoSlot() {
    while (FlsAlloc(nullptr) != FLS_OUT_OF_INDEXES) {
    }
    const Component component;
    inThreads(atATime, atATime, [&component] { meetErrors(component); });
}

const std::map<std::string, void (*)()> scenes = {
    {"end", end},
    {"endAfterFreeing", endAfterFreeing},
    {"outliveTheComponent", outliveTheComponent},
    {"areKilled", areKilled},
    {"workToTheEnd", workToTheEnd},
    {"areFibers", areFibers},
    {"leaveObjectsBehind", leaveObjectsBehind},
    {"loadAndFree", loadAndFree},
    {"haveNoSlot", haveNoSlot},
};

}  // namespace
}  // namespace quorvane::host

int main(int argc, char** argv) {
    using namespace quorvane::host;
    AddVectoredExceptionHandler(1, endAtAccessViolations);
    const auto scene = argc == 2 ? scenes.find(argv[1]) : scenes.end();
    require(scene != scenes.end(), "threadHost SCENE");
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    scene->second();
    CoUninitialize();
    // As most programs end: all other threads are stopped, the libraries are called once more.
    std::fflush(stdout);
    ExitProcess(0);
}
