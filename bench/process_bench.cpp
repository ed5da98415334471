// Costs of whole processes beside plain programs: process_bench PROGRAMS EXAMPLES PEERS, the
// folders of the built programs, of the examples and of programs in other languages. Every pair is
// run by turns, several times.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <utility>

#include "bench/Turns.h"
#include "bench/benchFiles.h"
#include "bench/standardJob.h"

namespace quorvane::bench {
namespace {

namespace fs = std::filesystem;

std::string sizeOf(const fs::path& path) {
    return std::to_string(fs::file_size(path));
}

/// The programs, copied as an installation does: what a linker wrote, the system keeps in smaller
/// pieces, and starts more slowly.
class Programs {
public:
    Programs(const fs::path& built, const fs::path& folder) : folder_(folder) {
        for (const char* name :
             {"quorvane", "print_line", "copy_files", "csv_rows", "table_bench", "c_table"}) {
            fs::copy_file(built / name, folder_ / name);
        }
    }

    std::string operator()(const char* name) const { return (folder_ / name).string(); }

private:
    fs::path folder_;
};

class ProcessBench {
public:
    ProcessBench(const fs::path& built, const fs::path& examples, fs::path peers, fs::path folder)
        : folder_(std::move(folder)),
          peers_(std::move(peers)),
          programs_(built, folder_),
          packages_(installPackage(built, examples, folder_)),
          files_(folder_, examples) {}

    void compareSmallest() {
        const auto printLine = [&](const std::string&) { return Command{programs_("print_line")}; };
        compare(
            "The command on the smallest description, to standard output, to a program that prints "
            "a line",
            200,
            [&](const std::string&) {
                return Command{programs_("quorvane"), "render", files_.minimal, "-o", "-"};
            },
            printLine);
        compare(
            "The same, to a file", 200,
            [&](const std::string& out) {
                return Command{programs_("quorvane"), "render", files_.minimal, "-o",
                               out + "/minimal.rtf"};
            },
            printLine);
    }

    void compareFull() {
        const auto renderFull = [&](const std::string& out) {
            return Command{programs_("quorvane"), "render",    "--check", "-s",
                           files_.fullSheet,      files_.full, "-o",      out + "/full.rtf"};
        };
        timedRun(renderFull(folder_.string()));
        const std::string size = sizeOf(folder_ / "full.rtf");
        compare(
            "A description of 999 rows, cells and paragraphs with checks, to a program that reads "
            "that file and writes one of the document's size",
            61, renderFull, [&](const std::string& out) {
                return Command{programs_("copy_files"), size, out, files_.full};
            });
    }

    /// Many small documents in one call.
    void compareMany(const char* what) {
        timedRun({programs_("quorvane"), "render", "-s", files_.invoiceSheet,
                  files_.invoices.front(), "-o", (folder_ / "invoice.rtf").string()});
        const std::string size = sizeOf(folder_ / "invoice.rtf");
        compare(
            what, 11, [&](const std::string& out) { return renderInvoices({}, out); },
            [&](const std::string& out) {
                return withFiles({programs_("copy_files"), size, out}, files_.invoices);
            });
    }

    void compareManyOnTwoCores() {
        compare(
            "1,000 copies of the example invoice in memory with -j2, to the same with one core", 11,
            [&](const std::string& out) { return renderInvoices({"-j2"}, out); },
            [&](const std::string& out) { return renderInvoices({}, out); });
    }

    void compareStandardJob(const char* where) {
        const std::string rows = std::to_string(standardRows);
        const auto run = [&](const Command& how) {
            return [&, how](const std::string& out) {
                Command command = {programs_("table_bench"), rows, out + "/standard.rtf"};
                command.insert(command.end(), how.begin(), how.end());
                return command;
            };
        };
        const std::string job =
            std::string("The standard job of 100,000 rows as a process") + where;
        const Turns toOneBuffer =
            compare((job + ", to the one-buffer emitter").c_str(), 11, run({}), run({"emitter"}));
        compare((job + ", to the streaming emitter").c_str(), 11, run({}), run({"streaming"}));
        compare((job + " through the modern interface, to the object model").c_str(), 11,
                run({"modern"}), run({}));
        const auto fromC = [&](const std::string& out) {
            return Command{programs_("c_table"), rows, out + "/standard.rtf"};
        };
        requireSameJob(fromC, run({"own"}));
        compare((job + " through the library for C, to the modern interface").c_str(), 11, fromC,
                run({"own"}));
        if (succeeds({"python3", "--version"})) {
            const auto fromPython = [&](const std::string& out) {
                return Command{"python3", (peers_ / "standard_job.py").string(), packages_, rows,
                               out + "/standard.rtf"};
            };
            requireSameJob(fromPython, fromC);
            compare((job + " through the Python package, to the library for C").c_str(), 3,
                    fromPython, fromC);
        }
        std::printf("- Its peak memory: %.1f MB; that of the one-buffer emitter: %.1f MB\n",
                    toOneBuffer.ours(&Run::peakMegabytes), toOneBuffer.theirs(&Run::peakMegabytes));
    }

