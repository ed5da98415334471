#pragma once

#include <windows.h>

#include <string_view>

#include "quorvane/base/platform/Files.h"

namespace quorvane {

/// The most that is read or written at once.
inline constexpr DWORD largestTransfer = 1U << 30;

/// An open handle, which it closes. What is written is not buffered: it comes in large blocks.
class HandleFile : public OutputFile {
public:
    explicit HandleFile(HANDLE handle) noexcept : handle_(handle) {}
    HandleFile(const HandleFile&) = delete;
    HandleFile& operator=(const HandleFile&) = delete;
    ~HandleFile() override { abandon(); }

    bool isOpen() const noexcept { return handle_ != INVALID_HANDLE_VALUE; }
    HANDLE handle() const noexcept { return handle_; }

    void write(std::string_view bytes) override;
    void close() override;
    /// Closes the handle, if it is open, and reports no error.
    void abandon() noexcept;

private:
    HANDLE handle_;
};

}  // namespace quorvane
