#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/diagnostics/engine/Diagnostic.h"
#include "quorvane/diagnostics/engine/SourceText.h"

namespace quorvane {

/// The diagnostic about a file that is not a text: a PDF file, a picture, an archive, a program, or
/// a text in UTF-16, none of which can be read as a description or a stylesheet. Nothing for a
/// text, and for RTF, which may hold binary data. Judged by the file's bytes, some thousand from
/// its beginning are enough.
std::optional<Diagnostic> findNotATextFile(std::string_view bytes);

/// The diagnostic about the first byte of a text in UTF-8 that is not UTF-8.
std::optional<Diagnostic> findByteNotOfUtf8(const SourceText& source);

/// The diagnostic about a file that cannot be read as a text in its encoding: one that is not a
/// text, or the first byte of a file in UTF-8 that is not UTF-8. Takes all bytes of the file.
std::optional<Diagnostic> findUnreadableText(std::string_view bytes, TextEncoding encoding);

}  // namespace quorvane
