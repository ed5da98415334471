#pragma once

#include <cstddef>
#include <string>

namespace quorvane {

class TableDocument;

/// Replaces the inline character styles in `rtf` from position `start` to its end: a token such as
/// `<bold-red=Total>` becomes a group of the control words of the style bold-red and the text
/// Total.
///
/// Tokens are found by walking over "<" and ">" as they stand. The walk takes its next ">" behind
/// the place of the last one, and that place is not moved along when a replacement changes the
/// length of the text: a token that shrinks can make the next ones be read together. Places count
/// UTF-16 units. A text in which "<" and ">" take turns and no token outgrows the next costs time
/// proportional to its length.
void applyCharacterStyles(const TableDocument& document, std::size_t start, std::string& rtf);

}  // namespace quorvane
