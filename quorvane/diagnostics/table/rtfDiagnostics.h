#pragma once

#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane {

/// What can be wrong with an RTF file.
inline constexpr DiagnosticRule rtfDiagnostics[] = {
    {.id = DiagnosticId::NotRtf,
     .identifier = "not-rtf",
     .severity = Severity::Error,
     .language = CheckedLanguage::Rtf,
     .message = R"(The file does not begin with {\rtf.)",
     .explanation = R"(
An RTF file begins with `{\rtf` and its version.
)",
     .wrong = R"(
{\rtx1 Total}
)",
     .right = R"(
{\rtf1 Total}
)"},

    {.id = DiagnosticId::UnclosedGroup,
     .identifier = "unclosed-group",
     .severity = Severity::Error,
     .language = CheckedLanguage::Rtf,
     .message = "The group is not closed.",
     .explanation = R"(
Every `{` needs a `}`. Readers refuse a file that ends before it, or show only a part of the file.
)",
     .wrong = R"(
{\rtf1 {\b Total}
)",
     .right = R"(
{\rtf1 {\b Total}}
)"},

    {.id = DiagnosticId::TextAfterEnd,
     .identifier = "text-after-end",
     .severity = Severity::Error,
     .language = CheckedLanguage::Rtf,
     .message = "The document ends before this text.",
     .explanation = R"(
Readers stop at the brace that closes the document. If text follows it, there is one `}` too many
before it, and the text is lost. Blanks, line breaks and NUL bytes after the end, which some
programs write, are fine.
)",
     .wrong = R"(
{\rtf1 {\b Total}} Sum}
)",
     .right = R"(
{\rtf1 {\b Total} Sum}
)"},

    {.id = DiagnosticId::DataAfterEnd,
     .identifier = "data-after-end",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Rtf,
     .message = "The document ends before this data.",
     .explanation = R"(
Something without text follows the brace that closes the document, such as another `}` or a group of
data. Either there is one `}` too many before it, or the file was put together from others. Readers
ignore it.
)",
     .wrong = R"(
{\rtf1 {\b Total} Sum}}
)",
     .right = R"(
{\rtf1 {\b Total} Sum}
)"},

    {.id = DiagnosticId::BadHexEscape,
     .identifier = "bad-hex-escape",
     .severity = Severity::Error,
     .language = CheckedLanguage::Rtf,
     .message = R"(Two hexadecimal digits must follow \'.)",
     .explanation = R"(
A character escape such as `\'e9` has two hexadecimal digits.
)",
     .wrong = R"(
{\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}
caf\'e}
)",
     .right = R"(
{\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}
caf\'e9}
)"},

    {.id = DiagnosticId::CutOff,
     .identifier = "cut-off",
     .severity = Severity::Error,
     .language = CheckedLanguage::Rtf,
     .message = "The file ends in the middle of {0}.",
     .explanation = R"(
The file ends in the middle of a control word, or before its binary data is complete.
)",
     .wrong = R"(
{\rtf1 {\pict\bin100 abc}}
)",
     .right = R"(
{\rtf1 {\pict\bin3 abc}}
)"},

    {.id = DiagnosticId::BinaryLength,
     .identifier = "binary-length",
     .severity = Severity::Error,
     .language = CheckedLanguage::Rtf,
     .message = R"(The number of bytes must follow \bin.)",
     .explanation = R"(
`\bin` is followed by the number of bytes of binary data that come next. Without a number above 0,
LibreOffice loses a character or refuses the file. A picture in hexadecimal digits has no `\bin`.
)",
     .wrong = R"(
{\rtf1 {\pict\pngblip\bin 89504e47}}
)",
     .right = R"(
{\rtf1 {\pict\pngblip 89504e47}}
)"},

    {.id = DiagnosticId::DeepNesting,
     .identifier = "deep-nesting",
     .severity = Severity::Error,
     .language = CheckedLanguage::Rtf,
     .message = "Groups are nested more than {0} deep.",
     .explanation = R"(
Word processors give up on groups that are nested so deeply. Deeper groups are not checked.
)",
     .wrong = R"(
{\rtf1
; 1000 times:
{
; so far
Total
; 1000 times:
}
; so far
}
)",
     .right = R"(
{\rtf1
; 3 times:
{
; so far
Total
; 3 times:
}
; so far
}
)"},

    {.id = DiagnosticId::CellCount,
     .identifier = "cell-count",
     .severity = Severity::Error,
     .language = CheckedLanguage::Rtf,
     .message = "The row has {0} but {1}.",
     .title = "A row has cells without a definition.",
     .explanation = R"(
A row has as many cells, each ended by `\cell`, as definitions, each ended by `\cellx`. Readers drop
a cell without a definition together with its text.
)",
     .wrong = R"(
{\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}
{\trowd\cellx4000
\pard\intbl a\cell b\cell\row}
}
)",
     .right = R"(
{\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}
{\trowd\cellx4000\cellx8000
\pard\intbl a\cell b\cell\row}
}
)"},

    {.id = DiagnosticId::UnevenRow,
     .identifier = "uneven-row",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Rtf,
     .message = "The row has {0} but {1}.",
     .title = "A row has fewer cells than definitions, or empty cells without one.",
     .explanation = R"(
A row has as many cells, each ended by `\cell`, as definitions, each ended by `\cellx`. Readers add
empty cells if some are missing, and drop empty cells without a definition.
)",
     .wrong = R"(
{\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}
{\trowd\cellx4000\cellx8000
\pard\intbl a\cell\row}
}
)",
     .right = R"(
{\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}
{\trowd\cellx4000\cellx8000
\pard\intbl a\cell b\cell\row}
}
)"},

    {.id = DiagnosticId::RowWithoutCells,
     .identifier = "row-without-cells",
     .severity = Severity::Error,
     .language = CheckedLanguage::Rtf,
     .message = "The row has no cells.",
     .explanation = R"(
A row has at least one cell, ended by `\cell`. LibreOffice loses the whole table if one of its rows
has none.
)",
     .wrong = R"(
{\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}
{\trowd\row}
}
)",
     .right = R"(
{\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}
{\trowd\cellx4000\cellx8000
\pard\intbl a\cell b\cell\row}
}
)"},

    {.id = DiagnosticId::FallingEdge,
     .identifier = "falling-edge",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Rtf,
     .message = "The right edge {0} is not beyond the previous one, {1}.",
     .title = "The right edge of a cell is not beyond that of the previous one.",
     .explanation = R"(
The right edges of the cells of a row increase from left to right. If one does not, readers choose
the width of the cell themselves.
)",
     .wrong = R"(
{\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}
{\trowd\cellx4000\cellx4000
\pard\intbl a\cell b\cell\row}
}
)",
     .right = R"(
{\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}
{\trowd\cellx4000\cellx8000
\pard\intbl a\cell b\cell\row}
}
)"},

    {.id = DiagnosticId::UnendedRow,
     .identifier = "unended-row",
     .severity = Severity::Error,
     .language = CheckedLanguage::Rtf,
     .message = "The row that begins here has no end.",
     .explanation = R"(
Cells that are not followed by `\row` belong to no row. Readers lose them, or the whole table.
)",
     .wrong = R"(
{\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}
{\trowd\cellx4000\cellx8000
\pard\intbl a\cell b\cell}
}
)",
     .right = R"(
{\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}
{\trowd\cellx4000\cellx8000
\pard\intbl a\cell b\cell\row}
}
)"},

    {.id = DiagnosticId::SectionInRow,
     .identifier = "section-in-row",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Rtf,
     .message = "A section ends inside the row.",
     .explanation = R"(
`\sect` belongs between rows or outside the table. Inside a row, it makes LibreOffice split the
table into two.
)",
     .wrong = R"(
{\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}
{\trowd\cellx4000
\pard\intbl a\sect b\cell\row}
}
)",
     .right = R"(
{\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}
{\trowd\cellx4000
\pard\intbl a b\cell\row}
\sect}
)"},

    {.id = DiagnosticId::UnknownFont,
     .identifier = "unknown-font",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Rtf,
     .message = "The font {0} is not in the font table.",
     .explanation = R"(
`\f` and `\af` refer to a font by its number in the font table, which comes before them. Readers
show the text in another font. Each number is reported once.
)",
     .wrong = R"(
{\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}
\f3 Total}
)",
     .right = R"(
{\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}
\f0 Total}
)"},

    {.id = DiagnosticId::UnknownColor,
     .identifier = "unknown-color",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Rtf,
     .message = "The color {0} is not in the color table.",
     .explanation = R"(
Colors are referred to by their number in the color table. The empty entry at its beginning is
number 0. Readers show text with an unknown color in their default color. Each number is reported
once.
)",
     .wrong = R"(
{\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}
{\colortbl;\red255\green0\blue0;}
\cf2 Total}
)",
     .right = R"(
{\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}
{\colortbl;\red255\green0\blue0;}
\cf1 Total}
)"},

    {.id = DiagnosticId::UnknownStyle,
     .identifier = "unknown-style",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Rtf,
     .message = "The style {0} is not in the stylesheet.",
     .explanation = R"(
`\s`, `\cs`, `\ds` and `\ts` refer to a style by its number in the list of styles. Paragraph style 0
always exists. Readers ignore the reference. Each number is reported once.
)",
     .wrong = R"(
{\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}
{\stylesheet{\s1 sum;}}
\pard\s2 Total}
)",
     .right = R"(
{\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}
{\stylesheet{\s1 sum;}}
\pard\s1 Total}
)"},

    {.id = DiagnosticId::DuplicateFont,
     .identifier = "duplicate-font",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Rtf,
     .message = "The font {0} is already in the font table, with another definition.",
     .explanation = R"(
Each font has its own number. Of two fonts with the same number, some readers use the first and some
the second. The same font may be listed twice.
)",
     .wrong = R"(
{\rtf1{\fonttbl{\f0 Arial;}{\f0 Verdana;}} Total}
)",
     .right = R"(
{\rtf1{\fonttbl{\f0 Arial;}{\f1 Verdana;}} Total}
)"},

    {.id = DiagnosticId::DuplicateStyleNumber,
     .identifier = "duplicate-style-number",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Rtf,
     .message = "The style {0} is already in the stylesheet.",
     .explanation = R"(
Each paragraph style has its own number, and so does each character style. Of two styles with the
same number, some readers use the first and some the second. The rows of a table style share its
number.
)",
     .wrong = R"(
{\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}
{\stylesheet{\s1 sum;}{\s1 total;}} Total}
)",
     .right = R"(
{\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}
{\stylesheet{\s1 sum;}{\s2 total;}} Total}
)"},

    {.id = DiagnosticId::UnknownDestination,
     .identifier = "unknown-destination",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Rtf,
     .message = R"({0} is not a known destination and is not marked with \*.)",
     .explanation = R"(
Readers skip a group that begins with a control word they do not know if the word is marked with
`\*`. Without the mark, they ignore the word and show the contents of the group as text. Each word
is reported once.
)",
     .wrong = R"(
{\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}
{\ourdata 4711}Total}
)",
     .right = R"(
{\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}
{\*\ourdata 4711}Total}
)"},
};

}  // namespace quorvane
