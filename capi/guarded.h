#pragma once

#include <quorvane.h>

#include <new>
#include <utility>

#include "capi/HandleError.h"

namespace quorvane::capi {

/// Runs the body of a function. No exception leaves it: it becomes the error of the handle, which
/// has a member `error`.
template <class Handle, class Body>
quorvane_status guarded(Handle* handle, Body&& body) noexcept {
    if (!handle) {
        return QUORVANE_WRONG_CALL;
    }
    try {
        std::forward<Body>(body)();
        return QUORVANE_OK;
    } catch (...) {
        return handle->error.take();
    }
}

/// Makes a handle.
template <class Handle>
quorvane_status makeHandle(Handle** handle) noexcept {
    if (!handle) {
        return QUORVANE_WRONG_CALL;
    }
    *handle = nullptr;
    try {
        *handle = new Handle;
        return QUORVANE_OK;
    } catch (const std::bad_alloc&) {
        return QUORVANE_OUT_OF_MEMORY;
    } catch (...) {
        return QUORVANE_INTERNAL_ERROR;
    }
}

/// The error of a handle, which can be null.
template <class Handle>
const quorvane_error* errorOf(const Handle* handle) noexcept {
    return handle ? &handle->error.get() : &errorWithoutHandle();
}

/// The whole message of the error of a handle, which can be null.
template <class Handle>
const char* errorTextOf(const Handle* handle) noexcept {
    return handle ? handle->error.wholeMessage() : errorWithoutHandle().message;
}

}  // namespace quorvane::capi
