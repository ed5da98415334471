#pragma once

#include <string_view>
#include <vector>

#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/diagnostics/engine/Diagnostic.h"
#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane {

/// The diagnostic about a file whose extension is that of another language than the one that it
/// holds; none where they agree or the extension is any other. It is an error where the library
/// rejects the file for what it is named as. The bytes are the file's; of one that is not named as
/// a stylesheet the first line is enough.
std::vector<Diagnostic> findNameMismatch(std::string_view bytes, CheckedLanguage language,
                                         std::string_view fileName,
                                         TextEncoding encoding = TextEncoding::Windows1252);

}  // namespace quorvane
