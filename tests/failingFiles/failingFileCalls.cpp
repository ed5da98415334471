#include "tests/failingFiles/failingFileCalls.h"

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>

// The program has functions of its own in the place of the system's. They are found first by all
// that is linked with it: the library and the command, and also the C++ library, which looks at
// paths, folders and files on their behalf.

namespace quorvane {

namespace {

struct Plan {
    bool isRunning = false;
    std::size_t number = 0;
    Fault fault = Fault::Once;
    int error = 0;
    std::vector<std::string> calls;

    bool isReached() const { return calls.size() > number; }

    /// Notes the call; true when it is one that fails.
    bool fails(const char* name) {
        if (!isRunning) {
            return false;
        }
        calls.emplace_back(name);
        const bool isChosen = fault == Fault::Once ? calls.size() == number + 1 : isReached();
        if (!isChosen || fault == Fault::ShortTransfers) {
            return false;
        }
        errno = error;
        return true;
    }

    std::size_t transfer(std::size_t size) const {
        return isRunning && fault == Fault::ShortTransfers && isReached() && size > 1 ? 1 : size;
    }
};

Plan plan;

}  // namespace

std::vector<std::string> withFailingCall(std::size_t number, Fault fault, int error,
                                         const std::function<void()>& action) {
    plan = {true, number, fault, error, {}};
    try {
        action();
    } catch (...) {
        plan.isRunning = false;
        throw;
    }
    plan.isRunning = false;
    return plan.calls;
}

}  // namespace quorvane

using quorvane::plan;

namespace {

/// The system's own function of a name.
template <class Function>
Function* systemFunction(const char* name) {
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

/// What a call returns: when it is one that fails, `failure`, and otherwise what the system does.
template <class Call, class Result>
Result unlessFailing(const char* name, Result failure, Call call) {
    return plan.fails(name) ? failure : call();
}

/// The same for a call that releases something, which it does even when it fails.
template <class Call>
int evenIfFailing(const char* name, Call call) {
    const bool fails = plan.fails(name);
    const int error = errno;
    const int result = call();
    errno = fails ? error : errno;
    return fails ? -1 : result;
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
    static auto* const real = systemFunction<int(const char*, int, ...)>("open");
    std::va_list arguments;
    va_start(arguments, flags);
    const auto mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    return unlessFailing("open", -1, [&] { return real(path, flags, mode); });
}

int openat(int folder, const char* path, int flags, ...) {
    static auto* const real = systemFunction<int(int, const char*, int, ...)>("openat");
    std::va_list arguments;
    va_start(arguments, flags);
    const auto mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    return unlessFailing("openat", -1, [&] { return real(folder, path, flags, mode); });
}

std::FILE* fopen64(const char* path, const char* mode) {
    static auto* const real = systemFunction<std::FILE*(const char*, const char*)>("fopen64");
    return unlessFailing("fopen", static_cast<std::FILE*>(nullptr),
                         [&] { return real(path, mode); });
}

DIR* fdopendir(int folder) {
    static auto* const real = systemFunction<DIR*(int)>("fdopendir");
    return unlessFailing("fdopendir", static_cast<DIR*>(nullptr), [&] { return real(folder); });
}

dirent* readdir(DIR* folder) {
    static auto* const real = systemFunction<dirent*(DIR*)>("readdir");
    return unlessFailing("readdir", static_cast<dirent*>(nullptr), [&] { return real(folder); });
}

ssize_t read(int file, void* bytes, size_t size) {
    static auto* const real = systemFunction<ssize_t(int, void*, size_t)>("read");
    return unlessFailing("read", ssize_t{-1},
                         [&] { return real(file, bytes, plan.transfer(size)); });
}

ssize_t write(int file, const void* bytes, size_t size) {
    static auto* const real = systemFunction<ssize_t(int, const void*, size_t)>("write");
    return unlessFailing("write", ssize_t{-1},
                         [&] { return real(file, bytes, plan.transfer(size)); });
}

off64_t lseek64(int file, off64_t offset, int from) noexcept {
    static auto* const real = systemFunction<off64_t(int, off64_t, int)>("lseek64");
    return unlessFailing("lseek", off64_t{-1}, [&] { return real(file, offset, from); });
}

int close(int file) {
    static auto* const real = systemFunction<int(int)>("close");
    return evenIfFailing("close", [&] { return real(file); });
}

int fclose(std::FILE* file) {
    static auto* const real = systemFunction<int(std::FILE*)>("fclose");
    return evenIfFailing("fclose", [&] { return real(file); });
}

int unlink(const char* path) noexcept {
    static auto* const real = systemFunction<int(const char*)>("unlink");
    return unlessFailing("unlink", -1, [&] { return real(path); });
}

int rename(const char* from, const char* to) noexcept {
    static auto* const real = systemFunction<int(const char*, const char*)>("rename");
    return unlessFailing("rename", -1, [&] { return real(from, to); });
}

int stat(const char* path, struct stat* status) noexcept {
    static auto* const real = systemFunction<int(const char*, struct stat*)>("stat");
    return unlessFailing("stat", -1, [&] { return real(path, status); });
}

int lstat(const char* path, struct stat* status) noexcept {
    static auto* const real = systemFunction<int(const char*, struct stat*)>("lstat");
    return unlessFailing("lstat", -1, [&] { return real(path, status); });
}

int fchmod(int file, mode_t mode) noexcept {
    static auto* const real = systemFunction<int(int, mode_t)>("fchmod");
    return unlessFailing("fchmod", -1, [&] { return real(file, mode); });
}

int faccessat(int folder, const char* path, int mode, int flags) noexcept {
    static auto* const real = systemFunction<int(int, const char*, int, int)>("faccessat");
    return unlessFailing("faccessat", -1, [&] { return real(folder, path, mode, flags); });
}

ssize_t readlink(const char* path, char* target, size_t size) noexcept {
    static auto* const real = systemFunction<ssize_t(const char*, char*, size_t)>("readlink");
    return unlessFailing("readlink", ssize_t{-1}, [&] { return real(path, target, size); });
}

char* realpath(const char* path, char* resolved) noexcept {
    static auto* const real = systemFunction<char*(const char*, char*)>("realpath");
    return unlessFailing("realpath", static_cast<char*>(nullptr),
                         [&] { return real(path, resolved); });
}

char* getcwd(char* folder, size_t size) noexcept {
    static auto* const real = systemFunction<char*(char*, size_t)>("getcwd");
    return unlessFailing("getcwd", static_cast<char*>(nullptr), [&] { return real(folder, size); });
}
}
