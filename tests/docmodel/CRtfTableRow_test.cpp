#include "quorvane/docmodel/CRtfTableRow.h"

#include <gtest/gtest.h>

#include "quorvane/support/currentError.h"
#include "tests/docmodel/documentParts.h"

namespace quorvane {
namespace {

class TableRow : public testing::Test, protected RowDocument {
protected:
    TableRow() : RowDocument(2) {}
};

TEST_F(TableRow, HasNoColorAndNoBordersAtFirst) {
    EXPECT_EQ(row->BackColor(), eNoColor);
    EXPECT_EQ(row->BottomBorder(), eNone);
    EXPECT_EQ(row->TopBorder(), eNone);
    EXPECT_EQ(row->LeftBorder(), eNone);
    EXPECT_EQ(row->RightBorder(), eNone);
}

TEST_F(TableRow, HasNoCellsAtFirst) {
    document->TableRows()->AddTail();

    EXPECT_EQ(document->TableRows()->PeekTail()->TableCells()->Count(), 0);
}

TEST_F(TableRow, ReturnsTheSameCellsEveryTime) {
    EXPECT_EQ(row->TableCells(), row->TableCells());
    EXPECT_EQ(row->TableCells()->Parent(), row);
}

TEST_F(TableRow, KnowsItsDocument) {
    EXPECT_EQ(row->Parent(), document);
}

TEST_F(TableRow, WritesItsFrameOnlyWithoutCells) {
    cells->RemoveHead();
    cells->RemoveHead();

    EXPECT_EQ(rowsText(*document), "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0\\row}");
}

TEST_F(TableRow, WritesDefinitionsThenContentsOfItsCells) {
    document->setPageWidth(12402);
    cells->SetUniformWidths();
    row->setTopBorder(eThin);
    row->setBottomBorder(eThin);
    row->setLeftBorder(eThin);
    row->setRightBorder(eThin);
    row->setBackColor(eSilver);
    cell(1)->Paragraphs()->AddTail();
    cell(1)->Paragraphs()->PeekTail()->setText("A");
    cell(2)->Paragraphs()->AddTail();
    cell(2)->Paragraphs()->PeekTail()->setText("B");

    EXPECT_EQ(rowsText(*document),
              "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0"
              " \\clbrdrb\\brdrs\\brdrw10\\clbrdrl\\brdrs\\brdrw10\\clbrdrr\\brdrs\\brdrw10"
              "\\clbrdrt\\brdrs\\brdrw10\\clcbpat32\\cellx4500"
              " \\clbrdrb\\brdrs\\brdrw10\\clbrdrl\\brdrs\\brdrw10\\clbrdrr\\brdrs\\brdrw10"
              "\\clbrdrt\\brdrs\\brdrw10\\clcbpat32\\cellx9000"
              " \r\n\r\n\r\n\\pard\\plain\\intbl A\\cell"
              " \r\n\r\n\r\n\\pard\\plain\\intbl B\\cell"
              "\\row}");
}

TEST_F(TableRow, GivesItsColorToTheCellsThatAreInIt) {
    row->setBackColor(eSilver);
    cells->AddTail();

    EXPECT_EQ(row->BackColor(), eSilver);
    EXPECT_EQ(cell(1)->BackColor(), eSilver);
    EXPECT_EQ(cell(2)->BackColor(), eSilver);
    EXPECT_EQ(cell(3)->BackColor(), eNoColor);
}

TEST_F(TableRow, MakesTheTextOfItsCellsWhiteOnADarkColor) {
    cell(2)->Paragraphs()->AddTail();

    row->setBackColor(eNavyBlue);

    EXPECT_EQ(cell(2)->Paragraphs()->PeekTail()->ForeColor(), eWhite);
}

TEST_F(TableRow, LeavesItsCellsAloneWhenItsColorStaysTheSame) {
    row->setBackColor(eSilver);
    cell(1)->setBackColor(eRed);

    EXPECT_FALSE(marksChanged(*document, [&] { row->setBackColor(eSilver); }));

    EXPECT_EQ(cell(1)->BackColor(), eRed);
}

TEST_F(TableRow, RemovesItsColorFromItsCells) {
    row->setBackColor(eSilver);
    cell(1)->setBackColor(eRed);

    row->setBackColor(eNoColor);

    EXPECT_EQ(cell(1)->BackColor(), eNoColor);
    EXPECT_EQ(cell(2)->BackColor(), eNoColor);
}

TEST_F(TableRow, LeavesACellAloneThatHasItsNewColorAlready) {
    cell(1)->setBackColor(eNavyBlue);
    cell(1)->Paragraphs()->AddTail();

    row->setBackColor(eNavyBlue);

    EXPECT_EQ(cell(1)->Paragraphs()->PeekTail()->ForeColor(), eNoColor);
}

TEST_F(TableRow, IsChangedByAnotherColor) {
    EXPECT_TRUE(marksChanged(*document, [&] { row->setBackColor(eSilver); }));
    EXPECT_TRUE(marksChanged(*document, [&] { row->setBackColor(static_cast<tColorIndex>(-7)); }));
    EXPECT_EQ(row->BackColor(), -7);
    EXPECT_EQ(cell(1)->BackColor(), -7);
}

TEST_F(TableRow, OverwritesAllBordersOfItsCellsWhenOneIsSet) {
    for (const int position : {1, 2}) {
        cell(position)->setBottomBorder(eThin);
        cell(position)->setTopBorder(eThin);
        cell(position)->setLeftBorder(eThin);
        cell(position)->setRightBorder(eThin);
    }

    row->setTopBorder(eThick);

    for (const int position : {1, 2}) {
        EXPECT_EQ(cell(position)->TopBorder(), 30);
        EXPECT_EQ(cell(position)->BottomBorder(), -1);
        EXPECT_EQ(cell(position)->LeftBorder(), -1);
        EXPECT_EQ(cell(position)->RightBorder(), -1);
    }
    EXPECT_EQ(cellsText(),
              " \\clbrdrt\\brdrs\\brdrw30\\cellx4420 \\clbrdrt\\brdrs\\brdrw30\\cellx8840"
              " \r\n\\cell \r\n\\cell");
}

TEST_F(TableRow, GivesEachBorderToItsCells) {
    row->setBottomBorder(eHair);
    row->setTopBorder(eThin);
    row->setLeftBorder(eNormal);
    row->setRightBorder(eThick);

    EXPECT_EQ(row->BottomBorder(), 5);
    EXPECT_EQ(row->TopBorder(), 10);
    EXPECT_EQ(row->LeftBorder(), 20);
    EXPECT_EQ(row->RightBorder(), 30);
    EXPECT_EQ(cell(2)->BottomBorder(), 5);
    EXPECT_EQ(cell(2)->TopBorder(), 10);
    EXPECT_EQ(cell(2)->LeftBorder(), 20);
    EXPECT_EQ(cell(2)->RightBorder(), 30);
}

TEST_F(TableRow, LeavesItsCellsAloneWhenABorderStaysTheSame) {
    cell(1)->setTopBorder(eThin);

    EXPECT_FALSE(marksChanged(*document, [&] {
        row->setBottomBorder(eNone);
        row->setTopBorder(eNone);
        row->setLeftBorder(eNone);
        row->setRightBorder(eNone);
    }));

    EXPECT_EQ(cell(1)->TopBorder(), eThin);
}

TEST_F(TableRow, IsChangedByAnotherBorder) {
    EXPECT_TRUE(marksChanged(*document, [&] { row->setBottomBorder(eThin); }));
    EXPECT_TRUE(marksChanged(*document, [&] { row->setTopBorder(eThin); }));
    EXPECT_TRUE(marksChanged(*document, [&] { row->setLeftBorder(eThin); }));
    EXPECT_TRUE(marksChanged(*document, [&] { row->setRightBorder(eThin); }));
}

TEST_F(TableRow, IsChangedByItsColorAndBordersWithoutCellsToo) {
    document->TableRows()->AddTail();
    const Ref<CRtfTableRow> empty = document->TableRows()->PeekTail();

    EXPECT_TRUE(marksChanged(*document, [&] { empty->setBackColor(eRed); }));
    EXPECT_TRUE(marksChanged(*document, [&] { empty->setTopBorder(eThin); }));
}

TEST_F(TableRow, DoesNotChangeCellsThatAreAddedLater) {
    row->setTopBorder(eThick);
    cells->AddTail();

    EXPECT_EQ(cell(3)->TopBorder(), eNone);
}

TEST_F(TableRow, DoesNotChangeCellsThatWereRemoved) {
    const Ref<CRtfTableCell> removed = cell(1);
    cells->Remove(1);

    row->setTopBorder(eThick);
    row->setBackColor(eRed);

    EXPECT_EQ(removed->TopBorder(), eNone);
    EXPECT_EQ(removed->BackColor(), eNoColor);
}

TEST_F(TableRow, IsNotChangedByReading) {
    EXPECT_FALSE(marksChanged(*document, [&] {
        (void)row->Parent();
        (void)row->TableCells();
        (void)row->BackColor();
        (void)row->BottomBorder();
        (void)row->TopBorder();
        (void)row->LeftBorder();
        (void)row->RightBorder();
    }));
}

TEST_F(TableRow, MarksTheDocumentChangedAfterItWasRemoved) {
    document->TableRows()->RemoveHead();

    EXPECT_TRUE(marksChanged(*document, [&] { row->setBackColor(eRed); }));
}

TEST_F(TableRow, ForgetsTheLastErrorWithEverySetting) {
    setCurrentError(RtfError(RunTimeError::Overflow));
    row->setBackColor(row->BackColor());
    EXPECT_EQ(currentError(), nullptr);

    setCurrentError(RtfError(RunTimeError::Overflow));
    row->setTopBorder(row->TopBorder());
    EXPECT_EQ(currentError(), nullptr);
}

}  // namespace
}  // namespace quorvane
