#pragma once

#include <string>
#include <string_view>

namespace quorvane {

class TableDocument;

/// The text with its inline character styles in RTF: a token such as `<bold-red=Total>` becomes a
/// group of the control words of the style bold-red and the text Total. Error 6 when styles whose
/// own words hold tokens would make it endless.
///
/// Tokens are found by walking over "<" and ">" as they stand. The walk takes its next ">" behind
/// the place of the last one, and that place is not moved along when a replacement changes the
/// length of the text: a token that shrinks can make the next ones be read together. Places count
/// UTF-16 units.
std::string withCharacterStyles(const TableDocument& document, std::string_view text);

}  // namespace quorvane
