#pragma once

#include <poll.h>
#include <sys/types.h>

#include <cerrno>
#include <string>
#include <string_view>

#include "quorvane/base/platform/Files.h"

namespace quorvane {

/// Makes a system call on a descriptor again for as long as a signal interrupts it, or the other
/// side of a pipe that does not block is not ready.
template <class Call>
ssize_t whenReady(int descriptor, short event, Call call) {
    while (true) {
        const ssize_t result = call();
        if (result != -1 || (errno != EINTR && errno != EAGAIN)) {
            return result;
        }
        if (errno == EAGAIN) {
            pollfd waiting{descriptor, event, 0};
            ::poll(&waiting, 1, -1);
        }
    }
}

/// Opens a file, which no program started later inherits; -1 with `errno` when it cannot be opened.
int openDescriptor(const std::string& path, int flags);

/// An open descriptor, which it closes. What is written is not buffered: it comes in large blocks.
class DescriptorFile : public OutputFile {
public:
    explicit DescriptorFile(int descriptor) noexcept : descriptor_(descriptor) {}
    DescriptorFile(const DescriptorFile&) = delete;
    DescriptorFile& operator=(const DescriptorFile&) = delete;
    ~DescriptorFile() override;

    int descriptor() const noexcept { return descriptor_; }

    void write(std::string_view bytes) override;
    void close() override;

private:
    int descriptor_;
};

}  // namespace quorvane
