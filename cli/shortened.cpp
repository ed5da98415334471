#include "cli/shortened.h"

#include <cstddef>

#include "quorvane/base/text/utf8.h"

namespace quorvane::cli {

namespace {

constexpr std::size_t longest = 200;
// A message that repeats a line ends with what is wrong with it.
constexpr std::size_t keptEnd = 50;
constexpr std::size_t keptBeginning = longest - keptEnd - 1;

/// The bytes of so many characters.
std::size_t lengthOf(std::string_view text, std::size_t characters) {
    std::size_t at = 0;
    for (; characters > 0; --characters) {
        at += utf8CharacterAt(text, at).length;
    }
    return at;
}

}  // namespace

std::string shortened(std::string_view text) {
    const std::size_t count = characterCount(text);
    if (count <= longest) {
        return std::string(text);
    }
    return std::string(text.substr(0, lengthOf(text, keptBeginning))) + "\xE2\x80\xA6" +
           std::string(text.substr(lengthOf(text, count - keptEnd)));
}

}  // namespace quorvane::cli