    void compareTable() {
        const std::string pattern = makeTable("pattern", 0);
        const std::string large = makeTable("large", manyRows);
        const std::string small = makeTable("small", fewRows);
        timedRun(tableOf(pattern, folder_.string()));
        requireSameTables(small);
        const auto ofLarge = [&](const std::string& out) { return tableOf(large, out); };
        const Turns toPlain = compare(
            "quorvane table of 1,000,000 rows and 5 columns, to a program that splits the lines of "
            "the file at commas and writes the same bytes",
            5, ofLarge, [&](const std::string& out) { return plainTableOf(large, out); });
        std::printf("- Its peak memory: %.1f MB\n", toPlain.ours(&Run::peakMegabytes));
        const Turns toSmall = compare("The same, to 10,000 rows", 5, ofLarge,
                                      [&](const std::string& out) { return tableOf(small, out); });
        std::printf("- For each row: %.2f in processor time\n",
                    toSmall.ratio(&Run::work).value * fewRows / manyRows);
        comparePeers(large, small);
        comparePackage(pattern);
        compareSorted(large);
    }

    bool rendersSideBySide() const {
        return succeeds({programs_("quorvane"), "render", "-j2", files_.minimal, "-o", "-"});
    }

private:
    /// Programs that others would take for the same job. They are the first ones here.
    void comparePeers(const std::string& large, const std::string& small) {
        if (succeeds({"python3", "--version"})) {
            compare(
                "A program in Python that reads the same 1,000,000 rows with its csv module and "
                "writes the same bytes, to quorvane table",
                3, [&](const std::string& out) { return pythonTableOf(large, out); },
                [&](const std::string& out) { return tableOf(large, out); });
        }
        if (succeeds({"pandoc", "--version"})) {
            compare(
                "pandoc, which makes an RTF file of 10,000 rows, to quorvane table", 3,
                [&](const std::string& out) {
                    return Command{"pandoc", "--standalone", "--from=csv",
                                   small,    "--output",     out + "/pandoc.rtf"};
                },
                [&](const std::string& out) { return tableOf(small, out); });
        }
    }

    /// The package needs the library for C.
    void comparePackage(const std::string& pattern) {
        if (!succeeds({"python3", "--version"})) {
            return;
        }
        const std::string table = makeTable("package", packageRows);
        const auto ofCommand = [&](const std::string& out) { return tableOf(table, out); };
        const auto ofPackage = [&](const std::string& csv) {
            return [&, csv](const std::string& out) {
                return Command{"python3",
                               (peers_ / "table_of_file.py").string(),
                               packages_,
                               csv,
                               out + "/package.rtf",
                               tableColumns};
            };
        };
        requireSameJob(ofPackage(table), ofCommand, "package.rtf");
        const Turns whole = compare(
            "table_of_file_to of the Python package for 100,000 rows and 5 columns, as a process, "
            "to quorvane table",
            11, ofPackage(table), ofCommand);
        const Turns start =
            compare("The same for two rows, which is the start of Python and the package", 11,
                    ofPackage(pattern), ofCommand);
        std::printf("- Without that start: %.2f in processor time\n",
                    whole.ratio(&Run::work).value - start.ratio(&Run::work).value);
    }

    void compareSorted(const std::string& large) {
        const Turns toUnsorted = compare(
            "quorvane table --sort of 1,000,000 rows, to the same without it", 3,
            [&](const std::string& out) {
                Command command = tableOf(large, out);
                command.insert(command.end(), {"--sort", "price:desc,article"});
                return command;
            },
            [&](const std::string& out) { return tableOf(large, out); });
        std::printf("- Its peak memory: %.1f MB, for %.1f MB of data\n",
                    toUnsorted.ours(&Run::peakMegabytes),
                    static_cast<double>(fs::file_size(large)) / 1e6);
    }

    static constexpr std::int32_t standardRows = 100000;
    static constexpr std::int32_t manyRows = 1000000;
    static constexpr std::int32_t fewRows = 10000;
    static constexpr std::int32_t packageRows = 100000;
    // They do not depend on the contents.
    static constexpr const char* tableColumns =
        "no:10%:right,article:20%,description:40%,price:15%:right,stock:15%:right";

    /// A file of so many rows; with none, one of two rows with "@" in each field.
    std::string makeTable(const std::string& name, std::int32_t rows) const {
        std::string path = (folder_ / (name + ".csv")).string();
        std::ofstream file(path, std::ios::binary);
        file << "no,article,description,price,stock\n";
        if (rows == 0) {
            file << "@,@,@,@,@\n@,@,@,@,@\n";
        }
        for (std::int32_t row = 0; row < rows; ++row) {
            file << row << ",Article " << row % 977 << ",With a short description " << row % 131
                 << ',' << row % 1000 << '.' << 10 + row % 90 << ',' << row % 500 << '\n';
        }
        return path;
    }

    Command tableOf(const std::string& csv, const std::string& out) const {
        return {programs_("quorvane"),
                "table",
                csv,
                "-o",
                (fs::path(out) / fs::path(csv).stem()).string() + ".rtf",
                "--columns",
                tableColumns};
    }

