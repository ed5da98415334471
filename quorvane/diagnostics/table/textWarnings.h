#pragma once

#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane {

/// Warnings about the texts of a description and the formats of a stylesheet.
inline constexpr DiagnosticRule textWarnings[] = {
    {.id = DiagnosticId::CutValue,
     .identifier = "cut-value",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "The value ends here: {0} is lost.",
     .explanation = R"(
A value ends at the first `)`, and behind a `;` the rest of the line is a comment. A `(` in the
value and one more `)` in that comment are a sign that the comment was meant to be text. Write
`\'29` for a `)` in a text.
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
     .message = "The inline style {0} is not closed: the text shows it as it is written.",
     .explanation = R"(
An inline style is the style's name between `<` and `=`, then its text, then a `>`. Without that `>`
it stands in the document as it stands in the description.
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
     .message = "{0} is not a tag here: the text shows it as it is written.",
     .explanation = R"(
Texts are not HTML. Words take a character style of the stylesheet in an inline style such as
`<strong=Total>`, or the control words of RTF in a group such as `{\b Total}`; `\line` is a line
break. Write `\'3c` for a `<` that is to be seen in front of such a name.
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
     .message = "The paragraph has no text and vanishes.",
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
     .message = "The {0} has no partner.",
     .explanation = R"(
Texts and formats go into the document as they are. An open brace makes readers refuse the file, a
closing one cuts the document off, so that `render --check` refuses both. Write `\{` and `\}` for
braces that shall be seen.
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
     .message = "The braces are not shown.",
     .explanation = R"(
Texts go into the document as they are, and a pair of braces is a group in RTF: readers show what it
holds without the braces. Write `\{` and `\}` for braces that shall be seen. A group with a control
word, such as `{\b Total}`, is what braces are for.
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
Texts and formats go into the document as they are, and a backslash begins a control word or symbol.
Write `\\` for a backslash that shall be seen, and two hexadecimal digits after `\'`. `render
--check` refuses a lone one.
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
     .message = "{0} is no RTF control word.",
     .explanation = R"(
Texts and formats go into the document as they are, and readers pass over control words that they do
not know. Control words are written in lower case. Write `\\` for a backslash that shall be seen.
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
     .message = "The character {0} is none that can be printed.",
     .explanation = R"(
A form feed, a tab or another control character vanishes in a text or is shown as it comes. Write
`\tab` for a tab, `\line` for a line break and `\page` for a page break.
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
     .message = "{0} brings {1} into the document.",
     .explanation = R"(
A text or a format can embed objects, pictures and other binary data, fields that run macros, and
links to files. Where it comes from somebody else, that is seldom what the document's author wants.
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
     .message = "{0} breaks the table in the middle of a text.",
     .explanation = R"(
`\cell`, `\row`, `\trowd`, `\cellx` and `\sect` end cells, rows and pages. In a text or a format
they come on top of those that the table is made of: its row has more cells then than definitions,
and readers lose it. Write a cell or a row of the description instead. A table within the cell,
which is made of `\itap`, `\nestcell` and `\nestrow`, has whole rows, and `\itap1` behind it.
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
     .message = "{0} belongs at the beginning of a document.",
     .explanation = R"(
`\rtf`, `\fonttbl`, `\colortbl` and `\stylesheet` begin a document and its tables. It has them
already: what a second one in the middle of it does is up to the reader. Of an RTF file only what
follows its tables can be a text.
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
     .message = "{0} names no {1} of the document.",
     .explanation = R"(
`\f` and the like name a font by its number, 0 to 17, `\cf`, `\highlight`, `\cb` and the like a
colour, 0 to 57, and `\s` and `\cs` a style of the stylesheet, which is numbered from 100 on. What a
number names that the document's tables do not have is up to the reader.
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
     .message = "The ? after {0} is shown: nothing stands in for the character.",
     .explanation = R"(
In RTF a character can follow `\u` and its number that is shown by readers without Unicode.
Documents say `\uc0`: no character does, so a `?` there is text. Write a group that says otherwise,
such as `{\uc1\u345?}`, or end the number with a blank.
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
     .message = "The code page has no place for {0}, which {1}.",
     .explanation = R"(
Documents are written in Windows-1252. A character that it has no place for becomes a question mark,
or where the file is in UTF-8 two or more other characters. Of those the first is told. In a text
such characters are written as RTF writes them: `{\uc1\u8594?}` is an arrow, and a question mark
where a reader has none. The data of a marked field and the names of styles have no such form.
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
     .message = "{0} is read as {1}: the file is in UTF-8.",
     .explanation = R"(
Files are read in Windows-1252, one byte a character. In a file in UTF-8 every other character than
those of ASCII turns into two or three; the first is told. Save the file in Windows-1252, or write
`\'e9` and the like.
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
