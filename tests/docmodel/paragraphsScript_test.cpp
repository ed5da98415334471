#include <gtest/gtest.h>

#include "tests/docmodel/documentParts.h"
#include "tests/docmodel/fixedGroups.h"
#include "tests/support/errorNumberOf.h"

namespace quorvane {
namespace {

// A host's session with the paragraphs of a cell, call by call: texts, colors, alignments and
// marked fields.
TEST(Script, OfParagraphs) {
    FakePlatform platform;
    const Ref<CRtfDoc> document = CRtfDoc::create(platform);
    document->TableRows()->AddTail();
    document->TableRows()->Item(1)->TableCells()->AddTail();
    const Ref<CRtfTableCell> cell = document->TableRows()->Item(1)->TableCells()->Item(1);
    const Ref<CRtfParagraphs> paragraphs = cell->Paragraphs();
    constexpr auto fifthAlignment = static_cast<tCellAlign>(5);

    paragraphs->AddTail("k");
    paragraphs->Item("K")->setText("abc");
    paragraphs->Item(1)->setText("");
    EXPECT_EQ(paragraphs->Item(1)->Text(), "abc");
    paragraphs->AddTail();
    paragraphs->AddHead();
    paragraphs->Item(3)->setText("\xC3\x89\xE2\x82\xAC\xC2\x81 \\line x\r\ny");
    paragraphs->Item(3)->setForeColor(eDarkRed);
    paragraphs->Item(3)->setAlign(eJustified);
    paragraphs->Item(2)->setAlign(fifthAlignment);
    paragraphs->Item(2)->setForeColor(static_cast<tColorIndex>(-3));
    paragraphs->Item(1)->asMarkedField(-5);
    paragraphs->Item(2)->asMarkedField("AB\n");
    paragraphs->Item(2)->asMarkedField(2.0);
    paragraphs->Item(3)->asMarkedField(true);
    cell->asMarkedField(Date{37716});
    cell->asMarkedField(70000);
    cell->asMarkedField(Empty{});

    EXPECT_EQ(paragraphs->Item(3)->Text(), "\xC3\x89\xE2\x82\xAC\xC2\x81 \\line x\r\ny");
    EXPECT_EQ(paragraphs->Count(), 3);
    EXPECT_EQ(paragraphs->Item(3), paragraphs->PeekTail());
    EXPECT_EQ(paragraphs->Item(1)->Align(), eNoDefault);
    EXPECT_EQ(paragraphs->Item(2)->Align(), fifthAlignment);
    EXPECT_EQ(paragraphs->Item(3)->Align(), eJustified);
    EXPECT_EQ(errorNumberOf([&] { paragraphs->Item(4); }), 5);
    EXPECT_EQ(errorNumberOf([&] { paragraphs->Item("x"); }), 5);
    document->setChanged(false);
    paragraphs->Item(1)->setAlign(eCentered);
    paragraphs->Item(1)->asMarkedField(5);
    EXPECT_FALSE(document->Changed());
    paragraphs->Item(1)->setStyle("");
    EXPECT_TRUE(document->Changed());
    paragraphs->removeTail();
    paragraphs->add("z", 1);
    paragraphs->Item("z")->setText("zzz");

    const std::string expected =
        std::string("{") + fixedGroups +
        "\r\n\\deftab360\\defformat\\margb1418\\margl1701\\margt1418\\margr1701\\paperw12242"
        "\\paperh15842\\pgnstart2\\widowctrl\r\n"
        "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0 \\cellx8840"
        " {\\*\\txfieldstart\\txfieldtype0\\txfieldflags128\\txfieldbin\\txfielddata 3730303030}"
        "\r\n\r\n\r\n\\pard\\plain\\intbl zzz"
        "\r\n{\\*\\txfieldstart\\txfieldtype0\\txfieldflags128\\txfieldbin\\txfielddata 35}"
        "{\\*\\txfieldend}"
        "\r\n{\\*\\txfieldstart\\txfieldtype0\\txfieldflags128\\txfieldbin\\txfielddata 4142A}"
        "\r\n\\par\\pard\\plain\\intbl \\cf-3 abc{\\*\\txfieldend}{\\*\\txfieldend}\\cell\\row}}";
    EXPECT_EQ(document->Contents(), expected);
    document->Commit("out.rtf");
    EXPECT_EQ(platform.files.at("out.rtf"), expected);
}

}  // namespace
}  // namespace quorvane
