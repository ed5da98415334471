#include "quorvane/docmodel/CRtfTableCells.h"

#include <gmock/gmock.h>

#include <vector>

#include "quorvane/support/currentError.h"
#include "tests/docmodel/documentParts.h"
#include "tests/support/errorNumberOf.h"

namespace quorvane {
namespace {

using testing::ElementsAre;

// Cells of a row whose usable width is 9000 twips.
class TableCells : public testing::Test, protected RowDocument {
protected:
    TableCells() { document->setPageWidth(12402); }

    void add(int count) {
        for (int i = 0; i < count; ++i) {
            cells->AddTail();
        }
    }

    // The right edges of the cells as they are written.
    std::vector<int> edges() const {
        std::vector<int> found;
        const std::string text = cellsText();
        const std::string word = "\\cellx";
        for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at)) {
            at += word.size();
            found.push_back(std::stoi(text.substr(at)));
        }
        return found;
    }
};

TEST_F(TableCells, KnowTheirRow) {
    EXPECT_EQ(cells->Parent(), row);
}

TEST_F(TableCells, GiveEveryCellTheRowForAParent) {
    add(1);

    EXPECT_EQ(cell(1)->Parent(), row);
}

TEST_F(TableCells, ShareTheUsableWidthEvenly) {
    add(3);

    EXPECT_THAT(edges(), ElementsAre(3000, 6000, 9000));
    for (const int position : {1, 2, 3}) {
        EXPECT_EQ(cell(position)->Width(eTwips), 3000);
        EXPECT_EQ(cell(position)->Width(ePercent), 33);
    }
}

TEST_F(TableCells, KeepNoWidthThatWasSetManySpreadsAgo) {
    add(3);
    const Ref<CRtfTableCell> other = cell(2);
    // The numbers of the spreads start again after 65,535. Only one that a width was set for uses
    // a number up.
    for (const int spreads : {65'534, 65'535, 65'536, 131'070}) {
        cell(1)->setWidth(eTwips, 700);
        for (int i = 0; i < spreads; ++i) {
            other->setWidth(eTwips, 500);
            cells->SetUniformWidths();
        }
        EXPECT_THAT(edges(), ElementsAre(3000, 6000, 9000)) << spreads;
        cell(1)->setWidth(eTwips, 700);
        EXPECT_THAT(edges(), ElementsAre(700, 6000, 9000)) << spreads;
    }
}

TEST_F(TableCells, RoundTheirWidthHalvesToEven) {
    document->setPageWidth(3402 + 2001);
    add(2);
    EXPECT_THAT(edges(), ElementsAre(1000, 2000));

    document->setPageWidth(3402 + 2003);
    cells->SetUniformWidths();
    EXPECT_THAT(edges(), ElementsAre(1002, 2004));
}

TEST_F(TableCells, AreAtLeast200TwipsWide) {
    document->setPageWidth(3402 + 1000);
    add(10);

    EXPECT_THAT(edges(), ElementsAre(200, 400, 600, 800, 1000, 1200, 1400, 1600, 1800, 2000));
}

TEST_F(TableCells, Are200TwipsWideOnAPageWithoutUsableWidth) {
    for (const int width : {3402, 0, INT32_MIN + 3402}) {
        document->setPageWidth(width);
        add(1);
        EXPECT_EQ(edges().back(), 200 * cells->Count());
    }
}

TEST_F(TableCells, AreSpreadAnewByEveryInsertion) {
    add(2);
    cell(1)->setWidth(eTwips, 1000);

    cells->AddHead();
    EXPECT_THAT(edges(), ElementsAre(3000, 6000, 9000));

    cell(1)->setWidth(eTwips, 1000);
    cells->add(Missing{}, 2);
    EXPECT_THAT(edges(), ElementsAre(2250, 4500, 6750, 9000));

    cell(1)->setWidth(eTwips, 1000);
    cells->AddTail();
    EXPECT_THAT(edges(), ElementsAre(1800, 3600, 5400, 7200, 9000));
}

TEST_F(TableCells, AreSpreadOverThePageAsItIsThen) {
    add(2);

    document->setPageWidth(3402 + 1000);
    EXPECT_THAT(edges(), ElementsAre(4500, 9000));

    cells->SetUniformWidths();
    EXPECT_THAT(edges(), ElementsAre(500, 1000));
}

TEST_F(TableCells, AreChangedByBeingSpread) {
    add(2);

    EXPECT_TRUE(marksChanged(*document, [&] { cells->SetUniformWidths(); }));
}

TEST_F(TableCells, CannotBeSpreadWhileThereAreNone) {
    EXPECT_FALSE(marksChanged(
        *document, [&] { EXPECT_EQ(errorNumberOf([&] { cells->SetUniformWidths(); }), 11); }));
}

