#pragma once

#include <quorvane.h>

#include <cstdint>
#include <string>

namespace quorvane::capi {

/// What an error reports; see `quorvane_error`.
struct ErrorText {
    quorvane_status status = QUORVANE_OK;
    std::int32_t number = 0;
    std::string identifier = {};
    std::string message = {};
    std::string file = {};
    std::int64_t line = 0;
    std::int64_t column = 0;
};

/// The error of a handle, as C sees it.
class HandleError {
public:
    HandleError() noexcept { view(); }
    HandleError(const HandleError&) = delete;
    HandleError& operator=(const HandleError&) = delete;

    /// Takes the exception that is handled now, and returns its status. Without memory for the
    /// error, that is what it reports.
    quorvane_status take() noexcept;

    const quorvane_error& get() const noexcept { return seen_; }

    /// The message with the file and the place before it; empty if there is no error.
    const char* wholeMessage() const noexcept { return seenWhole_; }

private:
    void view() noexcept;
    quorvane_status lackMemory() noexcept;

    ErrorText text_;
    std::string whole_;
    quorvane_error seen_{};
    const char* seenWhole_ = "";
};

/// The error of a handle that is null.
const quorvane_error& errorWithoutHandle() noexcept;

}  // namespace quorvane::capi
