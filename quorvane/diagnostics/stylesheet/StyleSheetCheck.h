#pragma once

#include <string_view>
#include <vector>

#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/diagnostics/KnownStyles.h"
#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane {

/// Returns all diagnostics about a stylesheet (UTF-8), in the order of their places. One of them is
/// an error if and only if loading the stylesheet raises one, in a document that accepts the
/// extended language (see `CRtfDoc::setExtendedStyleSheets`), or if the text is in the original
/// language, from a file in UTF-8, and a definition has a character that documents cannot hold
/// there.
std::vector<Diagnostic> checkStyleSheet(std::string_view text,
                                        TextEncoding encoding = TextEncoding::Windows1252);

/// Returns a diagnostic for each style that was not marked as used, with its place in the text of
/// the stylesheet.
std::vector<Diagnostic> findUnusedStyles(const KnownStyles& styles);

}  // namespace quorvane
