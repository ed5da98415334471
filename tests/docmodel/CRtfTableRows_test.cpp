#include "quorvane/docmodel/CRtfTableRows.h"

#include <gtest/gtest.h>

#include "tests/docmodel/documentParts.h"
#include "tests/support/errorNumberOf.h"

namespace quorvane {
namespace {

constexpr const char* emptyRow = "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0\\row}";

class TableRows : public testing::Test {
protected:
    Ref<CRtfDoc> document = CRtfDoc::create();
    Ref<CRtfTableRows> rows = document->TableRows();
};

TEST_F(TableRows, WriteNothingWhileTheyAreEmpty) {
    EXPECT_EQ(rowsText(*document), "");
}

TEST_F(TableRows, WriteEveryRowWithNothingBetween) {
    rows->AddTail();
    rows->AddTail();

    EXPECT_EQ(rowsText(*document), std::string(emptyRow) + emptyRow);
}

TEST_F(TableRows, WriteRowsInTheirOrder) {
    rows->AddTail();
    rows->AddHead();
    rows->Item(1)->TableCells()->AddTail();

    EXPECT_EQ(rowsText(*document),
              std::string("\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0 \\cellx8840 \r\n\\cell"
                          "\\row}") +
                  emptyRow);
}

TEST_F(TableRows, KnowTheirDocument) {
    EXPECT_EQ(rows->Parent(), document);
}

TEST_F(TableRows, GiveEveryRowTheDocumentForAParent) {
    rows->AddTail();

    EXPECT_EQ(rows->PeekTail()->Parent(), document);
}

TEST_F(TableRows, DoNothingWhenTheTailIsRemovedWhileEmpty) {
    EXPECT_TRUE(marksChanged(*document, [&] { rows->removeTail(); }));
    EXPECT_EQ(rows->Count(), 0);
}

TEST_F(TableRows, PutARowUnderANewKeyInThePlaceOfAnother) {
    rows->AddTail("a");
    rows->AddTail("b");
    rows->AddTail("c");
    const Ref<CRtfTableRow> old = rows->Item("b");
    Ref<CRtfTableRow> fresh;

    EXPECT_TRUE(marksChanged(*document, [&] { fresh = rows->refile(old, "new"); }));

    EXPECT_NE(fresh, old);
    EXPECT_EQ(rows->Count(), 3);
    EXPECT_EQ(rows->Item(2), fresh);
    EXPECT_EQ(rows->Item("NEW"), fresh);
    EXPECT_EQ(errorNumberOf([&] { rows->Item("b"); }), 5);
    EXPECT_EQ(fresh->Parent(), document);
}

TEST_F(TableRows, GiveARefiledRowGroundBordersAndCells) {
    rows->AddTail();
    const Ref<CRtfTableRow> old = rows->Item(1);
    old->TableCells()->AddTail("cell");
    const Ref<CRtfTableCell> cell = old->TableCells()->Item(1);
    old->setBackColor(eSilver);
    old->setTopBorder(eHair);
    old->setBottomBorder(eThin);
    old->setLeftBorder(eNormal);
    old->setRightBorder(eThick);

    const Ref<CRtfTableRow> fresh = rows->refile(old, "new");

    EXPECT_EQ(fresh->BackColor(), eSilver);
    EXPECT_EQ(fresh->TopBorder(), eHair);
    EXPECT_EQ(fresh->BottomBorder(), eThin);
    EXPECT_EQ(fresh->LeftBorder(), eNormal);
    EXPECT_EQ(fresh->RightBorder(), eThick);
    EXPECT_EQ(fresh->TableCells()->Item("cell"), cell);
    EXPECT_EQ(cell->Parent(), fresh);
    EXPECT_EQ(old->TableCells()->Count(), 0);
}

TEST_F(TableRows, KeepTheWidthsOfARefiledRow) {
    rows->AddTail();
    const Ref<CRtfTableRow> old = rows->Item(1);
    const Ref<CRtfTableCells> cells = old->TableCells();
    for (int i = 0; i < 4; ++i) {
        cells->AddTail();
    }
    cells->RemoveHead();
    cells->Item(1)->setWidth(eTwips, 3000);
    const std::string text = rowsText(*document);

    rows->refile(old, "new");

    EXPECT_EQ(rowsText(*document), text);
    EXPECT_NE(text.find("\\cellx3000 \\cellx6630 \\cellx8840 "), std::string::npos);
}

TEST_F(TableRows, LeaveARefiledRowsOldObjectUsable) {
    rows->AddTail();
    const Ref<CRtfTableRow> old = rows->Item(1);
    old->TableCells()->AddTail();
    const Ref<CRtfTableRow> fresh = rows->refile(old, "new");

    old->TableCells()->AddTail();
    old->TableCells()->AddTail();
    old->setBackColor(eRed);

    EXPECT_EQ(old->TableCells()->Item(2)->Width(eTwips), 4420);
    EXPECT_EQ(fresh->TableCells()->Count(), 1);
    EXPECT_EQ(fresh->BackColor(), eNoColor);
}

TEST_F(TableRows, RefuseToRefileARowThatIsNotTheirs) {
    rows->AddTail();
    const Ref<CRtfTableRow> removed = rows->Item(1);
    rows->Remove(1);

    EXPECT_FALSE(marksChanged(
        *document, [&] { EXPECT_EQ(errorNumberOf([&] { rows->refile(removed, "new"); }), 5); }));
}

TEST_F(TableRows, RefuseToRefileUnderAKeyThatIsThereAlready) {
    rows->AddTail("a");
    rows->AddTail("b");
    const Ref<CRtfTableRow> old = rows->Item("a");

    EXPECT_FALSE(marksChanged(*document, [&] {
        EXPECT_EQ(errorNumberOf([&] { rows->refile(old, "B"); }), 457);
        EXPECT_EQ(errorNumberOf([&] { rows->refile(old, "a"); }), 457);
    }));
    EXPECT_EQ(rows->Item("a"), old);
}

}  // namespace
}  // namespace quorvane
