// A host that gives a driver two descriptions and works on what comes of them.

#include <gtest/gtest.h>

#include <string>

#include "tests/driver/ParsedDescription.h"
#include "tests/driver/documentText.h"
#include "tests/support/soundDocuments.h"

namespace quorvane {
namespace {

TEST(WorkingOnADescription, GoesThroughTheObjectModel) {
    FakePlatform platform;
    const Ref<CRtfDriver> driver = CRtfDriver::create(platform);
    EXPECT_FALSE(driver->ErroneousInput());
    EXPECT_TRUE(driver->notifyError());
    EXPECT_EQ(driver->StyleSheetFile(), "");
    EXPECT_EQ(driver->Contents(), "{}");
    EXPECT_EQ(errorOf([&] { driver->ParseFile(""); }),
              (ErrorFacts{-2147221501, "Path is empty!",
                          "Error: eWrongPath\r\nCRtfDriver.ParseFile", 0}));

    driver->ParseFromMemmory(
        "(doc\n(r\n(c\n(cw=25)\n(p\n(pt=x)\np)\nc)\n(c\nc)\nr)\n(r\n(c\nc)\nr)\ndoc)");
    const Ref<CRtfTableRows> rows = driver->RtfObject()->TableRows();
    EXPECT_EQ(rows->Count(), 2);
    EXPECT_EQ(rows->Item("1001")->BackColor(), eNoColor);
    const Ref<CRtfTableCell> cell = rows->Item("1001")->TableCells()->Item("2001");
    EXPECT_EQ(cell->Width(ePercent), 25);
    EXPECT_EQ(cell->Paragraphs()->Item("3001")->Text(), "x");
    EXPECT_EQ(rows->Item("1002")->TableCells()->Item("2003")->Width(eTwips), 8840);
    EXPECT_EQ(errorOf([&] { rows->Item(2)->TableCells()->Item("2001"); }).number, 5);

    driver->setErroneousInput(true);
    driver->setNotifyError(false);
    driver->ParseFromMemmory("(doc\n(r\n(c\n(p\n(pt=y)\nc)\nr)\ndoc)");
    EXPECT_EQ(driver->RtfObject()->TableRows()->Count(), 1);
    EXPECT_EQ(driver->RtfObject().get(), driver->RtfObject().get());

    driver->RtfObject()
        ->TableRows()
        ->Item(1)
        ->TableCells()
        ->Item(1)
        ->Paragraphs()
        ->Item(1)
        ->setForeColor(eRed);
    driver->RtfObject()->setTopMargin(600);
    const std::string expected =
        documentText(R"(\margb1418\margl1701\margt600\margr1701\paperw12242\paperh15842\pgnstart2)",
                     "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0 \\cellx8840 "
                     "\r\n\r\n\r\n\\pard\\plain\\intbl \\cf30 y\\cell\\row}");
    EXPECT_EQ(driver->Contents(), expected);

    driver->Commit("out.rtf");
    EXPECT_EQ(platform.files["out.rtf"], expected);
    expectSoundDocuments(platform);
}

}  // namespace
}  // namespace quorvane
