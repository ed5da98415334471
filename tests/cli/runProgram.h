#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace quorvane::cli {

/// How a program came to its end, and what it wrote.
struct ProgramResult {
    /// Exit status; -1 when a signal ended it.
    int status = -1;
    std::string output;
    std::string errors;
};

/// How a program is started.
struct ProgramStart {
    std::vector<std::string> arguments;
    /// What it reads from standard input: a pipe that holds no more than 64 KB.
    std::string input{};
    /// Its current folder.
    std::filesystem::path folder = std::filesystem::current_path();
    /// Makes standard error a terminal of 80 columns instead of a pipe.
    bool errorsOnTerminal = false;
    /// Makes standard output such a terminal.
    bool outputOnTerminal = false;
    /// Runs in the new process before the program does.
    std::function<void()> prepare{};
};

/// Runs the command that was built along with the tests.
ProgramResult runProgram(const ProgramStart& start);

/// The lines of a text, without their ends.
std::vector<std::string> linesOf(const std::string& text);

}  // namespace quorvane::cli
