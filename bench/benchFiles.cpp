#include "bench/benchFiles.h"

#include <unistd.h>

#include <fstream>
#include <string_view>
#include <system_error>
#include <utility>

#include "bench/standardJob.h"

namespace quorvane::bench {

namespace {

namespace fs = std::filesystem;

std::string folderName() {
    return "quorvane-bench-" + std::to_string(::getpid());
}

}  // namespace

std::string writtenFile(const fs::path& path, std::string_view text) {
    std::ofstream(path, std::ios::binary) << text;
    return path.string();
}

TemporaryFolder::TemporaryFolder(fs::path path) : path_(std::move(path)) {
    fs::create_directory(path_);
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

fs::path diskFolder() {
    return fs::temp_directory_path() / folderName();
}

fs::path memoryFolder() {
    const fs::path shared = "/dev/shm";
    return ::access(shared.c_str(), W_OK | X_OK) == 0 ? shared / folderName() : fs::path();
}

BenchFiles::BenchFiles(const fs::path& folder, const fs::path& examples)
    : minimal(
          writtenFile(folder / "minimal.rtfspec", "(doc\n(r\n(c\n(p\n(pt=a)\np)\nc)\nr)\ndoc)\n")),
      full(writtenFile(folder / "full.rtfspec", fullDescription())),
      fullSheet(writtenFile(folder / "full.rtfss", standardStyleSheet())),
      invoiceSheet((examples / "invoice.rtfss").string()) {
    constexpr int copies = 1000;
    for (int i = 0; i < copies; ++i) {
        const fs::path invoice = folder / ("invoice" + std::to_string(i) + ".rtfspec");
        fs::copy_file(examples / "invoice.rtfspec", invoice);
        invoices.push_back(invoice.string());
    }
}

std::vector<std::string> withFiles(std::vector<std::string> command,
                                   const std::vector<std::string>& files) {
    command.insert(command.end(), files.begin(), files.end());
    return command;
}

}  // namespace quorvane::bench
