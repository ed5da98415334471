#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quorvane {

/// The colour table: the same 57 colours, numbers 1 to 57, in every document; number 0 is the
/// automatic colour.
class CRtfGrpColorTable {
public:
    /// Number of the colour whose name, with "-" in place of its blanks, is the given one
    /// ("navy-blue" is 24); 0 for "none" and any other word. Case counts.
    static std::int32_t colorNumber(std::string_view dashedName);

    /// Name of the colour of that number, with "-" in place of its blanks ("navy-blue" for 24);
    /// empty for 0 and for a number that the table does not have.
    static std::string colorName(std::int32_t number);

    /// Appends the group's text.
    void render(std::string& rtf) const;
};

}  // namespace quorvane
