#pragma once

#include <cstdint>
#include <exception>
#include <memory>
#include <string>

namespace quorvane {

/// Numbers of the run-time errors that the library raises, all below 65536. The errors of the
/// driver have other numbers (see `tErrorLevel`).
enum class RunTimeError : std::int32_t {
    InvalidProcedureCall = 5,
    Overflow = 6,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    FileNotFound = 53,
    DeviceIoError = 57,
    DiskFull = 61,
    TooManyFiles = 67,
    PermissionDenied = 70,
    PathFileAccessError = 75,
    PathNotFound = 76,
    ObjectNotSet = 91,
    CannotCreateObject = 429,
    DuplicateKey = 457,
};

/// The error that all functions of the library throw.
class RtfError : public std::exception {
public:
    /// An error with this number and description.
    RtfError(std::int32_t number, std::string description, std::string source = {});

    /// The run-time error with its standard description and no source.
    explicit RtfError(RunTimeError number);

    /// The run-time error with a description of its own.
    RtfError(RunTimeError number, std::string description);

    /// Returns the description.
    const char* what() const noexcept override { return description.c_str(); }

    /// Returns whether this is the given run-time error.
    bool is(RunTimeError which) const noexcept {
        return number == static_cast<std::int32_t>(which);
    }

    /// Number of the error: a run-time error below 65536, or -2147221504 plus a `tErrorLevel`.
    /// Others come from automation objects.
    std::int32_t number;
    /// What went wrong, in words.
    std::string description;
    /// The procedure that failed; often empty.
    std::string source;
    /// The line of the description, or of the stylesheet in the extended language, that the error
    /// is about, from 1; 0 if it is not about a line.
    int line = 0;
    /// The error that caused this one, or null.
    std::shared_ptr<const RtfError> cause;
};

/// Throws the error.
[[noreturn]] void raise(RtfError error);

/// Throws the run-time error with its standard description.
[[noreturn]] void raise(RunTimeError number);

/// Throws the run-time error with a description of its own.
[[noreturn]] void raise(RunTimeError number, std::string description);

}  // namespace quorvane
