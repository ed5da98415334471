#include <gtest/gtest.h>

#include "tests/docmodel/layout/TextTable.h"
#include "tests/support/errorNumberOf.h"

namespace quorvane {
namespace {

TEST(EndsInSmallParagraph, WritesAParagraphOfOnePointAfterTheTable) {
    const TextTable table;
    table.addRow({"a"});
    const std::string before = table.document->Contents();
    EXPECT_FALSE(table.document->EndsInSmallParagraph());

    table.document->setEndsInSmallParagraph(true);

    EXPECT_TRUE(table.document->EndsInSmallParagraph());
    EXPECT_TRUE(table.document->Changed());
    EXPECT_EQ(table.document->Contents(),
              before.substr(0, before.size() - 1) + "\\pard\\plain\\sl-20\\slmult0\\fs2\\par}");
    table.document->ClearStructure();
    EXPECT_FALSE(table.document->EndsInSmallParagraph());
}

class PageTexts : public testing::Test, protected TextTable {
protected:
    /// The error that a text is refused with.
    std::string refusal(const char* center) const {
        try {
            document->setPageFooter("", center, "");
        } catch (const RtfError& error) {
            return std::to_string(error.number) + " " + error.description;
        }
        return {};
    }

    /// The left text of the page header as it is written.
    std::string written(const char* left) const {
        document->setPageHeader(left, "", "");
        const std::string rtf = text();
        const std::string begin = "\\sa0 ";
        const std::size_t at = rtf.find(begin) + begin.size();
        return rtf.substr(at, rtf.find("\\tab ", at) - at);
    }
};

TEST_F(PageTexts, AreEmptyAtFirst) {
    EXPECT_EQ(document->PageHeader(), PageText());
    EXPECT_EQ(document->PageFooter(), PageText());
}

TEST_F(PageTexts, AreWrittenAtTabStopsOfTheTextArea) {
    document->setPageHeader("left", "center", "right");

    EXPECT_EQ(text(),
              "\r\n\\headery709\r\n{\\header\r\n\\pard\\plain \\tqc\\tx4420\\tqr\\tx8840"
              "\\sa0 left\\tab center\\tab right\\par}");
    EXPECT_EQ(document->PageHeader(), (PageText{"left", "center", "right"}));
}

TEST_F(PageTexts, OfTheFooterFollowThoseOfTheHeader) {
    document->setPageHeader("a", "", "");
    document->setPageFooter("", "b", "");

    EXPECT_EQ(text(),
              "\r\n\\headery709\r\n{\\header\r\n\\pard\\plain \\tqc\\tx4420\\tqr\\tx8840"
              "\\sa0 a\\tab \\tab \\par}"
              "\r\n\\footery709\r\n{\\footer\r\n\\pard\\plain \\tqc\\tx4420\\tqr\\tx8840"
              "\\sa0 \\tab b\\tab \\par}");
    EXPECT_EQ(document->PageFooter(), (PageText{"", "b", ""}));
}

TEST_F(PageTexts, StandInTheStylesOfTheirNames) {
    document->LoadStyleSheetFromMemmory(
        "{name: normal; style-def: s; format: \\fs24}{name: header; style-def: s; format: \\b}");
    document->setPageHeader("a", "", "");
    document->setPageFooter("b", "", "");

    EXPECT_NE(text().find("{\\header\r\n\\pard\\plain\\s101\\b \\tqc"), std::string::npos);
    EXPECT_NE(text().find("{\\footer\r\n\\pard\\plain\\s0\\fs24 \\tqc"), std::string::npos);
}

TEST_F(PageTexts, HaveFieldsForTheNumbersOfPages) {
    EXPECT_EQ(written("Page {page} of {pages}."),
              "Page {\\field{\\*\\fldinst PAGE}{\\fldrslt 1}} of "
              "{\\field{\\*\\fldinst NUMPAGES}{\\fldrslt 1}}.");
}

TEST_F(PageTexts, ShowAllOtherCharacters) {
    EXPECT_EQ(written("{{a}} \\b <c=d> \xC5\x99"), "\\{a\\} \\\\b \\'3Cc=d\\'3E {\\uc1\\u345?}");
}

TEST_F(PageTexts, RefuseOtherBraces) {
    EXPECT_EQ(refusal("a {b}"), "5 Write {page}, {pages}, or {{ for a brace (byte 3)");
    EXPECT_EQ(refusal("a}"), "5 Write }} for a brace (byte 2)");
    EXPECT_EQ(refusal("{page"), "5 Write {page}, {pages}, or {{ for a brace (byte 1)");
    EXPECT_EQ(document->PageFooter(), PageText());
}

TEST_F(PageTexts, RefuseWhatNoDocumentCanShow) {
    EXPECT_EQ(refusal("a\x01"), "5 No document can show the control character U+0001 (byte 2)");
    EXPECT_EQ(refusal("\xFF"), "5 Byte FF is not UTF-8 (byte 1)");
}

TEST_F(PageTexts, KeepTheirDistanceInASmallMargin) {
    document->setTopMargin(200);
    document->setBottomMargin(3000);
    document->setPageHeader("a", "", "");
    document->setPageFooter("b", "", "");

    EXPECT_NE(text().find("\\headery100\r\n"), std::string::npos);
    EXPECT_NE(text().find("\\footery720\r\n"), std::string::npos);
}

TEST_F(PageTexts, MarkTheDocumentChangedWhenTheyChange) {
    EXPECT_TRUE(marksChanged(*document, [&] { document->setPageHeader("a", "", ""); }));
    EXPECT_FALSE(marksChanged(*document, [&] { document->setPageHeader("a", "", ""); }));
    EXPECT_TRUE(marksChanged(*document, [&] { document->setPageFooter("", "", "b"); }));
    EXPECT_TRUE(marksChanged(*document, [&] { document->setPageFooter("", "", ""); }));
}

TEST_F(PageTexts, AreResetWithThePage) {
    document->setPageHeader("a", "", "");
    document->setPageFooter("a", "", "");

    document->ClearStructure();

    EXPECT_EQ(document->PageHeader(), PageText());
    EXPECT_EQ(document->PageFooter(), PageText());
}

TEST_F(PageTexts, NeedATextAreaThatANumberCanHold) {
    document->setPageHeader("a", "", "");
    document->setPageWidth(INT32_MIN);

    EXPECT_EQ(errorNumberOf([&] { document->Refresh(); }), 6);
}

}  // namespace
}  // namespace quorvane
