// Compares two builds of the programs: compare_bench PROGRAMS OTHER EXAMPLES, the folders of the
// programs, of other programs to compare them with, and of the examples. Every job is run by turns,
// several times. Fails when a job costs more than a tenth more than with the other programs.

#include <cstdio>
#include <exception>
#include <filesystem>
#include <functional>
#include <string>

#include "bench/Turns.h"
#include "bench/benchFiles.h"

namespace quorvane::bench {
namespace {

namespace fs = std::filesystem;

struct Job {
    const char* name;
    int times;
    /// Its command: the folder of the programs and a fresh folder are given.
    std::function<Command(const std::string& programs, const std::string& out)> command;
};

std::vector<Job> jobsFor(const BenchFiles& files) {
    const auto quorvane = [](const Command& arguments) {
        return [arguments](const std::string& programs, const std::string& out) {
            Command command = {programs + "/quorvane"};
            for (const std::string& argument : arguments) {
                command.push_back(argument == "OUT" ? out : argument);
            }
            return command;
        };
    };
    return {
        {"render the smallest description", 101, quorvane({"render", files.minimal, "-o", "-"})},
        {"render 999 rows with checks", 41,
         quorvane({"render", "--check", "-s", files.fullSheet, files.full, "-o", "-"})},
        {"render 1,000 invoices", 11,
         quorvane(withFiles({"render", "-s", files.invoiceSheet, "--output-dir", "OUT"},
                            files.invoices))},
        {"check 1,000 invoices", 11,
         quorvane(withFiles({"check", "--quiet", "-s", files.invoiceSheet}, files.invoices))},
        {"format 1,000 invoices", 11, quorvane(withFiles({"format", "--diff"}, files.invoices))},
        {"the standard job of 100,000 rows", 11,
         [](const std::string& programs, const std::string& out) {
             return Command{programs + "/table_bench", "100000", out + "/standard.rtf"};
         }},
    };
}

/// True if it costs at most a tenth more.
bool compare(const Job& job, const fs::path& folder, const std::string& programs,
             const std::string& other) {
    constexpr double tenthMore = 1.1;
    const TemporaryFolder turns(folder / "turns");
    const Turns result(
        turns.path(), job.times, [&](const std::string& out) { return job.command(programs, out); },
        [&](const std::string& out) { return job.command(other, out); });
    const double memory = result.ratio(&Run::peakMegabytes).value;
    const bool isGood = result.ratio(&Run::work).value <= tenthMore && memory <= tenthMore;
    std::printf("- %s%s: %s, %.2f in peak memory\n", isGood ? "" : "COSTS MORE: ", job.name,
                result.text().c_str(), memory);
    static_cast<void>(std::fflush(stdout));
    return isGood;
}

/// True if every job costs at most a tenth more.
bool compareAll(const fs::path& programs, const fs::path& other, const fs::path& examples) {
    const fs::path memory = memoryFolder();
    const TemporaryFolder folder(memory.empty() ? diskFolder() : memory);
    const BenchFiles files(folder.path(), examples);
    for (const char* name : {"quorvane", "table_bench"}) {
        fs::create_directories(folder.path() / "ours");
        fs::create_directories(folder.path() / "other");
        fs::copy_file(programs / name, folder.path() / "ours" / name);
        fs::copy_file(other / name, folder.path() / "other" / name);
    }
    bool isGood = true;
    for (const Job& job : jobsFor(files)) {
        isGood = compare(job, folder.path(), (folder.path() / "ours").string(),
                         (folder.path() / "other").string()) &&
                 isGood;
    }
    return isGood;
}

}  // namespace
}  // namespace quorvane::bench

int main(int argc, char** argv) {
    if (argc != 4) {
        static_cast<void>(
            std::fprintf(stderr, "usage: %s PROGRAMS OTHER-PROGRAMS EXAMPLES\n", argv[0]));
        return 2;
    }
    try {
        return quorvane::bench::compareAll(argv[1], argv[2], argv[3]) ? 0 : 1;
    } catch (const std::exception& error) {
        static_cast<void>(std::fprintf(stderr, "%s\n", error.what()));
        return 2;
    }
}
