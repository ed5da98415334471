#pragma once

#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane {

/// Warnings about the styles that a description uses, and about its colors.
inline constexpr DiagnosticRule styleWarnings[] = {
    {.id = DiagnosticId::UnknownParagraphStyle,
     .identifier = "unknown-paragraph-style",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "The stylesheet has no paragraph style {0}; {1}.",
     .title = "The stylesheet has no paragraph style ….",
     .explanation = R"(
A paragraph whose style is not in the stylesheet gets the format of the first paragraph style, with
the style number 0.
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
     .message = "The stylesheet has no character style {0}; the text gets no format.",
     .explanation = R"(
The text of an inline style that is not in the stylesheet is written without a format. Define
character styles with `style-def: cs`.
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
     .message = "The stylesheet has no cell style {0}; the cell gets background 0.",
     .explanation = R"(
A cell whose style is not in the stylesheet gets the background 0, which some readers show as black.
Define cell styles with `style-def: cell`.
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

    {.id = DiagnosticId::InlineStyleAsText,
     .identifier = "inline-style-as-text",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "The stylesheet has no character style {0}, so this is shown as text.",
     .explanation = R"(
In the extended language a `<` that opens no style of the stylesheet is text. This one is almost the
name of a style.
)",
     .wrong = R"(
; quorvane 2
(doc
(r
(c
(p
(pt=<stong=Total>)
p)
c)
r)
doc)
)",
     .right = R"(
; quorvane 2
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
; quorvane 2
{name: normal; style-def: s; font: Arial}
{name: strong; style-def: cs; bold}
)"},

    {.id = DiagnosticId::SharedStyleNumber,
     .identifier = "shared-style-number",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "Paragraph style {0} and character style {2} share the number {1}; LibreOffice may "
                "lose the table.",
     .explanation = R"(
Paragraph styles and character styles are both numbered from 100. LibreOffice loses the whole table
if the first or last paragraph of a cell, other than the last cell of a row, has a style number that
is also the number of a character style. Begin the stylesheet with as many unused paragraph styles
as it has character styles, and give the first of them the format of `normal`.
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
     .message = "The text is {0} on {1} and hard to read.",
     .explanation = R"(
The contrast between the text and its background is less than 3 to 1. The color of a text comes from
the style of its paragraph, from an inline style, or from a `\cf` in the text; in a dark cell it is
white. Its background is that of the cell, or its own `\highlight` or shading. Choose another
background, or a style with another color.
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
