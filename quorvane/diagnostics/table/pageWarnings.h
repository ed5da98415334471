#pragma once

#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane {

/// Warnings about the page and the widths of the cells.
inline constexpr DiagnosticRule pageWarnings[] = {
    {.id = DiagnosticId::WidthsSum,
     .identifier = "widths-sum",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "The cell widths add up to {0} percent, not 100.",
     .explanation = R"(
The widths of the cells of a row should add up to 100 percent. The last cell gets whatever is left,
regardless of its own width.
)",
     .wrong = R"(
(doc
(r
(c
(cw=30)
c)
(c
(cw=50)
c)
r)
doc)
)",
     .right = R"(
(doc
(r
(c
(cw=30)
c)
(c
(cw=70)
c)
r)
doc)
)"},

    {.id = DiagnosticId::WidthClamped,
     .identifier = "width-clamped",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "The cell will be {0} percent wide instead of {1}.",
     .explanation = R"(
The cells start with equal widths. From left to right, each one then moves its right edge, but not
beyond the current right edge of the next cell, and no cell becomes narrower than 200 twips. Of
three cells, the first can therefore take 64 percent, and the second more once the first is narrow:
80, 10, 10 does not fit, but 10, 80, 10 does. The hint suggests an order that fits.
)",
     .wrong = R"(
(doc
(r
(c
(cw=80)
c)
(c
(cw=10)
c)
(c
(cw=10)
c)
r)
doc)
)",
     .right = R"(
(doc
(r
(c
(cw=10)
c)
(c
(cw=10)
c)
(c
(cw=80)
c)
r)
doc)
)"},

    {.id = DiagnosticId::TableOverrun,
     .identifier = "table-overrun",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "The row is {0} twips wide, but the page has room for only {1}.",
     .explanation = R"(
Cells are laid out before the keys of the document are applied. They therefore get the widths of the
default page, which has 8840 twips between its margins, and keep them; and no cell is narrower than
200 twips. Choose margins that leave 8840 twips: 1533 on each side for A4, 1700 for US letter.
)",
     .wrong = R"(
(doc
(paper-width=11906)
(r
(c
c)
(c
c)
r)
doc)
)",
     .right = R"(
(doc
(paper-width=11906)
(left-margin=1533)
(right-margin=1533)
(r
(c
c)
(c
c)
r)
doc)
)"},

    {.id = DiagnosticId::TableUnderrun,
     .identifier = "table-underrun",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "The row is {0} twips wide, but the page has room for {1}.",
     .explanation = R"(
Cells are laid out before the keys of the document are applied. They therefore get the widths of the
default page, which has 8840 twips between its margins, and keep them. A wider page, such as one in
landscape, does not make the table wider, and `cell-width`, which is a percentage of the page, then
puts cells in the wrong places. Choose margins that leave 8840 twips: 1533 on each side for A4, 3999
for A4 in landscape. Only a row with a single cell can be as wide as the page, with `cell-width`.
Build wider rows with several cells with the object model.
)",
     .wrong = R"(
(doc
(paper-width=16838)
(paper-height=11906)
(r
(c
c)
(c
c)
r)
doc)
)",
     .right = R"(
(doc
(paper-width=16838)
(paper-height=11906)
(left-margin=3999)
(right-margin=3999)
(r
(c
c)
(c
c)
r)
doc)
)"},

    {.id = DiagnosticId::MarginFallback,
     .identifier = "margin-fallback",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "The margin does not fit; {0} twips is used instead.",
     .explanation = R"(
A margin must be at least 1 twip, and together with the opposite margin less than 0.9 of the paper.
Keys are applied in alphabetical order, so `bottom-margin` and `left-margin` are compared with the
default paper, which is 12242 by 15842 twips.
)",
     .wrong = R"(
(doc
(left-margin=12000)
(r
(c
c)
r)
doc)
)",
     .right = R"(
(doc
(left-margin=1701)
(r
(c
c)
r)
doc)
)"},

    {.id = DiagnosticId::NoRoom,
     .identifier = "no-room",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "Together the margins are {0} twips {1}, but the paper is only {2}.",
     .title = "The margins leave no room on the paper.",
     .explanation = R"(
A margin is compared with the paper as it is when the margin is applied. Keys are applied in
alphabetical order: a margin that fits the default paper, which is 12242 by 15842 twips, can be too
large for the paper that `paper-width` or `paper-height` sets later.
)",
     .wrong = R"(
(doc
(left-margin=8000)
(paper-width=5000)
(r
(c
c)
r)
doc)
)",
     .right = R"(
(doc
(left-margin=1533)
(right-margin=1533)
(paper-width=11906)
(r
(c
c)
r)
doc)
)"},

    {.id = DiagnosticId::TinyMeasure,
     .identifier = "tiny-measure",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "A {0} of {1} twips is only {2} millimeters.",
     .title = "A measure of the page is too small to be meant in twips.",
     .explanation = R"(
The measures of the page are in twips: an inch has 1440, a centimeter 567 and a millimeter 57. Paper
smaller than an inch or a margin smaller than two millimeters was probably meant in another unit.
)",
     .wrong = R"(
(doc
(paper-width=210)
(r
(c
c)
r)
doc)
)",
     .right = R"(
(doc
(paper-width=11906)
(left-margin=1533)
(right-margin=1533)
(r
(c
c)
r)
doc)
)"},

    {.id = DiagnosticId::PageNumberFallback,
     .identifier = "page-number-fallback",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "The first page number must be at least 1; 2 is used instead.",
     .explanation = R"(
The first page can have any number from 1.
)",
     .wrong = R"(
(doc
(page-number-start=0)
(r
(c
c)
r)
doc)
)",
     .right = R"(
(doc
(page-number-start=1)
(r
(c
c)
r)
doc)
)"},

    {.id = DiagnosticId::TooManyCells,
     .identifier = "too-many-cells",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "The row has {0} cells, but word processors support only 63.",
     .explanation = R"(
Word processors refuse or cut off a row of more than 63 cells. Because cells are at least 200 twips
wide, 44 of them already fill the default page.
)",
     .wrong = R"(
(doc
(r
; 64 times:
(c
c)
; so far
r)
doc)
)",
     .right = R"(
(doc
(r
; 40 times:
(c
c)
; so far
r)
doc)
)"},
};

}  // namespace quorvane