TEST_F(TableCells, CannotBeSpreadBeyond32Bits) {
    add(8);
    document->setPageWidth(INT32_MAX);
    document->setLeftMargin(1);
    document->setRightMargin(1);

    // An eighth of 2147483645 is rounded up, and eight of these are 2147483648.
    EXPECT_FALSE(marksChanged(
        *document, [&] { EXPECT_EQ(errorNumberOf([&] { cells->SetUniformWidths(); }), 6); }));
    EXPECT_THAT(edges(), ElementsAre(1125, 2250, 3375, 4500, 5625, 6750, 7875, 9000));

    cells->RemoveHead();
    cells->SetUniformWidths();
    EXPECT_EQ(edges().back(), 2147483646);
    EXPECT_EQ(errorNumberOf([&] { cells->AddTail(); }), 6);
    EXPECT_EQ(cells->Count(), 7);
    EXPECT_EQ(edges().back(), 2147483646);
}

TEST_F(TableCells, OverflowWhenTheUsableWidthDoes) {
    add(1);
    const Ref<CRtfTableCell> only = cell(1);
    document->setPageWidth(INT32_MIN);

    EXPECT_FALSE(marksChanged(*document, [&] {
        EXPECT_EQ(errorNumberOf([&] { cells->AddTail(); }), 6);
        EXPECT_EQ(errorNumberOf([&] { cells->AddHead(); }), 6);
        EXPECT_EQ(errorNumberOf([&] { cells->add("key", 1); }), 6);
        EXPECT_EQ(errorNumberOf([&] { cells->SetUniformWidths(); }), 6);
    }));
    EXPECT_EQ(cells->Count(), 1);
    EXPECT_EQ(cell(1), only);
    EXPECT_EQ(errorNumberOf([&] { cells->Item("key"); }), 5);
    EXPECT_THAT(edges(), ElementsAre(9000));
}

TEST_F(TableCells, CheckTheirArgumentsBeforeTheWidth) {
    add(1);
    document->setPageWidth(INT32_MIN);

    EXPECT_EQ(errorNumberOf([&] { cells->add(7); }), 13);
    EXPECT_EQ(errorNumberOf([&] { cells->add(Missing{}, 9); }), 5);
}

TEST_F(TableCells, GiveTheEdgeOfARemovedCellToItsLeftNeighbor) {
    add(3);

    cells->Remove(2);

    EXPECT_THAT(edges(), ElementsAre(6000, 9000));
}

TEST_F(TableCells, LeaveAllEdgesWhenTheFirstCellIsRemoved) {
    add(3);

    cells->Remove(1);

    EXPECT_THAT(edges(), ElementsAre(6000, 9000));
    EXPECT_EQ(cell(1)->Width(eTwips), 6000);
}

TEST_F(TableCells, LeaveAllEdgesWhenTheHeadIsRemoved) {
    add(4);

    cells->RemoveHead();
    cells->RemoveHead();

    EXPECT_THAT(edges(), ElementsAre(6750, 9000));
}

TEST_F(TableCells, GiveTheEdgeOfTheRemovedTailToTheNewOne) {
    add(4);

    cells->removeTail();
    EXPECT_THAT(edges(), ElementsAre(2250, 4500, 9000));
    cells->Remove(3);
    EXPECT_THAT(edges(), ElementsAre(2250, 9000));
}

TEST_F(TableCells, LeaveTheLastCellAtItsEdge) {
    add(2);
    cells->Remove(2);
    EXPECT_THAT(edges(), ElementsAre(4500));

    cells->AddTail();
    cells->removeTail();
    EXPECT_THAT(edges(), ElementsAre(4500));

    cells->AddTail();
    cells->Remove(1);
    EXPECT_THAT(edges(), ElementsAre(9000));
}

TEST_F(TableCells, KeepWidthsThatWereSetWhenACellIsRemoved) {
    add(4);
    cell(1)->setWidth(eTwips, 1000);
    cell(3)->setWidth(eTwips, 4000);

    cells->Remove(2);

    EXPECT_THAT(edges(), ElementsAre(4500, 8500, 9000));
}

TEST_F(TableCells, HaveNoTailToRemoveWhileThereAreNone) {
    EXPECT_FALSE(marksChanged(*document,
                              [&] { EXPECT_EQ(errorNumberOf([&] { cells->removeTail(); }), 5); }));
    ASSERT_NE(currentError(), nullptr);
    EXPECT_EQ(currentError()->number, 5);
}

TEST_F(TableCells, WriteNothingWhileThereAreNone) {
    EXPECT_EQ(cellsText(), "");
}

TEST_F(TableCells, WriteDefinitionsThenContents) {
    add(2);

    EXPECT_EQ(cellsText(), " \\cellx4500 \\cellx9000 \r\n\\cell \r\n\\cell");
}

TEST_F(TableCells, KnowThePositionOfACell) {
    add(3);

    EXPECT_EQ(cells->indexOf(cell(1).get()), 1);
    EXPECT_EQ(cells->indexOf(cell(3).get()), 3);
}

TEST_F(TableCells, KnowThePositionOfACellAfterOthersCameAndWent) {
    add(3);
    const Ref<CRtfTableCell> last = cell(3);

    cells->AddHead();
    EXPECT_EQ(cells->indexOf(last.get()), 4);
    cells->Remove(2);
    EXPECT_EQ(cells->indexOf(last.get()), 3);
    cells->AddTail();
    EXPECT_EQ(cells->indexOf(last.get()), 3);
}

