#pragma once

#include <string_view>
#include <vector>

#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/diagnostics/KnownStyles.h"
#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane {

/// All diagnostics about a description (UTF-8), in the order of their places. There is an error
/// among them exactly when a driver with `ErroneousInput` reports one. With styles, the styles that
/// the description names are looked up among them and marked as used. Pass the encoding of the file
/// that the text was read from: for UTF-8, the driver is one with `UnicodeTexts`.
std::vector<Diagnostic> checkDescription(std::string_view text, KnownStyles* styles = nullptr,
                                         TextEncoding encoding = TextEncoding::Windows1252);

}  // namespace quorvane
