// Documents that accept stylesheets in the extended language.

#include <gtest/gtest.h>

#include "quorvane/base/values/RtfError.h"
#include "tests/docmodel/documentParts.h"
#include "tests/docmodel/fixedGroups.h"
#include "tests/support/errorNumberOf.h"

namespace quorvane {
namespace {

constexpr const char* sheet =
    "; quorvane 2\n"
    "{ name: normal; style-def: paragraph; font: Noto Sans; size: 9pt; color: #1f4e79 }\n"
    "{ name: total; style-def: paragraph; based-on: normal; bold }\n"
    "{ name: strong; style-def: character; italic }\n"
    "{ name: head; style-def: cell; background: #dde7f0 }\n";

TEST(ExtendedStyleSheets, AreNotAcceptedAtFirst) {
    const CellDocument parts({"text"});

    EXPECT_FALSE(parts.document->ExtendedStyleSheets());
    EXPECT_EQ(errorNumberOf([&] { parts.document->LoadStyleSheetFromMemmory(sheet); }), 445);
}

TEST(ExtendedStyleSheets, GiveTextsAndCellsTheirFormats) {
    const CellDocument parts({"a <strong=b>", "c"});
    parts.document->setExtendedStyleSheets(true);
    parts.document->LoadStyleSheetFromMemmory(sheet);
    parts.paragraph(1)->setStyle("total");
    parts.cell(1)->setStyle("head");

    EXPECT_EQ(parts.cellsText(),
              " \\clcbpat59\\cellx8840 \r\n\r\n\r\n"
              "\\pard\\plain\\intbl\\s101\\f18\\fs18\\cf58\\b a {\\cs102\\i b}\r\n"
              "\r\n\\par\\pard\\plain\\intbl\\s0\\f18\\fs18\\cf58 c\\cell");
}

TEST(ExtendedStyleSheets, AddTheirColorsAndFontsToTheDocument) {
    const CellDocument parts({"text"});
    parts.document->setExtendedStyleSheets(true);
    parts.document->LoadStyleSheetFromMemmory(sheet);
    const std::string& contents = parts.document->Contents();

    EXPECT_NE(contents.find("\r\n{\\f18\\fnil\\fcharset0 Noto Sans;}}\r\n{\\colortbl;"),
              std::string::npos);
    EXPECT_NE(contents.find("\r\n\\red31\\green78\\blue121;\r\n\\red221\\green231\\blue240;}"
                            "\r\n{\\stylesheet"
                            "\r\n{\\s0 \\f18\\fs18\\cf58 normal;}"
                            "\r\n{\\s101 \\f18\\fs18\\cf58\\b \\sbasedon0 total;}"
                            "\r\n{\\*\\cs102 \\additive \\i strong;}}"),
              std::string::npos);
    EXPECT_EQ(parts.document->addColor(0x1F, 0x4E, 0x79), 58);
    EXPECT_EQ(parts.document->addFont("noto sans"), 18);
}

TEST(ExtendedStyleSheets, KeepTheirNumbersWhenTheStructureIsCleared) {
    const CellDocument parts({"text"});
    parts.document->setExtendedStyleSheets(true);
    parts.document->LoadStyleSheetFromMemmory(sheet);
    parts.document->ClearStructure();

    EXPECT_EQ(parts.document->GetParagraphStyle("total"), "\\s101\\f18\\fs18\\cf58\\b ");
    EXPECT_NE(parts.document->Contents().find("\\red31\\green78\\blue121;"), std::string::npos);
}

TEST(ExtendedStyleSheets, KeepTheirColorsWhenThoseOfTheDocumentAreRemoved) {
    const CellDocument parts({"text"});
    parts.document->setExtendedStyleSheets(true);
    parts.document->LoadStyleSheetFromMemmory(sheet);
    EXPECT_EQ(parts.document->addColor(1, 2, 3), 60);
    EXPECT_EQ(parts.document->addFont("Other"), 19);
    parts.document->ClearStructure();

    EXPECT_EQ(parts.document->addColor(0x1F, 0x4E, 0x79), 58);
    EXPECT_EQ(parts.document->addColor(4, 5, 6), 60);
    EXPECT_EQ(parts.document->addFont("Third"), 19);
}

TEST(ExtendedStyleSheets, LeaveDocumentsInTheOriginalLanguageAsTheyAre) {
    const std::string original = "{ name: a; style-def: s; format: \\b }";
    const CellDocument accepting({"text"});
    accepting.document->setExtendedStyleSheets(true);
    accepting.document->LoadStyleSheetFromMemmory(original);
    const CellDocument other({"text"});
    other.document->LoadStyleSheetFromMemmory(original);

    EXPECT_EQ(accepting.document->Contents(), other.document->Contents());
}

}  // namespace
}  // namespace quorvane