TEST_F(TableCells, HaveNoPositionForNull) {
    try {
        (void)cells->indexOf(nullptr);
        FAIL();
    } catch (const RtfError& error) {
        EXPECT_EQ(error.number, 91);
        EXPECT_EQ(error.description, "The Cell object is set to Nothing");
        EXPECT_EQ(error.source, "");
    }
}

TEST_F(TableCells, HaveNoPositionForACellThatIsNotTheirs) {
    add(2);
    const Ref<CRtfTableCell> removed = cell(1);
    cells->Remove(1);

    EXPECT_EQ(errorNumberOf([&] { (void)cells->indexOf(removed.get()); }), 5);
}

TEST_F(TableCells, PutACellUnderANewKeyInThePlaceOfAnother) {
    add(3);
    const Ref<CRtfTableCell> old = cell(2);
    Ref<CRtfTableCell> fresh;

    EXPECT_TRUE(marksChanged(*document, [&] { fresh = cells->refile(old, "New"); }));

    EXPECT_EQ(cells->Count(), 3);
    EXPECT_NE(fresh, old);
    EXPECT_EQ(cell(2), fresh);
    EXPECT_EQ(cells->Item("nEW"), fresh);
    EXPECT_EQ(fresh->Parent(), row);
}

TEST_F(TableCells, GiveARefiledCellGroundBordersWidthAndParagraphs) {
    add(3);
    const Ref<CRtfTableCell> old = cell(2);
    old->Paragraphs()->AddTail("para");
    const Ref<CRtfParagraph> paragraph = old->Paragraphs()->PeekTail();
    old->setBackColor(eSilver);
    old->setTopBorder(eHair);
    old->setBottomBorder(eThin);
    old->setLeftBorder(eNormal);
    old->setRightBorder(eThick);
    old->setWidth(eTwips, 1000);

    const Ref<CRtfTableCell> fresh = cells->refile(old, "new");

    EXPECT_EQ(fresh->BackColor(), eSilver);
    EXPECT_EQ(fresh->TopBorder(), eHair);
    EXPECT_EQ(fresh->BottomBorder(), eThin);
    EXPECT_EQ(fresh->LeftBorder(), eNormal);
    EXPECT_EQ(fresh->RightBorder(), eThick);
    EXPECT_EQ(fresh->Width(eTwips), 1000);
    EXPECT_THAT(edges(), ElementsAre(3000, 4000, 9000));
    EXPECT_EQ(fresh->Paragraphs()->Item("para"), paragraph);
    EXPECT_EQ(paragraph->Parent(), fresh);
    EXPECT_EQ(old->Paragraphs()->Count(), 0);
}

TEST_F(TableCells, LeaveOutEverythingElseOfARefiledCell) {
    add(1);
    const Ref<CRtfTableCell> old = cell(1);
    old->setAlign(eCentered);
    old->setStyle("shaded");
    old->asMarkedField("x");

    const Ref<CRtfTableCell> fresh = cells->refile(old, "new");

    EXPECT_EQ(fresh->Align(), eNoDefault);
    EXPECT_EQ(fresh->Style(), "");
    EXPECT_EQ(cellsText(), " \\cellx9000 \r\n\\cell");
}

TEST_F(TableCells, LeaveTheColorsOfParagraphsWhenACellIsRefiled) {
    add(1);
    const Ref<CRtfTableCell> old = cell(1);
    old->setBackColor(eNavyBlue);
    old->Paragraphs()->AddTail();

    const Ref<CRtfTableCell> fresh = cells->refile(old, "new");

    EXPECT_EQ(fresh->BackColor(), eNavyBlue);
    EXPECT_EQ(fresh->Paragraphs()->PeekTail()->ForeColor(), eNoColor);
}

TEST_F(TableCells, KeepAllWidthsWhenACellIsRefiled) {
    add(3);

    cells->refile(cell(2), "new");

    EXPECT_THAT(edges(), ElementsAre(3000, 6000, 9000));
}

TEST_F(TableCells, RefuseToRefileACellThatIsNotTheirs) {
    add(2);
    const Ref<CRtfTableCell> removed = cell(1);
    cells->Remove(1);

    EXPECT_FALSE(marksChanged(
        *document, [&] { EXPECT_EQ(errorNumberOf([&] { cells->refile(removed, "new"); }), 5); }));
}

TEST_F(TableCells, RefuseToRefileUnderAKeyThatIsThereAlready) {
    cells->AddTail("a");
    cells->AddTail("b");

    EXPECT_FALSE(marksChanged(*document, [&] {
        EXPECT_EQ(errorNumberOf([&] { cells->refile(cell(1), "B"); }), 457);
        EXPECT_EQ(errorNumberOf([&] { cells->refile(cell(1), "A"); }), 457);
    }));
    EXPECT_EQ(cells->Item("a"), cell(1));
}

}  // namespace
}  // namespace quorvane
