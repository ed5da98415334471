#include <gtest/gtest.h>
#include <quorvane.h>
#include <windows.h>

#include <atomic>
#include <cstdlib>
#include <string>

// What a program sees that loads the library while it runs, as most languages do. This one is not
// linked with it.

namespace {

constexpr const char* description =
    "; quorvane 2\n(doc\n(row\n(cell\n(para\n(pt=a {b})\npara)\ncell)\nrow)\ndoc)\n";
constexpr const char* wrongDescription = "(doc\n(r\n(rb=pinkish)\nr)\ndoc)\n";

/// The library as it was built, loaded until this is destroyed.
class LoadedLibrary {
public:
    LoadedLibrary() : module_(LoadLibraryA(QUORVANE_LIBRARY)) {
        if (!module_) {
            ADD_FAILURE() << "error " << GetLastError();
            std::abort();
        }
    }
    LoadedLibrary(const LoadedLibrary&) = delete;
    LoadedLibrary& operator=(const LoadedLibrary&) = delete;
    ~LoadedLibrary() { FreeLibrary(module_); }

    template <class Function>
    Function* function(const char* name) const {
        return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(module_, name)));
    }

private:
    HMODULE module_;
};

#define QUORVANE_FUNCTION(library, name) (library).function<decltype(name)>(#name)

/// Renders a description with a job of its own; what it was asked for, or "<none>".
std::string rendered(const LoadedLibrary& library, const char* text) {
    quorvane_job* job = nullptr;
    char* bytes = nullptr;
    size_t length = 0;
    QUORVANE_FUNCTION(library, quorvane_job_new)(&job);
    const quorvane_status status =
        QUORVANE_FUNCTION(library, quorvane_job_render)(job, QUORVANE_TEXT(text), &bytes, &length);
    std::string document = status == QUORVANE_OK ? std::string(bytes, length) : "<none>";
    QUORVANE_FUNCTION(library, quorvane_free)(bytes);
    QUORVANE_FUNCTION(library, quorvane_job_free)(job);
    return document;
}

TEST(LoadedLibrary, HasItsFunctionsByTheirPlainNames) {
    const LoadedLibrary library;
    EXPECT_STREQ(QUORVANE_FUNCTION(library, quorvane_version)(), "1.0.0");
    EXPECT_NE(rendered(library, description).find("a \\{b\\}"), std::string::npos);
    EXPECT_EQ(rendered(library, wrongDescription), "<none>");
}

/// Loads and frees the library without a call that keeps it loaded.
[[noreturn]] void loadAndFree1500Times() {
    for (int i = 0; i < 1500; ++i) {
        const LoadedLibrary library;
        if (std::string(QUORVANE_FUNCTION(library, quorvane_version)()) != "1.0.0") {
            ExitProcess(1);
        }
    }
    ExitProcess(GetModuleHandleA("quorvane-1.dll") ? 0 : 2);
}

TEST(LoadedLibraryDeathTest, CanBeFreedAndLoadedAgainAndStaysLoaded) {
    EXPECT_EXIT(loadAndFree1500Times(), testing::ExitedWithCode(0), "");
}

constexpr int manyRounds = 80;

DWORD WINAPI meetErrors(void* rounds) {
    const LoadedLibrary library;
    while (true) {
        rendered(library, wrongDescription);
        ++*static_cast<std::atomic<int>*>(rounds);
    }
}

/// Ends the process while another thread throws and catches exceptions in the library.
[[noreturn]] void endWhileAThreadWorks() {
    static std::atomic<int> rounds = 0;
    CreateThread(nullptr, 0, meetErrors, &rounds, 0, nullptr);
    while (rounds < manyRounds) {
        Sleep(1);
    }
    ExitProcess(0);
}

TEST(LoadedLibraryDeathTest, LetsTheProcessEndWhileAThreadIsInACall) {
    for (int i = 0; i < 10; ++i) {
        EXPECT_EXIT(endWhileAThreadWorks(), testing::ExitedWithCode(0), "");
    }
}

#ifndef _WIN64
/// Calls a function as a program does that keeps its stack aligned to four bytes only: `shift`
/// bytes below an address that sixteen divides.
void callWithStackShifted(void (*function)(), unsigned shift) {
    asm volatile(
        "movl %%esp, %%ebx\n\t"
        "andl $-16, %%esp\n\t"
        "subl %[shift], %%esp\n\t"
        "call *%[function]\n\t"
        "movl %%ebx, %%esp"
        :
        : [function] "S"(function), [shift] "D"(shift)
        : "eax", "ebx", "ecx", "edx", "memory", "cc");
}

void expectToRender() {
    const LoadedLibrary library;
    EXPECT_NE(rendered(library, description), "<none>");
    EXPECT_EQ(rendered(library, wrongDescription), "<none>");
}

TEST(LoadedLibrary, IsCalledWithAStackOfAnyAlignment) {
    for (const unsigned shift : {0U, 4U, 8U, 12U}) {
        callWithStackShifted(expectToRender, shift);
    }
}
#endif

}  // namespace
