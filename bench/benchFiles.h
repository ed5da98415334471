#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace quorvane::bench {

/// Writes a file and returns its path.
std::string writtenFile(const std::filesystem::path& path, std::string_view text);

/// A new folder, which goes with all that is in it.
class TemporaryFolder {
public:
    explicit TemporaryFolder(std::filesystem::path path);
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

/// The name of a folder of this process for temporary files, on disk.
std::filesystem::path diskFolder();

/// The same in a file system that keeps files in memory only: what is written there waits neither
/// for a disk nor for what others wrote. Empty where there is none.
std::filesystem::path memoryFolder();

/// Files that the benchmarks render, written into a folder.
struct BenchFiles {
    BenchFiles(const std::filesystem::path& folder, const std::filesystem::path& examples);

    /// The smallest description.
    std::string minimal;
    /// 999 rows, cells and paragraphs, and their stylesheet.
    std::string full;
    std::string fullSheet;
    /// 1,000 copies of the example invoice, and its stylesheet.
    std::vector<std::string> invoices;
    std::string invoiceSheet;
};

/// A command that ends with the names of files.
std::vector<std::string> withFiles(std::vector<std::string> command,
                                   const std::vector<std::string>& files);

}  // namespace quorvane::bench
