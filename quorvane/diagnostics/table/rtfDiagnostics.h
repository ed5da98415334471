#pragma once

#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane {

/// What can be wrong with an RTF file.
inline constexpr DiagnosticRule rtfDiagnostics[] = {
    {.id = DiagnosticId::NotRtf,
     .identifier = "not-rtf",
     .severity = Severity::Error,
     .language = CheckedLanguage::Rtf,
     .message = R"(The file doesn't begin with {\rtf.)",
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
Each `{` has its `}`. Readers refuse a file that ends before, or show a part of it.
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
     .message = "The document ends before this.",
     .explanation = R"(
Readers stop at the brace that closes the document. Where text follows it, there is one `}` too many
before it, and readers lose that text. Blanks, line ends and NUL bytes, which programs write there,
are fine.
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
     .message = "The document ends before this.",
     .explanation = R"(
Something that shows no text follows the brace that closes the document, such as another `}` or a
group of data: one `}` too many stands before it, or the file was put together from others. Readers
pass over it.
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
A character in the form `\'e9` has two hexadecimal digits.
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
     .message = "The file ends within {0}.",
     .explanation = R"(
The file ends in the middle of a control word or before its binary data is complete.
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
`\bin` and a number say how many bytes of binary data follow. Without a number above 0 LibreOffice
loses a character, or refuses the file. A picture in hexadecimal digits has no `\bin`.
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
     .message = "Groups are nested deeper than {0}.",
     .explanation = R"(
Word processors give up on groups that are nested so deep. What is deeper is not checked.
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
     .message = "The row has {0} and {1}.",
     .explanation = R"(
A row has as many cells, each ended by `\cell`, as it has definitions, each ended by `\cellx`.
Readers drop a cell that has no definition, with its text.
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
     .message = "The row has {0} and {1}.",
     .explanation = R"(
A row has as many cells, each ended by `\cell`, as it has definitions, each ended by `\cellx`.
Readers add empty cells where some are missing, and drop empty ones that have no definition.
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
A row has at least one cell, ended by `\cell`. LibreOffice loses the whole table when one of its
rows has none.
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
     .message = "The edge {0} is not to the right of the one before, {1}.",
     .explanation = R"(
The right edges of a row's cells rise from left to right. Where one does not, readers give the cell
a width of their own.
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
     .message = "The row that begins here is not ended.",
     .explanation = R"(
Cells that no `\row` follows are in no row. Readers lose them, or the table.
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
     .message = "A section ends within the row.",
     .explanation = R"(
`\sect` stands between rows or outside the table. Within a row, LibreOffice makes two tables of one.
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
`\f` and `\af` name a font by its number in the font table, which stands before. Readers show the
text in another font. Each number is reported once.
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
Colors are named by their number in the color table: the empty entry at its beginning is number 0.
Readers show the color that they have for text without one. Each number is reported once.
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
`\s`, `\cs`, `\ds` and `\ts` name a style by its number in the list of styles. The paragraph style 0
is always there. Readers go without the style. Each number is reported once.
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
     .message = "The font {0} is in the font table already, with another definition.",
     .explanation = R"(
Each font has a number of its own. Readers differ in which of the two they take. The same font may
stand there twice.
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
     .message = "The style {0} is in the stylesheet already.",
     .explanation = R"(
Each paragraph style and each character style has a number of its own kind. Readers differ in which
of the two they take. The rows of a table style repeat its number.
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
     .message = R"({0} is no known destination and not marked with \*.)",
     .explanation = R"(
A group that begins with a control word that readers may not know is marked with `\*`, so that they
pass over it. Without the mark they ignore the word and show what the group holds. Each word is
reported once.
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
