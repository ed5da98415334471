#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "quorvane/rtfgroups/TableUsers.h"

namespace quorvane {

/// The fonts that a document has after those of every font table.
class AddedFonts {
public:
    /// Control words have 16-bit numbers in most readers.
    static constexpr std::int32_t largestNumber = 32767;

    /// The number of a font that a document has, in any case; nothing if it has to be added.
    std::optional<std::int32_t> number(std::string_view name) const;
    /// Adds a font that has no number, and returns the number that it gets. Error 5 for a name that
    /// a font table cannot hold, and if there are too many.
    std::int32_t add(std::string_view name);

    /// Notes that a user has the number of a font.
    void use(TableUser user, std::int32_t number) noexcept;
    /// Notes that a user has all numbers that there are.
    void useAll(TableUser user) noexcept { users_.needs(user, entries_.size()); }
    /// Removes the fonts that nobody but this user had, from the end on: numbers stay as they are.
    void release(TableUser user) noexcept;

    /// The entries of the font table.
    std::span<const std::string> entries() const noexcept { return entries_; }

private:
    std::vector<std::string> entries_;
    TableUsers users_;
    // By their names in lower case.
    std::unordered_map<std::string, std::int32_t> numbers_;
};

}  // namespace quorvane
