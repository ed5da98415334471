#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace quorvane {

/// The encodings of text files.
enum class TextEncoding { Windows1252, Utf8 };

/// The mark with which many programs begin a file in UTF-8.
inline constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";

/// Returns the encoding of a text file, judged by its bytes: UTF-8 when they begin with the mark of
/// UTF-8, or are UTF-8 with at least one character beyond ASCII; otherwise Windows-1252.
TextEncoding encodingOf(std::string_view bytes);

/// Returns the position of the first byte that is not UTF-8; nothing when all are.
std::optional<std::size_t> findNotUtf8(std::string_view bytes);

/// Returns the text of a file as UTF-8, without the mark of UTF-8 if that is its encoding. Bytes
/// that are not UTF-8 stay as they are.
std::string decodedText(std::string bytes, TextEncoding encoding);

/// Returns the bytes of a text in an encoding. In Windows-1252, "?" stands for each character that
/// the encoding lacks.
std::string encodedText(std::string text, TextEncoding encoding);

}  // namespace quorvane
