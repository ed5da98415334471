#include "quorvane/docmodel/TableRendering.h"

#include <gtest/gtest.h>

#include "quorvane/base/text/StringOutput.h"
#include "quorvane/docmodel/InnerDocument.h"
#include "tests/docmodel/documentParts.h"

namespace quorvane {
namespace {

class Rendering : public testing::Test {
protected:
    Rendering() {
        document->LoadStyleSheetFromMemmory(
            "{name: a; style-def: s; format: \\b}{name: b; style-def: s; format: \\i}");
    }

    static Borders borders(tBorderWidth top, tBorderWidth left) {
        Borders made;
        made.set(BorderSide::Top, top);
        made.set(BorderSide::Left, left);
        return made;
    }

    Ref<CRtfDoc> document = CRtfDoc::create();
    std::string rtf;
    StringOutput output{rtf};
    TableRendering rendering{inner(*document), output};
};

TEST_F(Rendering, KnowsTheWordsOfEveryStyle) {
    const SharedText a("a");
    const SharedText alsoA("a");
    const SharedText b("B");

    EXPECT_EQ(rendering.paragraphStyle(a), "\\s100\\b ");
    EXPECT_EQ(rendering.paragraphStyle(a), "\\s100\\b ");
    EXPECT_EQ(rendering.paragraphStyle(alsoA), "\\s100\\b ");
    EXPECT_EQ(rendering.paragraphStyle(b), "\\s101\\i ");
    EXPECT_EQ(rendering.paragraphStyle(SharedText()), "\\s0\\b ");
    EXPECT_EQ(rendering.paragraphStyle(a), "\\s100\\b ");
}

TEST_F(Rendering, KnowsTheWordsOfNoStyleFirst) {
    EXPECT_EQ(rendering.paragraphStyle(SharedText()), "\\s0\\b ");
    EXPECT_EQ(rendering.paragraphStyle(SharedText("b")), "\\s101\\i ");
}

TEST_F(Rendering, DistinguishesANameFromAnotherThatWasInItsPlace) {
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(rendering.paragraphStyle(SharedText("a")), "\\s100\\b ");
        EXPECT_EQ(rendering.paragraphStyle(SharedText("b")), "\\s101\\i ");
    }
}

TEST_F(Rendering, WritesBordersAfterOthers) {
    EXPECT_EQ(rendering.borderText(Borders()), "");
    EXPECT_EQ(rendering.borderText(borders(eThin, eNone)), "\\clbrdrt\\brdrs\\brdrw10");
    EXPECT_EQ(rendering.borderText(borders(eThin, eNone)), "\\clbrdrt\\brdrs\\brdrw10");
    EXPECT_EQ(rendering.borderText(borders(eNone, eThick)), "\\clbrdrl\\brdrs\\brdrw30");
    EXPECT_EQ(rendering.borderText(borders(eHair, eThick)),
              "\\clbrdrl\\brdrs\\brdrw30\\clbrdrt\\brdrs\\brdrw5");
    EXPECT_EQ(rendering.borderText(Borders()), "");
}

TEST_F(Rendering, WritesEachCellAsItIsWhateverStandsBeforeIt) {
    const RowDocument parts(4);
    parts.document->LoadStyleSheetFromMemmory(
        "{name: a; style-def: s; format: \\b}{name: b; style-def: s; format: \\i}");
    const tBorderWidth tops[] = {eThin, eThin, eNone, eThick};
    const char* styles[] = {"a", "b", "b", "a"};
    for (int i = 0; i < 4; ++i) {
        const Ref<CRtfTableCell> cell = parts.cell(i + 1);
        cell->setTopBorder(tops[i]);
        cell->Paragraphs()->AddTail();
        cell->Paragraphs()->PeekTail()->setStyle(styles[i]);
        cell->Paragraphs()->PeekTail()->setText("x");
    }

    EXPECT_EQ(parts.cellsText(),
              " \\clbrdrt\\brdrs\\brdrw10\\cellx2210 \\clbrdrt\\brdrs\\brdrw10\\cellx4420"
              " \\cellx6630 \\clbrdrt\\brdrs\\brdrw30\\cellx8840"
              " \r\n\r\n\r\n\\pard\\plain\\intbl\\s100\\b x\\cell"
              " \r\n\r\n\r\n\\pard\\plain\\intbl\\s101\\i x\\cell"
              " \r\n\r\n\r\n\\pard\\plain\\intbl\\s101\\i x\\cell"
              " \r\n\r\n\r\n\\pard\\plain\\intbl\\s100\\b x\\cell");
}

TEST_F(Rendering, AsksForAStyleAnewInEveryRendering) {
    const CellDocument parts{"x"};
    parts.paragraph(1)->setStyle("a");
    EXPECT_EQ(parts.contentText(), "\r\n\r\n\r\n\\pard\\plain\\intbl x");

    parts.document->LoadStyleSheetFromMemmory("{name: a; style-def: s; format: \\b}");
    EXPECT_EQ(parts.contentText(), "\r\n\r\n\r\n\\pard\\plain\\intbl\\s100\\b x");
}

}  // namespace
}  // namespace quorvane
