#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quorvane {

/// The font table: the same eighteen fonts, numbers 0 to 17, in every document. Font 0, Arial, is
/// the default font.
class CRtfGrpFontTable {
public:
    /// How many fonts there are. Their numbers begin with 0.
    static constexpr std::int32_t fontCount = 18;

    /// Number of the first font whose entry matches the pattern (`*`, `?`, `#`, bracketed lists;
    /// case counts), such as "*Georgia;}"; 0 when none does. An entry is the whole text of the
    /// font's group; "\fonttbl" stands before the fonts as an entry of its own and would be -1.
    std::int32_t GetFontIndex(std::string_view sName) const;

    /// Appends the group's text.
    void render(std::string& rtf) const;
};

}  // namespace quorvane
