#include "quorvane/base/platform/errnoToRunTimeError.h"

#include <cerrno>

namespace quorvane {

RunTimeError errnoToRunTimeError(int code) noexcept {
    switch (code) {
        case EACCES:
        case EPERM:
        case EBUSY:
        case EROFS:
        case ETXTBSY:
        case EISDIR:
            return RunTimeError::PathFileAccessError;
        case ENOENT:
            return RunTimeError::FileNotFound;
        case ENOTDIR:
            return RunTimeError::PathNotFound;
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return RunTimeError::DiskFull;
        case EMFILE:
        case ENFILE:
            return RunTimeError::TooManyFiles;
        default:
            return RunTimeError::DeviceIoError;
    }
}

}  // namespace quorvane
