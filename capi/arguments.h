#pragma once

#include <quorvane.h>

#include <cstring>
#include <string>
#include <string_view>

#include "capi/callError.h"

namespace quorvane::capi {

/// The text of two arguments.
inline std::string_view textArgument(const char* text, std::size_t length) {
    if (!text) {
        if (length != 0 && length != QUORVANE_NUL_TERMINATED) {
            throw CallError("A text is null, and its length is not 0.");
        }
        return {};
    }
    return {text, length == QUORVANE_NUL_TERMINATED ? std::strlen(text) : length};
}

/// A pointer that must not be null.
template <class Type>
Type& requireArgument(Type* pointer, const char* name) {
    if (!pointer) {
        throw CallError(std::string("The argument ") + name + " is null.");
    }
    return *pointer;
}

/// "yes" or "no".
inline bool choiceArgument(std::string_view value, const char* name) {
    if (value != "yes" && value != "no") {
        throw CallError(std::string("The ") + name + " is \"yes\" or \"no\".");
    }
    return value == "yes";
}

/// A constant of an enumeration, whose last one is `last`.
inline int enumArgument(int value, int last, const char* name) {
    if (value < 0 || value > last) {
        throw CallError(std::string("The argument ") + name + " is not one of its constants.");
    }
    return value;
}

}  // namespace quorvane::capi
