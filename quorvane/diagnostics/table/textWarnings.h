#pragma once

#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane {

/// Warnings about the texts of a description and the formats of a stylesheet.
inline constexpr DiagnosticRule textWarnings[] = {
    {.id = DiagnosticId::CutValue,
     .identifier = "cut-value",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "The value ends here; {0} is lost.",
     .explanation = R"(
A value ends at the first `)`, and the rest of the line after a `;` is a comment. Here the value has
a `(` and the comment has a `)`, so the comment was probably meant to be text. In a text, write
`\'29` for a `)`.
)",
     .wrong = R"(
(doc
(r
(c
(p
(pt=see (page 2); thanks)
p)
c)
r)
doc)
)",
     .right = R"(
(doc
(r
(c
(p
(pt=see (page 2\'29; thanks)
p)
c)
r)
doc)
)"},

    {.id = DiagnosticId::UnclosedInlineStyle,
     .identifier = "unclosed-inline-style",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "The inline style {0} is not closed; it will appear as written.",
     .explanation = R"(
An inline style consists of `<`, the name of the style, `=`, the text, and `>`. Without the `>`, all
of this appears in the document as it is written.
)",
     .wrong = R"(
(doc
(r
(c
(p
(pt=<strong=Total)
p)
c)
r)
doc)
)",
     .right = R"(
(doc
(r
(c
(p
(pt=<strong=Total>)
p)
c)
r)
doc)
)",
     .companion = R"(
{ name: reserved; style-def: s; format: \fs20 }
{ name: strong; style-def: cs; format: \b }
)"},

    {.id = DiagnosticId::HtmlTag,
     .identifier = "html-tag",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "Texts are not HTML; {0} will appear as written.",
     .explanation = R"(
To format words, use a character style of the stylesheet in an inline style such as
`<strong=Total>`, or RTF control words in a group such as `{\b Total}`. For a line break, write
`\line`. For a literal `<` before such a name, write `\'3c`.
)",
     .wrong = R"(
(doc
(r
(c
(p
(pt=<b>Total</b>)
p)
c)
r)
doc)
)",
     .right = R"(
(doc
(r
(c
(p
(pt=<strong=Total>)
p)
c)
r)
doc)
)",
     .companion = R"(
{ name: reserved; style-def: s; format: \fs20 }
{ name: strong; style-def: cs; format: \b }
)"},

    {.id = DiagnosticId::EmptyText,
     .identifier = "empty-text",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "Empty paragraph: it will not appear in the document.",
     .explanation = R"(
A paragraph with an empty text writes nothing, not even an empty line. Write `\~` for an empty line.
)",
     .wrong = R"(
(doc
(r
(c
(p
(pt=)
p)
c)
r)
doc)
)",
     .right = R"(
(doc
(r
(c
(p
(pt=\~)
p)
c)
r)
doc)
)"},

    {.id = DiagnosticId::UnbalancedBrace,
     .identifier = "unbalanced-brace",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "Unmatched {0}.",
     .title = "A brace has no counterpart.",
     .explanation = R"(
Texts and formats are copied to the document as they are. An unmatched opening brace makes readers
refuse the file, and an unmatched closing brace cuts the document off. `render --check` therefore
refuses both. Write `\{` and `\}` for literal braces.
)",
     .wrong = R"(
(doc
(r
(c
(p
(pt=a } b)
p)
c)
r)
doc)
)",
     .right = R"(
(doc
(r
(c
(p
(pt=a \} b)
p)
c)
r)
doc)
)",
     .corruptsDocument = true},

    {.id = DiagnosticId::HiddenBraces,
     .identifier = "hidden-braces",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "The braces will not appear in the document.",
     .explanation = R"(
Texts are copied to the document as they are, and in RTF a pair of braces is a group: readers show
its contents without the braces. Write `\{` and `\}` for literal braces. Use groups together with
control words, as in `{\b Total}`.
)",
     .wrong = R"(
(doc
(r
(c
(p
(pt=Lock {cylinder})
p)
c)
r)
doc)
)",
     .right = R"(
(doc
(r
(c
(p
(pt=Lock \{cylinder\})
p)
c)
r)
doc)
)"},

    {.id = DiagnosticId::LoneBackslash,
     .identifier = "lone-backslash",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "The backslash swallows what follows it.",
     .explanation = R"(
Texts and formats are copied to the document as they are, and a backslash begins a control word or
symbol. Write `\\` for a literal backslash, and two hexadecimal digits after `\'`. `render --check`
refuses a backslash that is neither.
)",
     .wrong = R"(
(doc
(r
(c
(p
(pt=C:\5 and \'zz)
p)
c)
r)
doc)
)",
     .right = R"(
(doc
(r
(c
(p
(pt=C:\\5 and \'e9)
p)
c)
r)
doc)
)",
     .corruptsDocument = true},

    {.id = DiagnosticId::UnknownControlWord,
     .identifier = "unknown-control-word",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "{0} is not an RTF control word; readers will ignore it.",
     .explanation = R"(
Texts and formats are copied to the document as they are, and readers ignore control words that they
do not know. Control words are written in lower case. Write `\\` for a literal backslash.
)",
     .wrong = R"(
(doc
(r
(c
(p
(pt=C:\budget)
p)
c)
r)
doc)
)",
     .right = R"(
(doc
(r
(c
(p
(pt=C:\\budget)
p)
c)
r)
doc)
)"},

    {.id = DiagnosticId::ControlCharacter,
     .identifier = "control-character",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "{0} is a control character and will not be printed.",
     .explanation = R"(
Tabs, form feeds and other control characters disappear from a text, or readers show them in
different ways. Write `\tab` for a tab, `\line` for a line break and `\page` for a page break.
)",
     .wrong = "(doc\n(r\n(c\n(p\n(pt=a\vb)\np)\nc)\nr)\ndoc)\n",
     .right = R"(
