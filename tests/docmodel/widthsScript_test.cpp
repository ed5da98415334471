#include <gtest/gtest.h>

#include "tests/docmodel/documentParts.h"
#include "tests/docmodel/fixedGroups.h"
#include "tests/support/errorNumberOf.h"
#include "tests/support/soundDocuments.h"

namespace quorvane {
namespace {

// A host's session with the widths of cells, call by call: even widths, clamps and removals.
TEST(Script, OfWidths) {
    FakePlatform platform;
    const Ref<CRtfDoc> document = CRtfDoc::create(platform);
    document->setPageWidth(12402);
    document->TableRows()->AddTail();
    const Ref<CRtfTableCells> cells = document->TableRows()->Item(1)->TableCells();
    constexpr auto otherUnit = static_cast<tWidthUnit>(9);
    const auto width = [&](int position, tWidthUnit units) {
        return cells->Item(position)->Width(units);
    };

    cells->AddTail();
    cells->AddTail();
    cells->AddTail();
    EXPECT_EQ(width(1, ePercent), 33);
    EXPECT_EQ(width(3, eTwips), 3000);
    cells->Remove(2);
    EXPECT_EQ(width(1, eTwips), 6000);
    EXPECT_EQ(width(2, eTwips), 3000);
    cells->SetUniformWidths();
    cells->Item(1)->setWidth(eTwips, 8900);
    EXPECT_EQ(width(1, eTwips), 8800);
    cells->SetUniformWidths();
    cells->Item(2)->setWidth(eTwips, 3000);
    EXPECT_EQ(width(1, eTwips), 6000);
    EXPECT_EQ(width(2, eTwips), 3000);
    cells->Item(1)->setWidth(otherUnit, 3000);
    EXPECT_EQ(width(1, otherUnit), 33);
    EXPECT_EQ(errorNumberOf([&] { cells->Item(1)->setWidth(ePercent, 300000); }), 6);
    cells->Remove(2);
    EXPECT_EQ(width(1, eTwips), 3000);
    cells->removeTail();
    EXPECT_EQ(errorNumberOf([&] { cells->removeTail(); }), 5);
    cells->RemoveHead();
    EXPECT_EQ(errorNumberOf([&] { cells->SetUniformWidths(); }), 11);

    document->setPageWidth(3402);
    cells->AddTail();
    EXPECT_EQ(width(1, eTwips), 200);
    EXPECT_EQ(errorNumberOf([&] { width(1, ePercent); }), 11);

    document->TableRows()->AddTail();
    document->setPageWidth(4402);
    const Ref<CRtfTableCells> ten = document->TableRows()->Item(2)->TableCells();
    for (int i = 0; i < 10; ++i) {
        ten->AddTail();
    }
    EXPECT_EQ(ten->Item(10)->Width(eTwips), 200);
    EXPECT_EQ(ten->Item(10)->Width(ePercent), 20);

    document->Commit("out.rtf");
    EXPECT_EQ(platform.files.at("out.rtf"),
              std::string("{") + fixedGroups +
                  "\r\n\\deftab360\\defformat\\margb1418\\margl1701\\margt1418\\margr1701"
                  "\\paperw4402\\paperh15842\\pgnstart2\\widowctrl\r\n"
                  "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0 \\cellx200 \r\n\\cell\\row}"
                  "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0 \\cellx200 \\cellx400 \\cellx600"
                  " \\cellx800 \\cellx1000 \\cellx1200 \\cellx1400 \\cellx1600 \\cellx1800"
                  " \\cellx2000"
                  " \r\n\\cell \r\n\\cell \r\n\\cell \r\n\\cell \r\n\\cell"
                  " \r\n\\cell \r\n\\cell \r\n\\cell \r\n\\cell \r\n\\cell\\row}}");
    expectSoundDocuments(platform);
}

}  // namespace
}  // namespace quorvane
