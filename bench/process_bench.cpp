// Times of whole processes beside plain programs: process_bench PROGRAMS EXAMPLES, the folders of
// the built programs and of the examples. Every pair is run by turns, several times.

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/standardJob.h"

extern char** environ;

namespace quorvane::bench {
namespace {

namespace fs = std::filesystem;

using Command = std::vector<std::string>;

struct Run {
    // Of the processor, the system's share included, and on the clock.
    double work;
    double elapsed;
    double peakMegabytes;
};

/// Runs a program to its end, with its standard output thrown away.
Run runOnce(const Command& command) {
    std::vector<char*> arguments;
    for (const std::string& argument : command) {
        arguments.push_back(const_cast<char*>(argument.c_str()));
    }
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    const auto start = std::chrono::steady_clock::now();
    pid_t process = 0;
    const int failure =
        ::posix_spawn(&process, arguments[0], &actions, nullptr, arguments.data(), environ);
    ::posix_spawn_file_actions_destroy(&actions);
    int status = 0;
    rusage usage{};
    if (failure != 0 || ::wait4(process, &status, 0, &usage) == -1 || status != 0) {
        throw std::runtime_error("cannot run " + command[0]);
    }
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    const auto milliseconds = [](const timeval& used) {
        return static_cast<double>(used.tv_sec) * 1e3 + static_cast<double>(used.tv_usec) / 1e3;
    };
    return {milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime), time.count(),
            static_cast<double>(usage.ru_maxrss) / 1024};
}

/// Makes the command of a run: a folder is given in which nothing was written before, since to
/// replace or remove many files is work that others still pay for afterwards.
using MakeCommand = std::function<Command(const std::string& freshFolder)>;

class Comparison {
public:
    explicit Comparison(fs::path folder) : folder_(std::move(folder)) {
        fs::create_directory(folder_);
    }

    /// Prints the ratios of the best times and returns a run of the first.
    Run compare(const char* what, int times, const MakeCommand& ours, const MakeCommand& plain) {
        std::vector<Run> our;
        std::vector<Run> their;
        for (int i = 0; i < times; ++i) {
            our.push_back(runOnce(ours(freshFolder())));
            their.push_back(runOnce(plain(freshFolder())));
        }
        const auto least = [](const std::vector<Run>& runs, double Run::*time) {
            double best = runs.front().*time;
            for (const Run& run : runs) {
                best = std::min(best, run.*time);
            }
            return best;
        };
        const double ourWork = least(our, &Run::work);
        const double theirWork = least(their, &Run::work);
        const double ourTime = least(our, &Run::elapsed);
        const double theirTime = least(their, &Run::elapsed);
        std::printf(
            "- %s: %.2f in processor time (%.2f and %.2f ms), %.2f on the clock (%.2f and "
            "%.2f ms)\n",
            what, ourWork / theirWork, ourWork, theirWork, ourTime / theirTime, ourTime, theirTime);
        static_cast<void>(std::fflush(stdout));
        return our.front();
    }

private:
    std::string freshFolder() {
        const fs::path fresh = folder_ / std::to_string(++folders_);
        fs::create_directory(fresh);
        return fresh.string();
    }

