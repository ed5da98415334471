#include "quorvane/base/platform/portableDescriptorFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstddef>
#include <utility>

#include "quorvane/base/platform/portableSystemError.h"

namespace quorvane {

int openDescriptor(const std::string& path, int flags) {
    constexpr mode_t readAndWriteForAll = 0666;
    int descriptor = -1;
    do {
        descriptor = ::open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY, readAndWriteForAll);
    } while (descriptor == -1 && errno == EINTR);
    return descriptor;
}

DescriptorFile::~DescriptorFile() {
    if (descriptor_ != -1) {
        ::close(descriptor_);
    }
}

void DescriptorFile::write(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = whenReady(
            descriptor_, POLLOUT, [&] { return ::write(descriptor_, bytes.data(), bytes.size()); });
        if (written == -1) {
            raiseSystemError(errno);
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

void DescriptorFile::close() {
    // Not tried again: the descriptor is gone even when a signal interrupts the call.
    if (::close(std::exchange(descriptor_, -1)) == -1 && errno != EINTR) {
        raiseSystemError(errno);
    }
}

}  // namespace quorvane
