#pragma once

#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane {

/// What can be wrong with a file as a whole.
inline constexpr DiagnosticRule fileDiagnostics[] = {
    {.id = DiagnosticId::NotATextFile,
     .identifier = "not-a-text-file",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = "This is {0}, not {1}.",
     .title = "The file is not a text in Windows-1252 or UTF-8.",
     .explanation = R"(
Descriptions and stylesheets are text files in Windows-1252 or UTF-8. A PDF file, a picture, an
archive, a program, the document of an office program, or a text in UTF-16 cannot be read as one.
Nothing else is reported about such a file.
)"},

    {.id = DiagnosticId::NotUtf8,
     .identifier = "not-utf-8",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = "The byte {0} in column {1} is not UTF-8.",
     .title = "A file that is read in UTF-8 is not in UTF-8.",
     .explanation = R"(
A description or a stylesheet that begins with the byte order mark of UTF-8, or that is read with
`--encoding utf-8`, must be in UTF-8 to its end. Most often such a file is in Windows-1252, or was
put together from files in both encodings. Save it in UTF-8, or read it with
`--encoding windows-1252`. Nothing else is reported about such a file.
)"},

    {.id = DiagnosticId::WrongExtension,
     .identifier = "wrong-extension",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Rtf,
     .message = "This is {0}, but its extension is {1}.",
     .title = "The extension of the file is not that of its content.",
     .explanation = R"(
A file is checked as what it contains, but people and programs go by its extension: `.rtfspec` for
descriptions, `.rtfss` for stylesheets, `.rtf` for documents. Rename the file.
)"},
};

}  // namespace quorvane