    fs::path folder_;
    int folders_ = 0;
};

void writeFile(const fs::path& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
}

std::string sizeOf(const fs::path& path) {
    return std::to_string(fs::file_size(path));
}

/// Many small documents in one call.
void compareMany(const char* what, const fs::path& programs, const fs::path& examples,
                 const fs::path& folder) {
    constexpr int copies = 1000;
    constexpr int runs = 11;
    const std::string quorvane = (programs / "quorvane").string();
    const std::string invoiceSheet = (examples / "invoice.rtfss").string();
    std::vector<std::string> invoices;
    for (int i = 0; i < copies; ++i) {
        const fs::path invoice = folder / ("invoice" + std::to_string(i) + ".rtfspec");
        fs::copy_file(examples / "invoice.rtfspec", invoice);
        invoices.push_back(invoice.string());
    }
    runOnce({quorvane, "render", "-s", invoiceSheet, invoices.front(), "-o",
             (folder / "invoice.rtf").string()});
    const std::string invoiceSize = sizeOf(folder / "invoice.rtf");
    const auto withInvoices = [&](Command command) {
        command.insert(command.end(), invoices.begin(), invoices.end());
        return command;
    };
    Comparison(folder / "many")
        .compare(
            what, runs,
            [&](const std::string& out) {
                return withInvoices({quorvane, "render", "-s", invoiceSheet, "--output-dir", out});
            },
            [&](const std::string& out) {
                return withInvoices({(programs / "copy_files").string(), invoiceSize, out});
            });
}

/// A new folder's name in a file system that keeps files in memory only: what is written there does
/// not wait for a disk, nor for what others wrote. Empty where there is none.
fs::path memoryFolder(const fs::path& name) {
    const fs::path shared = "/dev/shm";
    return ::access(shared.c_str(), W_OK | X_OK) == 0 ? shared / name : fs::path();
}

/// A new folder, which goes with all that is in it.
class TemporaryFolder {
public:
    explicit TemporaryFolder(fs::path path) : path_(std::move(path)) {
        fs::create_directory(path_);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }

private:
    fs::path path_;
};

void compareAll(const fs::path& programs, const fs::path& examples, const fs::path& folder) {
    const std::string quorvane = (programs / "quorvane").string();
    const std::string copyFiles = (programs / "copy_files").string();
    Comparison comparison(folder);

    const std::string minimal = (folder / "minimal.rtfspec").string();
    writeFile(minimal, "(doc\n(r\n(c\n(p\n(pt=a)\np)\nc)\nr)\ndoc)\n");
    const auto printLine = [&](const std::string&) {
        return Command{(programs / "print_line").string()};
    };
    comparison.compare(
        "The command on the smallest description, to standard output, to a program that prints a "
        "line",
        200,
        [&](const std::string&) {
            return Command{quorvane, "render", minimal, "-o", "-"};
        },
        printLine);
    comparison.compare(
        "The same, to a file", 200,
        [&](const std::string& out) {
            return Command{quorvane, "render", minimal, "-o", out + "/minimal.rtf"};
        },
        printLine);

    const std::string full = (folder / "full.rtfspec").string();
    const std::string sheet = (folder / "full.rtfss").string();
    writeFile(full, fullDescription());
    writeFile(sheet, std::string(standardStyleSheet()));
    const auto renderFull = [&](const std::string& out) {
        return Command{quorvane, "render", "--check", "-s", sheet, full, "-o", out + "/full.rtf"};
    };
    runOnce(renderFull(folder.string()));
    const std::string fullSize = sizeOf(folder / "full.rtf");
    comparison.compare(
        "A description of 999 rows, cells and paragraphs with checks, to a program that reads that "
        "file and writes one of the document's size",
        60, renderFull, [&](const std::string& out) {
            return Command{copyFiles, fullSize, out, full};
        });

    compareMany(
        "1,000 copies of the example invoice in one call, to a program that reads those "
        "files and writes files of the documents' size",
        programs, examples, folder);
    if (const fs::path memory = memoryFolder(folder.filename()); !memory.empty()) {
        const TemporaryFolder inMemory(memory);
        compareMany("The same in a file system in memory (/dev/shm)", programs, examples, memory);
    }

    constexpr std::int32_t rows = 100000;
    const std::string tableBench = (programs / "table_bench").string();
    const std::string document = (folder / "standard.rtf").string();
    const Run standard = comparison.compare(
        "The standard job of 100,000 rows as a whole process, to the one-buffer emitter as a whole "
        "process",
        9,
        [&](const std::string&) {
            return Command{tableBench, std::to_string(rows), document};
        },
        [&](const std::string&) {
            return Command{tableBench, std::to_string(rows), document, "emitter"};
        });
    const Run empty = runOnce({tableBench, "0", document + ".empty"});
    constexpr double megabyte = 1024 * 1024;
    const double cells = rows * cellsPerRow;
    const double allowed =
        (cells * (200 + characterCount) + 1.2 * static_cast<double>(fs::file_size(document))) /
        megabyte;
    std::printf("- Its peak memory beyond that of the job without rows: %.1f MB, of %.1f allowed\n",
                standard.peakMegabytes - empty.peakMegabytes, allowed);
}

}  // namespace
}  // namespace quorvane::bench

int main(int argc, char** argv) {
    namespace fs = std::filesystem;
    if (argc != 3) {
        static_cast<void>(std::fprintf(stderr, "usage: %s PROGRAMS EXAMPLES\n", argv[0]));
        return 2;
    }
    const fs::path folder =
        fs::temp_directory_path() / ("quorvane-bench-" + std::to_string(::getpid()));
    try {
        const quorvane::bench::TemporaryFolder temporary(folder);
        quorvane::bench::compareAll(argv[1], argv[2], folder);
    } catch (const std::exception& error) {
        static_cast<void>(std::fprintf(stderr, "%s\n", error.what()));
        return 1;
    }
    return 0;
}
