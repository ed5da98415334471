#pragma once

#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane {

/// Warnings about the styles that a description uses, and about its colors.
inline constexpr DiagnosticRule styleWarnings[] = {
    {.id = DiagnosticId::UnknownParagraphStyle,
     .identifier = "unknown-paragraph-style",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "The stylesheet has no paragraph style {0}: {1}.",
     .explanation = R"(
A paragraph whose style the stylesheet does not have gets the format of the first paragraph style,
under the number 0.
)",
     .wrong = R"(
(doc
(r
(c
(p
(pt=Total)
(ps=nromal)
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
(ps=normal)
p)
c)
r)
doc)
)",
     .companion = R"(
{ name: normal; style-def: s; format: \fs20 }
)"},

    {.id = DiagnosticId::UnknownCharacterStyle,
     .identifier = "unknown-character-style",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "The stylesheet has no character style {0}: its text gets no format.",
     .explanation = R"(
An inline style that the stylesheet does not have writes its text without a format. Character styles
are defined with `style-def: cs`.
)",
     .wrong = R"(
(doc
(r
(c
(p
(pt=<string=Total>)
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

    {.id = DiagnosticId::UnknownCellStyle,
     .identifier = "unknown-cell-style",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "The stylesheet has no cell style {0}: the cell gets background 0.",
     .explanation = R"(
A cell style that the stylesheet does not have gives the cell the background 0, which some readers
show black. Cell styles are defined with `style-def: cell`.
)",
     .wrong = R"(
(doc
(r
(c
(cs=shadde)
c)
r)
doc)
)",
     .right = R"(
(doc
(r
(c
(cs=shaded)
c)
r)
doc)
)",
     .companion = R"(
{ name: shaded; style-def: cell; format: silver }
)"},

    {.id = DiagnosticId::SharedStyleNumber,
     .identifier = "shared-style-number",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "The paragraph style {0} shares the number {1} with the character style {2}.",
     .explanation = R"(
Paragraph styles and character styles are both numbered from 100 on. LibreOffice loses the whole
table when the first or the last paragraph of a cell, other than the last cell of a row, has a
number that a character style has too. Put as many unused paragraph styles first as the stylesheet
has character styles, the first of them with the format of `normal`.
)",
     .wrong = R"(
(doc
(r
(c
(p
(pt=<strong=Total>)
(ps=normal)
p)
c)
(c
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
(ps=sum)
p)
c)
(c
c)
r)
doc)
)",
     .companion = R"(
{ name: normal; style-def: s; format: \fs20 }
{ name: sum; style-def: s; format: \fs20\b }
{ name: strong; style-def: cs; format: \b }
)"},

    {.id = DiagnosticId::LowContrast,
     .identifier = "low-contrast",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "The text is {0} on {1} and can hardly be read.",
     .explanation = R"(
The contrast between a text and what it stands on is less than 3 to 1. The colour of a text is that
of its paragraph's style, of an inline style, or of a `\cf` in the text; it is white where the cell
is dark, and it stands on the cell's background or on a `\highlight` or a shading of its own. Take
another background, or a style with another colour.
)",
     .wrong = R"(
(doc
(r
(c
(cb=blue)
(p
(para-key=7)
(pt=Total)
p)
c)
r)
doc)
)",
     .right = R"(
(doc
(r
(c
(cb=blue)
(p
(pt=Total)
p)
c)
r)
doc)
)"},
};

}  // namespace quorvane
