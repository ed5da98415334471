#pragma once

#include "quorvane/diagnostics/engine/diagnosticRules.h"
#include "quorvane/driver/driverErrorTable.h"

namespace quorvane {

/// What the library rejects in a description of the extended language only.
inline constexpr DiagnosticRule extendedErrors[] = {
    {.id = DiagnosticId::WrongValue,
     .identifier = "wrong-value",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = driverErrorText(DriverFault::WrongValue),
     .title = "A value of the extended language means nothing for its key.",
     .explanation = R"(
In the extended language every value that means nothing is an error. The message says what to write
instead: a length has a unit or is a number of twips, a column has a share or a length, and a choice
is one of few words.
)",
     .wrong = R"(
; quorvane 2
(doc
(page=a44)
(r
(c
(p
(pt=Total)
p)
c)
r)
doc)
)",
     .right = R"(
; quorvane 2
(doc
(page=a4)
(r
(c
(p
(pt=Total)
p)
c)
r)
doc)
)",
     .encoding = TextEncoding::Utf8},

    {.id = DiagnosticId::WrongPlace,
     .identifier = "wrong-place",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = driverErrorText(DriverFault::WrongPlace),
     .title = "A line of the extended language stands where it cannot.",
     .explanation = R"(
In the extended language a row stands in `doc`, a cell in a row and a paragraph in a cell, and each
is closed. Nothing is closed for you, and nothing stands outside `doc` but comments.
)",
     .wrong = R"(
; quorvane 2
(doc
(r
(c
(p
(pt=Total)
p)
(c
(p
(pt=5.00)
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
(pt=Total)
p)
c)
(c
(p
(pt=5.00)
p)
c)
r)
doc)
)",
     .encoding = TextEncoding::Utf8},

    {.id = DiagnosticId::UnclosedValue,
     .identifier = "unclosed-value",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = driverErrorText(DriverFault::UnclosedValue),
     .explanation = R"(
A value that goes on over several lines begins with `"""` and ends with `""")` at the end of a line.
)",
     .wrong = R"(
; quorvane 2
(doc
(r
(c
(p
(pt="""
Dear customer,
thank you.
)
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
(pt="""
Dear customer,
thank you.
""")
p)
c)
r)
doc)
)",
     .encoding = TextEncoding::Utf8},

    {.id = DiagnosticId::WrongPicture,
     .identifier = "wrong-picture",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = driverErrorText(DriverFault::WrongPicture),
     .title = "A picture cannot be taken into the document.",
     .explanation = R"(
A picture is a PNG or JPEG file in the folder of the description or in a folder within it;
"--allow-pictures DIR" allows another folder. The message says why it cannot be taken: the file is
missing, damaged, too large, of another kind, or elsewhere.
)"},

    {.id = DiagnosticId::UndefinedStyle,
     .identifier = "undefined-style",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = driverErrorText(DriverFault::UndefinedStyle),
     .title = "The stylesheet lacks a style that a description of the extended language names.",
     .explanation = R"(
In the extended language a paragraph style and a cell style must be in the stylesheet. Without a
stylesheet no style is looked up.
)",
     .wrong = R"(
; quorvane 2
(doc
(r
(c
(p
(ps=hedding)
(pt=Total)
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
(ps=heading)
(pt=Total)
p)
c)
r)
doc)
)",
     .companion = R"(
; quorvane 2
{name: normal; style-def: s; font: Arial}
{name: heading; style-def: s; bold}
)"},
};

}  // namespace quorvane
