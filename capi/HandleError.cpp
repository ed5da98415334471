#include "capi/HandleError.h"

#include <exception>
#include <new>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "capi/ContentError.h"
#include "capi/callError.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/base/values/deepestCause.h"
#include "quorvane/compose/Error.h"

namespace quorvane::capi {

namespace {

constexpr quorvane_error outOfMemory{
    QUORVANE_OUT_OF_MEMORY, 0, "out-of-memory", "There is not enough memory.", "", 0, 0};

constexpr quorvane_error noHandle{
    QUORVANE_WRONG_CALL, 0, "wrong-call", "The handle is null.", "", 0, 0};

ErrorText fromFile(const FileFailure& failure) {
    return {.status = QUORVANE_FILE_ERROR,
            .number = failure.error.number,
            .identifier = "unwritable-file",
            .message = deepestCause(failure.error).description,
            .file = failure.path};
}

ErrorText fromContent(const RtfError& error) {
    return {.status = QUORVANE_WRONG_CONTENT,
            .number = error.number,
            .identifier = "wrong-value",
            .message = error.description,
            .line = error.line};
}

quorvane_status statusOf(std::string_view identifier) {
    const bool isFile = identifier == "unreadable-file" || identifier == "unwritable-file";
    return isFile                       ? QUORVANE_FILE_ERROR
           : identifier == "wrong-call" ? QUORVANE_WRONG_CALL
                                        : QUORVANE_WRONG_CONTENT;
}

ErrorText fromError(const Error& error) {
    return {.status = statusOf(error.identifier()),
            .identifier = error.identifier(),
            .message = error.message(),
            .file = error.file(),
            .line = error.line(),
            .column = error.column()};
}

/// What the exception that is handled now reports.
ErrorText handledError() {
    try {
        throw;
    } catch (const CallError& error) {
        return {.status = QUORVANE_WRONG_CALL, .identifier = "wrong-call", .message = error.what()};
    } catch (const ContentError& error) {
        return error.text;
    } catch (const Error& error) {
        return fromError(error);
    } catch (const FileFailure& failure) {
        return fromFile(failure);
    } catch (const Stopped&) {
        return {.status = QUORVANE_STOPPED,
                .identifier = "stopped",
                .message = "The callback stopped the call."};
    } catch (const RtfError& error) {
        return fromContent(error);
    } catch (const std::length_error&) {
        throw std::bad_alloc();
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception& error) {
        return {.status = QUORVANE_INTERNAL_ERROR,
                .identifier = "internal-error",
                .message = error.what()};
    } catch (...) {
        return {.status = QUORVANE_INTERNAL_ERROR,
                .identifier = "internal-error",
                .message = "An unknown error occurred."};
    }
}

std::string wholeMessageOf(const ErrorText& text) {
    return Error({.message = text.message,
                  .identifier = text.identifier,
                  .file = text.file,
                  .line = text.line,
                  .column = text.column})
        .what();
}

}  // namespace

quorvane_status HandleError::take() noexcept {
    try {
        text_ = handledError();
        whole_ = wholeMessageOf(text_);
    } catch (...) {
        return lackMemory();
    }
    view();
    return text_.status;
}

quorvane_status HandleError::lackMemory() noexcept {
    seen_ = outOfMemory;
    seenWhole_ = outOfMemory.message;
    return QUORVANE_OUT_OF_MEMORY;
}

void HandleError::view() noexcept {
    seen_ = {text_.status,
             text_.number,
             text_.identifier.c_str(),
             text_.message.c_str(),
             text_.file.c_str(),
             static_cast<std::size_t>(text_.line),
             static_cast<std::size_t>(text_.column)};
    seenWhole_ = whole_.c_str();
}

const quorvane_error& errorWithoutHandle() noexcept {
    return noHandle;
}

}  // namespace quorvane::capi
