#pragma once

#include <string>
#include <string_view>

namespace quorvane {

class TableDocument;

/// The text with its inline character styles in RTF: a token such as `<bold-red=Total>` becomes a
/// group of the control words of the style bold-red and the text Total. Error 6 when styles whose
/// own words hold tokens would make it endless.
///
/// A walk over "<" and ">" finds the tokens. It searches the next ">" after the place of the last
/// one, and a replacement that changes the length of the text does not move that place: when a
/// token shrinks, the next ones can be read as one. Places count UTF-16 units.
std::string withCharacterStyles(const TableDocument& document, std::string_view text);

}  // namespace quorvane
