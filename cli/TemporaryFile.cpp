#include "cli/TemporaryFile.h"

#include <cerrno>
#include <cstddef>
#include <memory>
#include <string>
#include <system_error>
#include <vector>

#include "cli/process.h"
#include "quorvane/base/platform/utf8Path.h"
#include "quorvane/base/values/RtfError.h"

namespace quorvane::cli {

TemporaryFile::TemporaryFile() {
    std::error_code failure;
    // cppcheck-suppress useInitializationList ; an error names the member
    folder_ = std::filesystem::temp_directory_path(failure);
    if (failure) {
        fail(failure.value());
    }
    file_.reset(openTemporaryFile(folder_));
    if (!file_) {
        fail(errno);
    }
}

void TemporaryFile::write(std::string_view bytes) {
    if (std::fwrite(bytes.data(), 1, bytes.size(), file_.get()) != bytes.size()) {
        fail(errno);
    }
}

void TemporaryFile::read(const std::function<void(std::string_view block)>& take) {
    constexpr std::size_t blockSize = std::size_t{64} * 1024;
    if (std::fflush(file_.get()) != 0) {
        fail(errno);
    }
    std::rewind(file_.get());
    std::vector<char> block(blockSize);
    std::size_t size = 0;
    while ((size = std::fread(block.data(), 1, block.size(), file_.get())) > 0) {
        take({block.data(), size});
    }
    if (std::ferror(file_.get()) != 0) {
        fail(errno);
    }
}

void TemporaryFile::fail(int systemError) const {
    RtfError error(systemError == ENOSPC ? RunTimeError::DiskFull : RunTimeError::DeviceIoError);
    error.cause = std::make_shared<RtfError>(
        systemError, std::generic_category().message(systemError) +
                         " in the folder for temporary files" +
                         (folder_.empty() ? "" : ", " + utf8FromPath(folder_)));
    raise(std::move(error));
}

}  // namespace quorvane::cli
