#include <gtest/gtest.h>

#include "tests/docmodel/layout/TextTable.h"
#include "tests/support/errorNumberOf.h"

namespace quorvane {
namespace {

using testing::ElementsAre;

/// A table of three columns that end at 100, 300 and 600.
class Spans : public testing::Test, protected TextTable {
protected:
    Spans() { document->setColumnWidths({100, 200, 300}); }
};

TEST_F(Spans, AreOneColumnAndOneRowAtFirst) {
    addRow({"a"});

    EXPECT_EQ(cell(1, 1)->ColumnSpan(), 1);
    EXPECT_EQ(cell(1, 1)->RowSpan(), 1);
}

TEST_F(Spans, LetACellTakeColumns) {
    addRow({"a", "b"});
    addRow({"c", "d"});
    addRow({"e"});

    cell(1, 1)->setColumnSpan(2);
    cell(2, 2)->setColumnSpan(2);
    cell(3, 1)->setColumnSpan(3);

    EXPECT_EQ(text(), rowText("", " \\cellx300 \\cellx600", cellText("a") + cellText("b")) +
                          rowText("", " \\cellx100 \\cellx600", cellText("c") + cellText("d")) +
                          rowText("", " \\cellx600", cellText("e")));
}

TEST_F(Spans, LetACellTakeRows) {
    addRow({"a", "b", "c"});
    addRow({"d", "e"});
    cell(1, 2)->setBottomBorder(eThin);
    cell(1, 2)->setBackColor(eSilver);

    cell(1, 2)->setRowSpan(2);

    EXPECT_EQ(text(), rowText("",
                              " \\cellx100"
                              " \\clvmgf\\clbrdrb\\brdrs\\brdrw10\\clcbpat32\\cellx300"
                              " \\cellx600",
                              cellText("a") + cellText("b") + cellText("c")) +
                          rowText("",
                                  " \\cellx100"
                                  " \\clvmrg\\clbrdrb\\brdrs\\brdrw10\\clcbpat32\\cellx300"
                                  " \\cellx600",
                                  cellText("d") + " \\pard\\plain\\intbl\\cell" + cellText("e")));
}

TEST_F(Spans, LetACellTakeColumnsAndRows) {
    addRow({"a", "b"});
    addRow({"c"});
    addRow({"d"});

    cell(1, 2)->setColumnSpan(2);
    cell(1, 2)->setRowSpan(3);

    EXPECT_THAT(definitions(),
                ElementsAre("\\cellx100 \\clvmgf\\cellx600", "\\cellx100 \\clvmrg\\cellx600",
                            "\\cellx100 \\clvmrg\\cellx600"));
}

TEST_F(Spans, OfRowsCanBeginAnewWhereOneEnds) {
    addRow({"a", "b", "c"});
    addRow({"d", "e"});
    addRow({"f", "g", "h"});
    addRow({"i"});
    cell(1, 1)->setRowSpan(2);
    cell(3, 1)->setRowSpan(2);

    cell(3, 3)->setRowSpan(2);

    EXPECT_THAT(definitions(), ElementsAre("\\clvmgf\\cellx100 \\cellx300 \\cellx600",
                                           "\\clvmrg\\cellx100 \\cellx300 \\cellx600",
                                           "\\clvmgf\\cellx100 \\cellx300 \\clvmgf\\cellx600",
                                           "\\clvmrg\\cellx100 \\cellx300 \\clvmrg\\cellx600"));
}

TEST_F(Spans, OfAllColumnsLeaveRowsWithoutCells) {
    addRow({"a"});
    addRow({});
    cell(1, 1)->setColumnSpan(3);

    cell(1, 1)->setRowSpan(2);

    EXPECT_EQ(text(), rowText("", " \\clvmgf\\cellx600", cellText("a")) +
                          rowText("", " \\clvmrg\\cellx600", " \\pard\\plain\\intbl\\cell"));
}

TEST_F(Spans, MakeColumnsOfOneWidthWhereThereAreNone) {
    document->setColumnWidths({});
    addRow({"a", "b"});
    addRow({"c", "d", "e"});
    addRow({"f", "g", "h", "i"});
    cell(1, 1)->setColumnSpan(3);

    cell(1, 2)->setRowSpan(2);

    EXPECT_THAT(definitions(),
                ElementsAre("\\cellx6630 \\clvmgf\\cellx8840",
                            "\\cellx2210 \\cellx4420 \\cellx6630 \\clvmrg\\cellx8840",
                            "\\cellx2210 \\cellx4420 \\cellx6630 \\cellx8840"));
}

TEST_F(Spans, TakeTheColorOfTheStyleDownToTheLastRow) {
    document->LoadStyleSheetFromMemmory("{name: gray; style-def: cell; format: silver}");
    addRow({"a"});
    addRow({});
    cell(1, 1)->setStyle("gray");

    cell(1, 1)->setRowSpan(2);

    EXPECT_THAT(definitions(),
                ElementsAre("\\clvmgf\\clcbpat32\\cellx100", "\\clvmrg\\clcbpat32\\cellx100"));
}

TEST_F(Spans, AreAtLeastOne) {
    addRow({"a"});

    EXPECT_EQ(errorNumberOf([&] { cell(1, 1)->setColumnSpan(0); }), 5);
    EXPECT_EQ(errorNumberOf([&] { cell(1, 1)->setRowSpan(-1); }), 5);
    EXPECT_EQ(cell(1, 1)->ColumnSpan(), 1);
    EXPECT_EQ(cell(1, 1)->RowSpan(), 1);
}

TEST_F(Spans, MarkTheDocumentChangedWhenTheyChange) {
    addRow({"a"});

    EXPECT_TRUE(marksChanged(*document, [&] { cell(1, 1)->setColumnSpan(2); }));
    EXPECT_FALSE(marksChanged(*document, [&] { cell(1, 1)->setColumnSpan(2); }));
    EXPECT_TRUE(marksChanged(*document, [&] { cell(1, 1)->setRowSpan(2); }));
    EXPECT_FALSE(marksChanged(*document, [&] { cell(1, 1)->setRowSpan(2); }));
    EXPECT_EQ(cell(1, 1)->ColumnSpan(), 2);
    EXPECT_EQ(cell(1, 1)->RowSpan(), 2);
}

TEST_F(Spans, StayWithinTheColumns) {
    addRow({"a", "b"});

    cell(1, 2)->setColumnSpan(3);

    EXPECT_EQ(error(),
              "5 Cell 2 of row 1 would stand in columns 2 to 4, but the row has only 3 columns.");
}

TEST_F(Spans, StayWithinTheRows) {
    addRow({"a", "b"});
    addRow({"c"});

    cell(1, 2)->setRowSpan(3);

    EXPECT_EQ(error(), "5 A cell of row 1 spans 3 rows, but the table ends with row 2.");
}

TEST_F(Spans, DoNotMeet) {
    addRow({"a", "b"});
    addRow({"c"});
    cell(1, 2)->setRowSpan(2);

    cell(2, 1)->setColumnSpan(2);

    EXPECT_EQ(error(), "5 Cell 1 of row 2 spans columns that a cell of row 1 covers.");
}

TEST_F(Spans, HaveCellsBesideThemInEachRow) {
    addRow({"a", "b", "c"});
    addRow({});

    cell(1, 3)->setRowSpan(2);

    EXPECT_EQ(error(),
              "5 Row 2 has no cell for columns 1 to 2, before the column of a cell that spans "
              "rows.");
}

TEST_F(Spans, GoOnInTheSameColumns) {
    addRow({"a", "b", "c"});
    addRow({"d", "e"});
    cell(1, 2)->setRowSpan(2);

    row(2)->setColumnWidths({100, 201, 300});

    EXPECT_EQ(error(), "5 A cell of row 1 spans row 2, whose columns are other ones.");
}

TEST_F(Spans, TooWideForANumberAreAnOverflow) {
    document->setColumnWidths({});
    addRow({"a", "b"});

    cell(1, 1)->setColumnSpan(INT32_MAX);

    EXPECT_EQ(errorNumberOf([&] { document->Refresh(); }), 6);
}

TEST_F(Spans, GoWithACellThatIsRefiled) {
    addRow({"a"});
    cell(1, 1)->setColumnSpan(2);

    row(1)->TableCells()->refile(cell(1, 1), "new");

    EXPECT_THAT(definitions(), ElementsAre("\\cellx300"));
}

TEST_F(Spans, GoWithACellThatIsRemoved) {
    addRow({"a", "b"});
    cell(1, 1)->setColumnSpan(3);

    row(1)->TableCells()->RemoveHead();

    EXPECT_THAT(definitions(), ElementsAre("\\cellx100"));
}

TEST_F(Spans, StayWithAMarkedCell) {
    addRow({"a"});
    cell(1, 1)->setColumnSpan(2);

    cell(1, 1)->asMarkedField("x");
    cell(1, 1)->setBackColor(static_cast<tColorIndex>(1000));

    EXPECT_EQ(cell(1, 1)->ColumnSpan(), 2);
}

}  // namespace
}  // namespace quorvane
