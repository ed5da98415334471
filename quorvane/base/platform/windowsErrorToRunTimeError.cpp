#include "quorvane/base/platform/windowsErrorToRunTimeError.h"

#include <windows.h>

namespace quorvane {

RunTimeError windowsErrorToRunTimeError(unsigned long code) noexcept {
    switch (code) {
        case ERROR_FILE_NOT_FOUND:
        case ERROR_INVALID_NAME:
            return RunTimeError::FileNotFound;
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_DRIVE:
        case ERROR_BAD_PATHNAME:
        case ERROR_DIRECTORY:
        case ERROR_FILENAME_EXCED_RANGE:
        case ERROR_BAD_NETPATH:
        case ERROR_BAD_NET_NAME:
            return RunTimeError::PathNotFound;
        case ERROR_ACCESS_DENIED:
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
        case ERROR_WRITE_PROTECT:
        case ERROR_NETWORK_ACCESS_DENIED:
        case ERROR_USER_MAPPED_FILE:
        case ERROR_DELETE_PENDING:
            return RunTimeError::PathFileAccessError;
        case ERROR_TOO_MANY_OPEN_FILES:
            return RunTimeError::TooManyFiles;
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
            return RunTimeError::DiskFull;
        default:
            return RunTimeError::DeviceIoError;
    }
}

}  // namespace quorvane
