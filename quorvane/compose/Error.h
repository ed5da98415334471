#pragma once

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane {

/// What an `Error` reports.
struct ErrorDetails {
    /// What is wrong, and what to write instead where that is known.
    std::string message;
    /// The identifier of the diagnostic that explains the error, such as "wrong-value" or
    /// "undefined-style". The other identifiers are "wrong-call" for an index or a key that does
    /// not exist and for an object that is no longer there, "unreadable-file" and
    /// "unwritable-file", and "wrong-document" for a document that cannot be rendered.
    std::string identifier;
    /// The file that the error is about; empty if it is not about a file.
    std::string file{};
    /// Line and column in the file or text, from 1; 0 if the error is not about a place.
    std::int64_t line = 0;
    std::int64_t column = 0;
    /// All diagnostics about a description or a stylesheet that was refused, its warnings among
    /// them; empty for all other errors.
    std::vector<Diagnostic> diagnostics{};
};

/// The error that `Document`, its rows, cells and paragraphs, `render` and `check` throw. They
/// throw nothing else but `std::bad_alloc` and what a stream or a function of the caller throws.
/// `what` returns the whole message: `prices.rtfspec:3:7: "a44" is not a page; …`.
///
/// `TableWriter` and the classes that `native` returns throw `RtfError`.
class Error : public std::runtime_error {
public:
    /// makes an error of its details.
    explicit Error(ErrorDetails details);
    Error(const Error&) noexcept = default;
    Error& operator=(const Error&) noexcept = default;
    ~Error() override;

    /// Returns the message without the file and the place.
    const std::string& message() const noexcept { return details_->message; }
    /// Returns the identifier; see `ErrorDetails`.
    const std::string& identifier() const noexcept { return details_->identifier; }
    /// Returns the file; empty if the error is not about a file.
    const std::string& file() const noexcept { return details_->file; }
    /// Returns the line, from 1; 0 if the error is not about a place.
    std::int64_t line() const noexcept { return details_->line; }
    /// Returns the column, from 1; 0 if the error is not about a place.
    std::int64_t column() const noexcept { return details_->column; }
    /// Returns the diagnostics about a description or stylesheet that was refused.
    const std::vector<Diagnostic>& diagnostics() const noexcept { return details_->diagnostics; }

private:
    std::shared_ptr<const ErrorDetails> details_;
};

}  // namespace quorvane
