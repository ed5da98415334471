#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane {

/// The diagnostic about a file that is not a text: a PDF file, a picture, an archive, a program, or
/// a text in UTF-16, none of which can be read as a description or a stylesheet. Nothing for a
/// text, and for RTF, which may hold binary data. Judged by the file's bytes, some thousand from
/// its beginning are enough.
std::optional<Diagnostic> findNotATextFile(std::string_view bytes);

}  // namespace quorvane
