#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace quorvane {

/// A character that Windows-1252 lacks, for which "?" was written.
struct LostCharacter {
    /// In UTF-8; or one byte that is not UTF-8.
    std::string character;
    /// The byte offset of the "?" in the file; none for a character in the data of a marked field,
    /// which is encoded when it is set.
    std::optional<std::int64_t> offset;
};

/// Receives the lost characters one after the other.
using LostCharacterObserver = std::function<void(const LostCharacter&)>;

}  // namespace quorvane
