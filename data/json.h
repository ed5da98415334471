#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "data/DataValue.h"

namespace quorvane::data {

/// What is wrong with a JSON text.
struct JsonError {
    /// The byte at which it shows.
    std::size_t position = 0;
    /// A sentence without a full stop.
    std::string message = {};
};

/// What an exception of the JSON parser says, in words for people who write JSON: a sentence
/// without a full stop, to stand after a colon.
std::string jsonReason(std::string_view what);

/// How deep objects and lists can be nested.
inline constexpr std::size_t maxJsonDepth = 500;

/// Reads a JSON text (UTF-8, with or without a byte order mark). Nothing when it is wrong: when it
/// is not JSON, is nested too deep, or has an object with a name twice.
std::optional<DataValue> readJson(std::string_view text, JsonError& error);

}  // namespace quorvane::data
