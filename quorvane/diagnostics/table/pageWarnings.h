#pragma once

#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane {

/// Warnings about the page and the widths of the cells.
inline constexpr DiagnosticRule pageWarnings[] = {
    {.id = DiagnosticId::WidthsSum,
     .identifier = "widths-sum",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "The widths of the cells add up to {0} per cent.",
     .explanation = R"(
The widths of the cells of a row should add up to a hundred: the last cell gets what is left,
whatever its width says of it.
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
     .message = "The cell becomes {0} per cent wide instead of {1}.",
     .explanation = R"(
The cells begin with equal widths, and from left to right each one moves its right edge. It cannot
reach beyond its right neighbor as that stands then, and no cell becomes narrower than 200 twips. So
of three cells the first can take 64 per cent, and the second more once the first is narrow: 80, 10,
10 does not fit, 10, 80, 10 does. The hint names an order that was tried.
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
     .message = "The row is {0} twips wide, the page has room for {1}.",
     .explanation = R"(
The cells are laid out before the keys of the document are applied, on the default page with 8840
twips between the margins, and stay so; and no cell is narrower than 200 twips. Choose margins that
leave 8840 twips: 1533 each side on A4, 1700 on US letter.
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
     .message = "The row is {0} twips wide, the page has room for {1}.",
     .explanation = R"(
The cells are laid out before the keys of the document are applied, on the default page with 8840
twips between the margins, and stay so. A wider page, such as one in landscape, leaves the table as
wide as it was, and `cell-width`, which counts in per cent of the page, then moves the cells to
where nobody wants them. Choose margins that leave 8840 twips: 1533 each side on A4, 3999 on A4 in
landscape. A row of a single cell can be as wide as the page, with `cell-width`. Wider rows of
several cells are made through the object model.
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
     .message = "The margin doesn't fit and becomes {0}.",
     .explanation = R"(
A margin is at least 1 and less than 0.9 of the paper less the opposite margin. The keys are applied
in the order of their names: `bottom-margin` and `left-margin` are compared with the default paper,
12242 by 15842 twips.
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
     .message = "The margins are {0} twips {1} together, the paper is {2}.",
     .explanation = R"(
Margins are compared with the paper as it is when their turn comes. The keys are applied in the
order of their names: a margin that fits the default paper, 12242 by 15842 twips, can be too large
for the paper that `paper-width` or `paper-height` sets after it.
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
     .message = "A {0} of {1} twips is {2} millimeters.",
     .explanation = R"(
The measures of the page are in twips: 1440 are an inch, 567 a centimeter, 57 a millimeter. Paper of
less than an inch and a margin of less than two millimeters are most likely meant in another unit.
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
     .message = "The number of the first page becomes 2.",
     .explanation = R"(
The first page has a number from 1 on.
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
     .message = "The row has {0} cells; word processors take 63.",
     .explanation = R"(
Word processors refuse or cut a row of more than 63 cells. Cells are at least 200 twips wide, so 44
of them fill the default page already.
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
