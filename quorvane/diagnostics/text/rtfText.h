#pragma once

#include <string_view>

#include "quorvane/diagnostics/KnownStyles.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/SourceText.h"

namespace quorvane {

/// What a piece of a description or a stylesheet becomes in a document.
enum class TextUse {
    /// A paragraph's text, written as it is.
    Text,
    /// The format of a style, written in lower case.
    Format,
    /// The name of a style that is written into the document's list of styles, in lower case.
    StyleName,
    /// The data of a marked field: the codes of its characters.
    FieldData,
};

/// Warns of what a text (a view into the source) does to a document that it is written into. Of
/// each kind of diagnostic the first ones are reported. Without styles, numbers of styles are not
/// looked up.
void findTextWarnings(std::string_view text, TextUse use, const KnownStyles* styles,
                      const SourceText& source, DiagnosticEngine& engine);

}  // namespace quorvane
