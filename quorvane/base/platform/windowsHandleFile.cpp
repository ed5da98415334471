#include "quorvane/base/platform/windowsHandleFile.h"

#include <utility>

#include "quorvane/base/platform/windowsSystemError.h"

namespace quorvane {

void HandleFile::write(std::string_view bytes) {
    while (!bytes.empty()) {
        const auto length =
            static_cast<DWORD>(bytes.size() < largestTransfer ? bytes.size() : largestTransfer);
        DWORD written = 0;
        if (!WriteFile(handle_, bytes.data(), length, &written, nullptr)) {
            raiseSystemError(GetLastError());
        }
        bytes.remove_prefix(written);
    }
}

void HandleFile::close() {
    if (!CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE))) {
        raiseSystemError(GetLastError());
    }
}

void HandleFile::abandon() noexcept {
    if (isOpen()) {
        CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE));
    }
}

}  // namespace quorvane
