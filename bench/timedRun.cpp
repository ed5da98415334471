#include "bench/timedRun.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <stdexcept>

extern char** environ;

namespace quorvane::bench {

namespace {

double milliseconds(const timeval& used) {
    return static_cast<double>(used.tv_sec) * 1e3 + static_cast<double>(used.tv_usec) / 1e3;
}

/// Starts a program without standard output. Returns -1 when it cannot start.
pid_t start(const Command& command, bool keepsErrors) {
    std::vector<char*> arguments;
    for (const std::string& argument : command) {
        arguments.push_back(const_cast<char*>(argument.c_str()));
    }
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    if (!keepsErrors) {
        ::posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    }
    pid_t process = -1;
    const int failure =
        ::posix_spawnp(&process, arguments[0], &actions, nullptr, arguments.data(), environ);
    ::posix_spawn_file_actions_destroy(&actions);
    return failure == 0 ? process : -1;
}

}  // namespace

Run timedRun(const Command& command) {
    const auto begin = std::chrono::steady_clock::now();
    const pid_t process = start(command, true);
    int status = 0;
    rusage usage{};
    if (process == -1 || ::wait4(process, &status, 0, &usage) == -1 || status != 0) {
        throw std::runtime_error("cannot run " + command[0]);
    }
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - begin;
    return {milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime), time.count(),
            static_cast<double>(usage.ru_maxrss) / 1024};
}

bool succeeds(const Command& command) {
    const pid_t process = start(command, false);
    int status = 0;
    return process != -1 && ::waitpid(process, &status, 0) == process && status == 0;
}

}  // namespace quorvane::bench
