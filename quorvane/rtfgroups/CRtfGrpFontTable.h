#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "quorvane/base/text/TextOutput.h"

namespace quorvane {

/// The font table: the same eighteen fonts, numbers 0 to 17, in every document. Font 0, Arial, is
/// the default font.
class CRtfGrpFontTable {
public:
    /// How many fonts there are. Their numbers begin with 0.
    static constexpr std::int32_t fontCount = 18;

    /// Number of the first font whose entry matches the pattern (`*`, `?`, `#`, bracketed lists;
    /// case counts), such as "*Georgia;}"; 0 when none does. An entry is the whole text of the
    /// font's group; "\fonttbl" is an entry of its own before the fonts, with the number -1.
    std::int32_t GetFontIndex(std::string_view sName) const;

    /// Number of the font of that key, in any case; nothing when no font has it. A key is the name
    /// in the font's entry, except for font 10: its key is "Trebuchet", its name "Trebuchet MS".
    static std::optional<std::int32_t> fontNumber(std::string_view key);

    /// Number of the font of that name, in any case; nothing when no font has it.
    static std::optional<std::int32_t> fontNumberOfName(std::string_view name);

    /// Name of the font of that number; empty for a number that the table does not have.
    static std::string_view fontName(std::int32_t number);

    /// Key of the font of that number; empty for a number that the table does not have.
    static std::string_view fontKey(std::int32_t number);

    /// Writes the group's text, with these entries after those of the table.
    void render(TextOutput& rtf, std::span<const std::string> added = {}) const;
};

}  // namespace quorvane
