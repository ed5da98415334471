#pragma once

#include <cstdint>
#include <exception>
#include <memory>
#include <string>

namespace quorvane {

/// Numbers of the run-time errors that the library raises itself. They are below 65536; the errors
/// of the driver have numbers of their own (see `tErrorLevel`).
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

/// The one error type that crosses the library's borders.
class RtfError : public std::exception {
public:
    RtfError(std::int32_t number, std::string description, std::string source = {});

    /// The run-time error with its standard description and no source.
    explicit RtfError(RunTimeError number);

    /// The error's description.
    const char* what() const noexcept override { return description.c_str(); }

    /// True when the error is the given run-time error.
    bool is(RunTimeError which) const noexcept {
        return number == static_cast<std::int32_t>(which);
    }

    /// Error number, 32-bit signed: a run-time error number below 65536, or an automation error.
    std::int32_t number;
    /// What went wrong, for a person.
    std::string description;
    /// The procedure that failed; empty when it is not known.
    std::string source;
    /// The 1-based line of the description text that the error concerns; 0 when there is none.
    int line = 0;
    /// The error that caused this one, such as the system's; null when there is none.
    std::shared_ptr<const RtfError> cause;
};

/// Throws the error.
[[noreturn]] void raise(RtfError error);

/// Throws the run-time error with its standard description.
[[noreturn]] void raise(RunTimeError number);

}  // namespace quorvane
