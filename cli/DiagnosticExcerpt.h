#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane::cli {

/// Shows parts of a file.
struct FileWindow {
    /// Returns the bytes of the file from an offset, at most the given number.
    std::function<std::string(std::int64_t offset, std::int64_t length)> read;
    /// That of an RTF file is Windows-1252.
    TextEncoding encoding = TextEncoding::Windows1252;
};

/// The part of a line around a place, in UTF-8 and with blanks for control characters.
struct DiagnosticExcerpt {
    std::string before;
    std::string marked;
    std::string after;
};

/// Returns the line around a place; of a long line, only the part near the place.
DiagnosticExcerpt excerptAt(const Place& place, const FileWindow& window);

/// The window of a file that is held as a whole; the bytes must outlive it.
FileWindow windowOf(std::string_view bytes, TextEncoding encoding = TextEncoding::Windows1252);

}  // namespace quorvane::cli
