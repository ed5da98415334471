#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

#include "quorvane/rtfgroups/CRtfGrpColorTable.h"
#include "quorvane/rtfgroups/TableUsers.h"

namespace quorvane {

/// The colors that a document has after those of every color table.
class AddedColors {
public:
    /// Control words have 16-bit numbers in most readers.
    static constexpr std::int32_t largestNumber = 32767;

    /// The number of a color that a document has; nothing if it has to be added.
    std::optional<std::int32_t> number(RgbColor color) const;
    /// Adds a color that has no number, and returns the number that it gets. Error 5 if there are
    /// too many.
    std::int32_t add(RgbColor color);

    /// Notes that a user has the number of a color.
    void use(TableUser user, std::int32_t number) noexcept;
    /// Notes that a user has all numbers that there are.
    void useAll(TableUser user) noexcept { users_.needs(user, colors_.size()); }
    /// Removes the colors that nobody but this user had, from the end on: numbers stay as they are.
    void release(TableUser user) noexcept;

    std::span<const RgbColor> list() const noexcept { return colors_; }

private:
    std::vector<RgbColor> colors_;
    TableUsers users_;
    // By their parts.
    std::unordered_map<std::uint32_t, std::int32_t> numbers_;
};

}  // namespace quorvane