(doc
(r
(c
(p
(pt=a\line b)
p)
c)
r)
doc)
)"},

    {.id = DiagnosticId::EmbeddedContent,
     .identifier = "embedded-content",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "{0} puts {1} into the document.",
     .title = "The text puts an object, a link or a program into the document.",
     .explanation = R"(
Texts and formats can embed objects, pictures and other binary data, fields that run macros, and
links to files. If the text comes from somebody else, this is seldom what the author of the document
wants.
)",
     .wrong = R"(
(doc
(r
(c
(p
(pt={\field{\*\fldinst INCLUDETEXT secrets.doc}})
p)
c)
r)
doc)
)",
     .right = R"(
(doc
(r
(c
(p
(pt=Total)
p)
c)
r)
doc)
)"},

    {.id = DiagnosticId::TableControl,
     .identifier = "table-control",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "{0} in a text or a format breaks the table.",
     .explanation = R"(
`\cell`, `\row`, `\trowd`, `\cellx` and `\sect` end cells, rows and sections. In a text or a format
they come in addition to those of the table, so that its row has more cells than definitions and
readers lose it. Add a cell or a row to the description instead. A nested table, which uses `\itap`,
`\nestcell` and `\nestrow`, must consist of complete rows and be followed by `\itap1`.
)",
     .wrong = R"(
(doc
(r
(c
(p
(pt=Total\cell 12)
p)
c)
r)
doc)
)",
     .right = R"(
(doc
(r
(c
(p
(pt=Total)
p)
c)
(c
(p
(pt=12)
p)
c)
r)
doc)
)"},

    {.id = DiagnosticId::HeaderControl,
     .identifier = "header-control",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "{0} belongs only at the beginning of a document.",
     .explanation = R"(
`\rtf`, `\fonttbl`, `\colortbl` and `\stylesheet` begin a document and its tables, and the document
already has them. Readers treat a second one in different ways. If you copy from an RTF file, copy
only what follows its tables.
)",
     .wrong = R"(
(doc
(r
(c
(p
(pt={\rtf1 Total})
p)
c)
r)
doc)
)",
     .right = R"(
(doc
(r
(c
(p
(pt={\b Total})
p)
c)
r)
doc)
)"},

    {.id = DiagnosticId::UnknownNumber,
     .identifier = "unknown-number",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "{0} refers to a {1} that the document does not have.",
     .title = "… refers to a font, color or style that the document does not have.",
     .explanation = R"(
`\f` and similar control words refer to a font by its number, 0 to 17; `\cf`, `\highlight`, `\cb`
and similar ones to a color, 0 to 57; `\s` and `\cs` to a style of the stylesheet, numbered from
100. If the document does not have the number, the result depends on the reader.
)",
     .wrong = R"(
(doc
(r
(c
(p
(pt={\f20\cf99 Total})
p)
c)
r)
doc)
)",
     .right = R"(
(doc
(r
(c
(p
(pt={\f5\cf24 Total})
p)
c)
r)
doc)
)"},

    {.id = DiagnosticId::ShownSubstitute,
     .identifier = "shown-substitute",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "The ? after {0} will appear in the document.",
     .explanation = R"(
In RTF, a substitute for readers without Unicode can follow `\u` and its number. Documents use
`\uc0`, which means that there are no substitutes, so a `?` there is text. Write a group that allows
one, such as `{\uc1\u345?}`, or end the number with a blank.
)",
     .wrong = R"(
(doc
(r
(c
(p
(pt=Dvo\u345?\'e1k)
p)
c)
r)
doc)
)",
     .right = R"(
(doc
(r
(c
(p
(pt=Dvo{\uc1\u345?}\'e1k)
p)
c)
r)
doc)
)"},

    {.id = DiagnosticId::UnencodableCharacter,
     .identifier = "unencodable-character",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "{0} is not in Windows-1252; it will appear as {1}.",
     .explanation = R"(
Documents are written in Windows-1252. If a file in UTF-8 is read in Windows-1252, a character
that Windows-1252 lacks becomes two or more others; only the first of these is reported. Read the
file in UTF-8, as the command does unless it is told otherwise, or write such a character in a text as RTF
does: `{\uc1\u8594?}` is an arrow, with a question mark for readers that do not know it. The data of
a marked field and the names of styles cannot hold such characters.
)",
     .wrong = R"(
(doc
(r
(c
(p
(pt=10 → 20)
p)
c)
r)
doc)
)",
     .right = R"(
(doc
(r
(c
(p
(pt=10 {\uc1\u8594?} 20)
p)
c)
r)
doc)
)"},

    {.id = DiagnosticId::Utf8Text,
     .identifier = "utf-8-text",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "{0} will appear as {1}, because the file is in UTF-8.",
     .explanation = R"(
The file is read in Windows-1252, one byte for each character, because of
`--encoding windows-1252`, or because not all of it is in UTF-8. Every character outside ASCII that
is in UTF-8 therefore becomes two or more; only the first is reported. Save the whole file in one
encoding, or write characters as `\'e9`.
)",
     .wrong = R"(
(doc
(r
(c
(p
(pt=café)
p)
c)
r)
doc)
)",
     .right = R"(
(doc
(r
(c
(p
(pt=caf\'e9)
p)
c)
r)
doc)
)"},
};

}  // namespace quorvane
