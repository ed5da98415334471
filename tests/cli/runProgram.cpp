#include "tests/cli/runProgram.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <sstream>
#include <stdexcept>
#include <system_error>
#include <utility>

namespace quorvane::cli {

namespace {

int checked(int result, const char* what) {
    if (result == -1) {
        throw std::system_error(errno, std::generic_category(), what);
    }
    return result;
}

class Descriptor {
public:
    explicit Descriptor(int number = -1) noexcept : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    ~Descriptor() { close(); }

    int number() const noexcept { return number_; }
    void close() noexcept {
        if (number_ != -1) {
            ::close(std::exchange(number_, -1));
        }
    }

private:
    int number_;
};

/// Two descriptors: what is written to the second is read from the first.
struct Channel {
    Descriptor readEnd;
    Descriptor writeEnd;
};

Channel pipeChannel() {
    std::array<int, 2> ends{};
    checked(::pipe2(ends.data(), O_CLOEXEC), "pipe");
    return {Descriptor(ends[0]), Descriptor(ends[1])};
}

Channel terminalChannel() {
    Descriptor master(checked(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC), "posix_openpt"));
    checked(::grantpt(master.number()), "grantpt");
    checked(::unlockpt(master.number()), "unlockpt");
    Descriptor slave(
        checked(::open(::ptsname(master.number()), O_RDWR | O_NOCTTY | O_CLOEXEC), "open"));
    termios settings{};
    checked(::tcgetattr(slave.number(), &settings), "tcgetattr");
    settings.c_oflag &= ~static_cast<tcflag_t>(OPOST);
    checked(::tcsetattr(slave.number(), TCSANOW, &settings), "tcsetattr");
    winsize size{};
    size.ws_col = 80;
    size.ws_row = 24;
    checked(::ioctl(slave.number(), TIOCSWINSZ, &size), "ioctl");
    return {std::move(master), std::move(slave)};
}

/// Appends what can be read now; closes the descriptor at its end.
void readSome(Descriptor& descriptor, std::string& text) {
    std::array<char, 64 * 1024> block;
    const ssize_t count = ::read(descriptor.number(), block.data(), block.size());
    if (count > 0) {
        text.append(block.data(), static_cast<std::size_t>(count));
    } else if (count == 0 || errno != EINTR) {
        descriptor.close();
    }
}

void readAll(Descriptor& output, Descriptor& errors, ProgramResult& result) {
    while (output.number() != -1 || errors.number() != -1) {
        std::array<pollfd, 2> waiting{{{output.number(), POLLIN, 0}, {errors.number(), POLLIN, 0}}};
        ::poll(waiting.data(), waiting.size(), -1);
        if (waiting[0].revents != 0) {
            readSome(output, result.output);
        }
        if (waiting[1].revents != 0) {
            readSome(errors, result.errors);
        }
    }
}

[[noreturn]] void becomeProgram(const ProgramStart& start, const Channel& input,
                                const Channel& output, const Channel& errors) {
    std::string name = QUORVANE_PROGRAM;
    std::vector<std::string> arguments = start.arguments;
    std::vector<char*> pointers{name.data()};
    for (std::string& argument : arguments) {
        pointers.push_back(argument.data());
    }
    pointers.push_back(nullptr);
    ::dup2(input.readEnd.number(), STDIN_FILENO);
    ::dup2(output.writeEnd.number(), STDOUT_FILENO);
    ::dup2(errors.writeEnd.number(), STDERR_FILENO);
    constexpr int cannotStart = 127;
    if (::chdir(start.folder.c_str()) != 0) {
        ::_exit(cannotStart);
    }
    if (start.prepare) {
        start.prepare();
    }
    ::execv(name.c_str(), pointers.data());
    ::_exit(cannotStart);
}

}  // namespace

ProgramResult runProgram(const ProgramStart& start) {
    constexpr std::size_t pipeCapacity = 64 * 1024;
    if (start.input.size() > pipeCapacity) {
        throw std::length_error("more input than a pipe holds");
    }
    Channel input = pipeChannel();
    Channel output = start.outputOnTerminal ? terminalChannel() : pipeChannel();
    Channel errors = start.errorsOnTerminal ? terminalChannel() : pipeChannel();
    checked(
        static_cast<int>(::write(input.writeEnd.number(), start.input.data(), start.input.size())),
        "write");
    const pid_t process = checked(::fork(), "fork");
    if (process == 0) {
        becomeProgram(start, input, output, errors);
    }
    input.readEnd.close();
    input.writeEnd.close();
    output.writeEnd.close();
    errors.writeEnd.close();

    ProgramResult result;
    readAll(output.readEnd, errors.readEnd, result);
    int status = 0;
    checked(::waitpid(process, &status, 0), "waitpid");
    result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return result;
}

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

}  // namespace quorvane::cli
