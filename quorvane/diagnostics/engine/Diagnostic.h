#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "quorvane/diagnostics/engine/DiagnosticId.h"

namespace quorvane {

/// How serious a diagnostic is. An error is what the library rejects or a reader cannot make sense
/// of; a warning is what is accepted but does not do what its author wants.
enum class Severity { Error, Warning };

/// Where something stands in a text. Lines and columns begin with 1 and count characters.
struct Place {
    /// Column, length and offset in bytes of the file. In a file in Windows-1252 or RTF a character
    /// is a byte, so that they are the same. The byte order mark of a file in UTF-8 belongs to the
    /// offset only.
    struct Bytes {
        std::int64_t column = 1;
        std::int64_t length = 0;
        std::int64_t offset = 0;
    };

    std::int64_t line = 1;
    std::int64_t column = 1;
    /// Characters from the column on, on the same line; 0 for a place between two.
    std::int64_t length = 0;
    /// Characters before it, from the beginning of the text.
    std::int64_t offset = 0;
    Bytes bytes{};

    /// A line of a text that is put in at a place.
    struct Included {
        /// The number of the text, from 1; 0 for a place in the text itself.
        std::size_t text = 0;
        std::int64_t line = 0;
    };
    Included included{};
};

/// The place in a file where each character is a byte.
inline Place placeInBytes(std::int64_t line, const Place::Bytes& bytes) {
    return {line, bytes.column, bytes.length, bytes.offset, bytes, {}};
}

/// A replacement that certainly does what the author meant: a word spelled right, a brace escaped,
/// a unit converted.
struct Fix {
    /// What is replaced.
    Place place;
    /// UTF-8, without line breaks; it is written in the encoding of the file.
    std::string replacement;
};

/// What could be done about a diagnostic, in words; empty when nothing is known.
struct Hint {
    Hint() = default;
    // NOLINTBEGIN(google-explicit-constructor): most hints are words alone.
    Hint(std::string words) : text(std::move(words)) {}
    Hint(const char* words) : text(words) {}
    // NOLINTEND(google-explicit-constructor)
    Hint(std::string words, std::optional<std::string> certain)
        : text(std::move(words)), replacement(std::move(certain)) {}

    bool empty() const { return text.empty(); }

    std::string text;
    /// What the marked part is certainly meant to be; nothing where that is a guess.
    std::optional<std::string> replacement;
};

/// One problem in a text.
struct Diagnostic {
    DiagnosticId id{};
    Severity severity = Severity::Error;
    Place place;
    /// What is wrong. A text of the library stands here as it is, its line breaks included.
    std::string message;
    /// What could be done about it; empty when nothing is known.
    std::string hint;
    /// Set where the hint is a replacement that can be made without asking.
    std::optional<Fix> fix{};
    /// True when the fix was made: the place is that in the text before.
    bool isFixed = false;
    /// True for a character of a file in UTF-8, which reads as several others in Windows-1252.
    bool isMojibake = false;
};

/// Receives diagnostics one after the other.
using DiagnosticReceiver = std::function<void(Diagnostic)>;

}  // namespace quorvane