    Command plainTableOf(const std::string& csv, const std::string& out) const {
        return {programs_("csv_rows"), csv, (folder_ / "pattern.rtf").string(), out + "/plain.rtf"};
    }

    Command pythonTableOf(const std::string& csv, const std::string& out) const {
        return {"python3", (peers_ / "csv_rows.py").string(), csv,
                (folder_ / "pattern.rtf").string(), out + "/plain.rtf"};
    }

    void requireSameTables(const std::string& csv) const {
        timedRun(tableOf(csv, folder_.string()));
        requireSameTable(plainTableOf(csv, folder_.string()));
        if (succeeds({"python3", "--version"})) {
            requireSameTable(pythonTableOf(csv, folder_.string()));
        }
    }

    /// Both commands write a file of this name into the folder that they are made for.
    void requireSameJob(const MakeCommand& first, const MakeCommand& second,
                        const char* name = "standard.rtf") const {
        const fs::path kept = folder_ / "first.rtf";
        const fs::path written = folder_ / name;
        timedRun(first(folder_.string()));
        fs::rename(written, kept);
        timedRun(second(folder_.string()));
        const bool isSame = areEqual(kept, written);
        fs::remove(kept);
        fs::remove(written);
        if (!isSame) {
            throw std::runtime_error("The interfaces do not write the same document");
        }
    }

    void requireSameTable(const Command& plainTable) const {
        timedRun(plainTable);
        if (!areEqual(folder_ / "small.rtf", folder_ / "plain.rtf")) {
            throw std::runtime_error("The programs do not write the same table");
        }
    }

    /// Without the files in memory, which would count as memory of the programs.
    static bool areEqual(const fs::path& first, const fs::path& second) {
        std::ifstream ours(first, std::ios::binary);
        std::ifstream theirs(second, std::ios::binary);
        return std::equal(std::istreambuf_iterator<char>(ours), {},
                          std::istreambuf_iterator<char>(theirs), {});
    }

    Command renderInvoices(const Command& options, const std::string& out) const {
        Command command = {programs_("quorvane"), "render",       "-s",
                           files_.invoiceSheet,   "--output-dir", out};
        command.insert(command.end(), options.begin(), options.end());
        return withFiles(std::move(command), files_.invoices);
    }

    Turns compare(const char* what, int times, const MakeCommand& ours, const MakeCommand& theirs) {
        const TemporaryFolder turns(folder_ / "turns");
        Turns result(turns.path(), times, ours, theirs);
        std::printf("- %s: %s\n", what, result.text().c_str());
        static_cast<void>(std::fflush(stdout));
        return result;
    }

    /// The Python package with its library, as it is installed, in a folder of its own.
    static std::string installPackage(const fs::path& built, const fs::path& examples,
                                      const fs::path& folder) {
        const fs::path package = folder / "packages" / "quorvane";
        fs::create_directories(package);
        for (const auto& file :
             fs::directory_iterator(examples / "../bindings/python/src/quorvane")) {
            if (file.path().extension() == ".py") {
                fs::copy_file(file.path(), package / file.path().filename());
            }
        }
        fs::copy_file(built / "capi/libquorvane.so.1", package / "libquorvane.so.1");
        return package.parent_path().string();
    }

    fs::path folder_;
    fs::path peers_;
    Programs programs_;
    std::string packages_;
    BenchFiles files_;
};

void compareAll(const fs::path& programs, const fs::path& examples, const fs::path& peers) {
    const TemporaryFolder onDisk(diskFolder());
    ProcessBench disk(programs, examples, peers, onDisk.path());
    disk.compareSmallest();
    disk.compareFull();
    disk.compareMany(
        "1,000 copies of the example invoice in one call, to a program that reads those files and "
        "writes files of the documents' size");
    disk.compareStandardJob("");
    if (memoryFolder().empty()) {
        return;
    }
    const TemporaryFolder inMemory(memoryFolder());
    ProcessBench memory(programs, examples, peers, inMemory.path());
    memory.compareMany("The 1,000 copies in a file system in memory (/dev/shm)");
    if (memory.rendersSideBySide()) {
        memory.compareManyOnTwoCores();
    }
    memory.compareStandardJob(" that writes into memory");
    memory.compareTable();
}

void compareTables(const fs::path& programs, const fs::path& examples, const fs::path& peers) {
    const TemporaryFolder folder(memoryFolder().empty() ? diskFolder() : memoryFolder());
    ProcessBench(programs, examples, peers, folder.path()).compareTable();
}

}  // namespace
}  // namespace quorvane::bench

int main(int argc, char** argv) {
    const bool isOfTables = argc == 5 && std::string(argv[4]) == "tables";
    if (argc != 4 && !isOfTables) {
        static_cast<void>(
            std::fprintf(stderr, "usage: %s PROGRAMS EXAMPLES PEERS [tables]\n", argv[0]));
        return 2;
    }
    try {
        const auto compare =
            isOfTables ? quorvane::bench::compareTables : quorvane::bench::compareAll;
        compare(argv[1], argv[2], argv[3]);
    } catch (const std::exception& error) {
        static_cast<void>(std::fprintf(stderr, "%s\n", error.what()));
        return 1;
    }
    return 0;
}
