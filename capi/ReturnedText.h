#pragma once

#include <cstddef>
#include <cstring>
#include <string_view>

#include "capi/arguments.h"

namespace quorvane::capi {

/// Where a function returns a text that the caller releases. It is null until the function is done.
class ReturnedText {
public:
    ReturnedText(char** text, std::size_t* length)
        : text_(requireArgument(text, "for the text")),
          length_(requireArgument(length, "for the length")) {
        text_ = nullptr;
        length_ = 0;
    }

    void set(std::string_view bytes) {
        char* const copy = new char[bytes.size() + 1];
        bytes.copy(copy, bytes.size());
        copy[bytes.size()] = '\0';
        text_ = copy;
        length_ = bytes.size();
    }

private:
    char*& text_;
    std::size_t& length_;
};

}  // namespace quorvane::capi
