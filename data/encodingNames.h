#pragma once

#include <string_view>

#include "quorvane/base/text/TextEncoding.h"

namespace quorvane::data {

/// A choice by the name that options have for it.
struct NamedEncoding {
    std::string_view name;
    EncodingChoice choice;
};

inline constexpr NamedEncoding encodingNames[] = {
    {"auto", EncodingChoice::Auto},
    {"utf-8", EncodingChoice::Utf8},
    {"windows-1252", EncodingChoice::Windows1252},
};

}  // namespace quorvane::data
