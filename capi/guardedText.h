#pragma once

#include <quorvane.h>

#include <cstddef>
#include <string_view>
#include <utility>

#include "capi/arguments.h"
#include "capi/guarded.h"

namespace quorvane::capi {

/// A copy of a text that the caller releases, with a zero byte after it.
inline char* copiedText(std::string_view text) {
    char* const copy = new char[text.size() + 1];
    text.copy(copy, text.size());
    copy[text.size()] = '\0';
    return copy;
}

/// Runs the body of a function that returns a text. If it fails, the text is null.
template <class Handle, class Body>
quorvane_status guardedText(Handle* handle, char** text, std::size_t* length, Body&& body) {
    if (text) {
        *text = nullptr;
    }
    if (length) {
        *length = 0;
    }
    return guarded(handle, [&] {
        requireArgument(text, "for the text");
        requireArgument(length, "for the length");
        const auto result = std::forward<Body>(body)();
        *text = copiedText(result);
        *length = result.size();
    });
}

}  // namespace quorvane::capi
