#include <gtest/gtest.h>

#include "tests/docmodel/documentParts.h"
#include "tests/docmodel/fixedGroups.h"
#include "tests/docmodel/picture/pictureFiles.h"

namespace quorvane {
namespace {

class Added : public testing::Test, protected CellDocument {
protected:
    /// The fixed groups of the document, with what was added to them.
    std::string groups() const {
        document->Refresh();
        const std::string& text = document->Contents();
        return text.substr(1, text.find("\\deftab") - 3);
    }

    static std::string with(std::string_view added, std::string_view place) {
        std::string groups = fixedGroups;
        groups.insert(groups.find(place) + place.size(), added);
        return groups;
    }
};

constexpr const char* lastColor = "\\red153\\green0\\blue0;";
constexpr const char* lastFont = "Century Gothic;}";

TEST_F(Added, ColorsFollowThoseOfTheTable) {
    EXPECT_EQ(document->addColor(0x1F, 0x4E, 0x79), 58);
    EXPECT_EQ(document->addColor(0, 1, 255), 59);

    EXPECT_EQ(groups(),
              with("\r\n\\red31\\green78\\blue121;\r\n\\red0\\green1\\blue255;", lastColor));
}

TEST_F(Added, ColorsAreThereOnce) {
    EXPECT_EQ(document->addColor(1, 2, 3), 58);
    EXPECT_EQ(document->addColor(3, 2, 1), 59);
    EXPECT_EQ(document->addColor(1, 2, 3), 58);
}

TEST_F(Added, ColorsThatTheTableHasKeepTheirNumbers) {
    EXPECT_EQ(document->addColor(127, 255, 212), eAquamarine);
    EXPECT_EQ(document->addColor(153, 0, 0), eRedBrick);
    EXPECT_EQ(document->addColor(0, 0, 0), eBlack);
    EXPECT_EQ(groups(), fixedGroups);
}

TEST_F(Added, ColorsServeCellsAndTexts) {
    const tColorIndex color = document->addColor(1, 2, 3);
    paragraphs->AddTail();
    paragraph(1)->setText("text");

    only->setBackColor(color);
    paragraph(1)->setForeColor(color);

    EXPECT_EQ(cellsText(),
              " \\clcbpat58\\cellx8840 \r\n\r\n\r\n\\pard\\plain\\intbl \\cf58 "
              "text\\cell");
}

TEST_F(Added, ColorsDoNotMakeTheTextWhite) {
    paragraphs->AddTail();

    only->setBackColor(document->addColor(1, 2, 3));

    EXPECT_EQ(paragraph(1)->ForeColor(), eNoColor);
}

TEST_F(Added, ColorsHavePartsOfOneByte) {
    EXPECT_EQ(errorOf([&] { document->addColor(256, 0, 0); }),
              "5 A part of a color is a number from 0 to 255, not 256.");
    EXPECT_EQ(errorOf([&] { document->addColor(0, -1, 0); }),
              "5 A part of a color is a number from 0 to 255, not -1.");
    EXPECT_EQ(errorOf([&] { document->addColor(0, 0, 999); }),
              "5 A part of a color is a number from 0 to 255, not 999.");
}

TEST_F(Added, ColorsEndWhereNumbersDo) {
    for (std::int32_t number = 58; number <= 32767; ++number) {
        ASSERT_EQ(document->addColor(7, number / 256, number % 256), number);
    }

    EXPECT_EQ(errorOf([&] { document->addColor(8, 0, 0); }),
              "5 A document has no more than 32767 colors.");
    EXPECT_EQ(document->addColor(7, 1, 0), 256);
}

TEST_F(Added, FontsFollowThoseOfTheTable) {
    EXPECT_EQ(document->addFont("Liberation Sans"), 18);
    EXPECT_EQ(document->addFont("{Fran\xC3\xA7"
                                "ais}"),
              19);

    EXPECT_EQ(groups(), with("\r\n{\\f18\\fnil\\fcharset0 Liberation Sans;}"
                             "\r\n{\\f19\\fnil\\fcharset0 \\{Fran\\'E7ais\\};}",
                             lastFont));
}

TEST_F(Added, FontsAreThereOnceInAnyCase) {
    EXPECT_EQ(document->addFont("Liberation Sans"), 18);
    EXPECT_EQ(document->addFont("LIBERATION sans"), 18);
    EXPECT_EQ(document->addFont("georgia"), 5);
    EXPECT_EQ(document->addFont("Arial"), 0);
}

TEST_F(Added, FontsHaveNamesThatATableCanHold) {
    const std::string message =
        "5 The name of a font has only characters up to U+00FF, and no semicolon, tab or line "
        "break.";

    EXPECT_EQ(errorOf([&] { document->addFont(""); }), "5 A font has a name.");
    EXPECT_EQ(errorOf([&] { document->addFont("a;b"); }), message);
    EXPECT_EQ(errorOf([&] { document->addFont("a\tb"); }), message);
    EXPECT_EQ(errorOf([&] { document->addFont("\xC5\x99"); }), message);
    EXPECT_EQ(errorOf([&] { document->addFont("a\x01"); }),
              "5 No document can show the control character U+0001 (byte 2)");
    EXPECT_EQ(groups(), fixedGroups);
}

TEST_F(Added, ColorsAndFontsMarkTheDocumentChangedWhenTheyAreNew) {
    EXPECT_TRUE(marksChanged(*document, [&] { document->addColor(1, 2, 3); }));
    EXPECT_FALSE(marksChanged(*document, [&] { document->addColor(1, 2, 3); }));
    EXPECT_TRUE(marksChanged(*document, [&] { document->addFont("Name"); }));
    EXPECT_FALSE(marksChanged(*document, [&] { document->addFont("name"); }));
}

TEST_F(Added, ColorsAndFontsStayWithTheStylesheet) {
    document->addColor(1, 2, 3);
    document->addFont("Name");

    document->ClearStructure();

    EXPECT_EQ(document->addColor(4, 5, 6), 59);
    EXPECT_EQ(document->addFont("Other"), 19);
}

}  // namespace
}  // namespace quorvane
