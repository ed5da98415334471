#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quorvane::data {

/// Something that is wrong at a place of a JSON text.
struct JsonFault {
    /// The place, a JSON Pointer: "/lines/2/price". Empty for the whole text.
    std::string pointer = {};
    /// A sentence.
    std::string message = {};
};

/// A name as it stands in a JSON Pointer.
std::string pointerPart(std::string_view name);

/// The bytes of a text that `readJson` reads in which a value stands; of a list or an object the
/// first one.
struct JsonPlace {
    std::size_t begin = 0;
    std::size_t end = 0;
};
JsonPlace jsonPlace(std::string_view text, std::string_view pointer);

}  // namespace quorvane::data
