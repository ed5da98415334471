#include "tests/failingFiles/failingFileCalls.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>

// The linker leads the calls of the library and the command here, and those named __real_… to the
// system.

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

extern "C" {

// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp): the linker's names.
int __real_open(const char* path, int flags, ...);
ssize_t __real_read(int file, void* bytes, size_t size);
ssize_t __real_write(int file, const void* bytes, size_t size);
int __real_close(int file);
int __real_unlink(const char* path);
int __real_rename(const char* from, const char* to);
int __real_stat(const char* path, struct stat* status);
int __real_lstat(const char* path, struct stat* status);
int __real_fchmod(int file, mode_t mode);
int __real_faccessat(int folder, const char* path, int mode, int flags);

int __wrap_open(const char* path, int flags, ...) {
    std::va_list arguments;
    va_start(arguments, flags);
    const auto mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    return plan.fails("open") ? -1 : __real_open(path, flags, mode);
}

ssize_t __wrap_read(int file, void* bytes, size_t size) {
    return plan.fails("read") ? -1 : __real_read(file, bytes, plan.transfer(size));
}

ssize_t __wrap_write(int file, const void* bytes, size_t size) {
    return plan.fails("write") ? -1 : __real_write(file, bytes, plan.transfer(size));
}

// A close that fails has closed the file all the same.
int __wrap_close(int file) {
    const bool fails = plan.fails("close");
    const int error = errno;
    const int result = __real_close(file);
    errno = fails ? error : errno;
    return fails ? -1 : result;
}

int __wrap_unlink(const char* path) {
    return plan.fails("unlink") ? -1 : __real_unlink(path);
}

int __wrap_rename(const char* from, const char* to) {
    return plan.fails("rename") ? -1 : __real_rename(from, to);
}

int __wrap_stat(const char* path, struct stat* status) {
    return plan.fails("stat") ? -1 : __real_stat(path, status);
}

int __wrap_lstat(const char* path, struct stat* status) {
    return plan.fails("lstat") ? -1 : __real_lstat(path, status);
}

int __wrap_fchmod(int file, mode_t mode) {
    return plan.fails("fchmod") ? -1 : __real_fchmod(file, mode);
}

int __wrap_faccessat(int folder, const char* path, int mode, int flags) {
    return plan.fails("faccessat") ? -1 : __real_faccessat(folder, path, mode, flags);
}
// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
}
