#pragma once

#include <string_view>

#include "quorvane/base/values/RtfError.h"

namespace quorvane {

/// The standard text of a run-time error; empty for a number that is not one.
constexpr std::string_view runTimeErrorText(RunTimeError number) {
    switch (number) {
        case RunTimeError::InvalidProcedureCall:
            return "Invalid procedure call or argument";
        case RunTimeError::Overflow:
            return "Overflow";
        case RunTimeError::SubscriptOutOfRange:
            return "Subscript out of range";
        case RunTimeError::DivisionByZero:
            return "Division by zero";
        case RunTimeError::TypeMismatch:
            return "Type mismatch";
        case RunTimeError::FileNotFound:
            return "File not found";
        case RunTimeError::DeviceIoError:
            return "Device I/O error";
        case RunTimeError::DiskFull:
            return "Disk full";
        case RunTimeError::TooManyFiles:
            return "Too many files";
        case RunTimeError::PermissionDenied:
            return "Permission denied";
        case RunTimeError::PathFileAccessError:
            return "Path/File access error";
        case RunTimeError::PathNotFound:
            return "Path not found";
        case RunTimeError::ObjectNotSet:
            return "Object variable or With block variable not set";
        case RunTimeError::CannotCreateObject:
            return "ActiveX component can't create object";
        case RunTimeError::DuplicateKey:
            return "This key is already associated with an element of this collection";
    }
    return "";
}

}  // namespace quorvane
