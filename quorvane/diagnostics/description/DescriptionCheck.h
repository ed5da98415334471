#pragma once

#include <string_view>
#include <vector>

#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/diagnostics/KnownStyles.h"
#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane {

/// All diagnostics about a description (UTF-8), in the order of their places. There is an error
/// among them exactly when a driver with `ErroneousInput` reports one. With styles, the styles that
/// the description names are looked up among them and marked as used.
///
/// Pass the encoding of the file that the text was read from: the description of a file in UTF-8 is
/// for a driver with `UnicodeTexts`, and its bytes are not those of one in Windows-1252.
std::vector<Diagnostic> checkDescription(std::string_view text, KnownStyles* styles = nullptr,
                                         TextEncoding encoding = TextEncoding::Windows1252);

}  // namespace quorvane
