#pragma once

#include <cstdio>
#include <filesystem>
#include <functional>
#include <memory>
#include <string_view>

namespace quorvane::cli {

/// Bytes that are written and then read again, and that would take too much memory. The file goes
/// with the object, and with the process. Errors are those of files; their causes name the folder.
class TemporaryFile {
public:
    TemporaryFile();

    /// Appends the bytes.
    void write(std::string_view bytes);
    /// Hands over all bytes, in blocks. Nothing can be written after that.
    void read(const std::function<void(std::string_view block)>& take);

private:
    struct Closing {
        void operator()(std::FILE* file) const noexcept { static_cast<void>(std::fclose(file)); }
    };

    [[noreturn]] void fail(int systemError) const;

    std::filesystem::path folder_;
    std::unique_ptr<std::FILE, Closing> file_;
};

}  // namespace quorvane::cli
