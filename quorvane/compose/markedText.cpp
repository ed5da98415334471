#include "quorvane/compose/markedText.h"

#include <optional>
#include <string>

#include "quorvane/compose/Error.h"
#include "quorvane/rtf/escape.h"
#include "quorvane/rtf/unicodeWords.h"

namespace quorvane {

void requireEncodable(std::string_view data) {
    std::string why;
    if (const std::optional<Unshowable> unshowable = findUnshowable(data)) {
        why = unshowable->message + ".";
    } else if (const auto character = findBeyondCodePage1252(data)) {
        why = std::string(*character) +
              " is not in Windows-1252; the data of a marked field can only have characters of it.";
    }
    if (!why.empty()) {
        throw Error({.message = why, .identifier = "unencodable-value"});
    }
}

}  // namespace quorvane
