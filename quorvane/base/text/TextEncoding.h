#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace quorvane {

/// How the text of a file is stored. The mark is the byte order mark with which many programs begin
/// a file in UTF-8.
enum class TextEncoding { Windows1252, Utf8, Utf8WithMark };

/// What decides the encoding of a file: its bytes, or whoever reads it.
enum class EncodingChoice { Auto, Utf8, Windows1252 };

/// The byte order mark of UTF-8.
inline constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";

/// Returns the encoding of a text file. Judged by its bytes, a file is in UTF-8 when it begins with
/// the mark, or when it is UTF-8 with at least one character beyond ASCII; otherwise it is in
/// Windows-1252. A file that is marked as extended is in UTF-8, whatever the choice.
TextEncoding encodingOf(std::string_view bytes, EncodingChoice choice = EncodingChoice::Auto);

/// Returns whether this is UTF-8, with the mark or without it.
inline bool isUtf8(TextEncoding encoding) {
    return encoding != TextEncoding::Windows1252;
}

/// Returns how many bytes of a file come before its text: those of the mark.
inline std::size_t bytesBeforeText(TextEncoding encoding) {
    return encoding == TextEncoding::Utf8WithMark ? utf8Mark.size() : 0;
}

/// Returns the position of the first byte that is not UTF-8; nothing when all are.
std::optional<std::size_t> findNotUtf8(std::string_view bytes);

/// Returns the text of a file as UTF-8, without the mark. Bytes of a file in UTF-8 that are not
/// UTF-8 stay as they are; find them with `findNotUtf8` first.
std::string decodedText(std::string bytes, TextEncoding encoding);

/// Returns the bytes of a file with this text, the inverse of `decodedText`. In Windows-1252, "?"
/// stands for each character that the encoding lacks.
std::string encodedText(std::string text, TextEncoding encoding);

}  // namespace quorvane
