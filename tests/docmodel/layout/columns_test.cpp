#include <gtest/gtest.h>

#include "tests/docmodel/layout/TextTable.h"
#include "tests/support/errorNumberOf.h"

namespace quorvane {
namespace {

using testing::ElementsAre;
using Widths = std::vector<std::int32_t>;

class Columns : public testing::Test, protected TextTable {};

TEST_F(Columns, AreNotSetAtFirst) {
    addRow({"a"});

    EXPECT_EQ(document->ColumnWidths(), Widths());
    EXPECT_EQ(row(1)->ColumnWidths(), Widths());
}

TEST_F(Columns, GiveTheCellsOfAllRowsTheirEdges) {
    addRow({"a", "b", "c"});
    addRow({"d", "e", "f"});

    document->setColumnWidths({500, 6000, 100});

    EXPECT_EQ(text(), rowText("", " \\cellx500 \\cellx6500 \\cellx6600",
                              cellText("a") + cellText("b") + cellText("c")) +
                          rowText("", " \\cellx500 \\cellx6500 \\cellx6600",
                                  cellText("d") + cellText("e") + cellText("f")));
}

TEST_F(Columns, OfARowReplaceThoseOfTheDocument) {
    addRow({"a", "b"});
    addRow({"c", "d"});
    addRow({"e", "f"});
    document->setColumnWidths({100, 200});

    row(2)->setColumnWidths({7, 8});

    EXPECT_THAT(definitions(), ElementsAre("\\cellx100 \\cellx300", "\\cellx7 \\cellx15",
                                           "\\cellx100 \\cellx300"));
}

TEST_F(Columns, LeaveTheWidthsOfCellsForRowsWithoutColumns) {
    addRow({"a", "b"});
    addRow({"c", "d"});
    cell(1, 1)->setWidth(eTwips, 1000);

    row(2)->setColumnWidths({7, 8});

    EXPECT_EQ(cell(2, 1)->Width(eTwips), 4420);
    EXPECT_THAT(definitions(), ElementsAre("\\cellx1000 \\cellx8840", "\\cellx7 \\cellx15"));
}

TEST_F(Columns, LeaveTheRowsAsTheyWereWhenTheyAreRemoved) {
    addRow({"a", "b"});
    const std::string before = text();
    document->setColumnWidths({100, 200});
    row(1)->setColumnWidths({300, 200});

    document->setColumnWidths({});
    row(1)->setColumnWidths({});

    EXPECT_EQ(text(), before);
}

TEST_F(Columns, CanBeMoreThanTheCellsOfARow) {
    addRow({"a"});

    document->setColumnWidths({100, 200});

    EXPECT_THAT(definitions(), ElementsAre("\\cellx100"));
}

TEST_F(Columns, MarkTheDocumentChangedWhenTheyChange) {
    addRow({"a"});
    const Widths widths{100, 200};

    EXPECT_TRUE(marksChanged(*document, [&] { document->setColumnWidths(widths); }));
    EXPECT_FALSE(marksChanged(*document, [&] { document->setColumnWidths(widths); }));
    EXPECT_TRUE(marksChanged(*document, [&] { row(1)->setColumnWidths(widths); }));
    EXPECT_FALSE(marksChanged(*document, [&] { row(1)->setColumnWidths(widths); }));
    EXPECT_EQ(document->ColumnWidths(), widths);
    EXPECT_EQ(row(1)->ColumnWidths(), widths);
}

TEST_F(Columns, HaveAWidth) {
    addRow({"a"});
    const auto descriptionOf = [](const auto& call) {
        try {
            call();
        } catch (const RtfError& error) {
            return std::to_string(error.number) + " " + error.description;
        }
        return std::string();
    };

    EXPECT_EQ(descriptionOf([&] {
                  document->setColumnWidths({10, 0});
              }),
              "5 Column 2 has a width of 0 twips. It must be at least 1.");
    EXPECT_EQ(descriptionOf([&] { row(1)->setColumnWidths({-5}); }),
              "5 Column 1 has a width of -5 twips. It must be at least 1.");
    EXPECT_EQ(document->ColumnWidths(), Widths());
    EXPECT_EQ(row(1)->ColumnWidths(), Widths());
}

TEST_F(Columns, EndWithinWhatANumberCanHold) {
    document->setColumnWidths({INT32_MAX - 1, 1});

    EXPECT_EQ(errorNumberOf([&] { document->setColumnWidths({INT32_MAX, 1}); }), 6);
    EXPECT_EQ(document->ColumnWidths(), Widths({INT32_MAX - 1, 1}));
}

TEST_F(Columns, AreAsManyAsTheCellsOfARow) {
    addRow({"a", "b"});
    addRow({"a", "b", "c"});

    document->setColumnWidths({100, 200});

    EXPECT_EQ(error(),
              "5 Cell 3 of row 2 would stand in column 3, but the row has only 2 columns.");
    EXPECT_TRUE(document->Changed());
}

TEST_F(Columns, ThatDoNotFitAreAnErrorOfEachCallThatRenders) {
    addRow({"a", "b"});
    const std::string before = document->Contents();
    document->setColumnWidths({100});

    EXPECT_EQ(errorNumberOf([&] { document->Contents(); }), 5);
    EXPECT_EQ(errorNumberOf([&] { document->Commit("a.rtf"); }), 5);
    EXPECT_TRUE(platform.operations.empty());

    document->setColumnWidths({});
    EXPECT_EQ(document->Contents(), before);
}

TEST_F(Columns, ThatFitAreLookedAtAgainAfterAChange) {
    addRow({"a", "b"});
    document->setColumnWidths({100, 200});
    document->Contents();

    row(1)->TableCells()->AddTail();

    EXPECT_EQ(errorNumberOf([&] { document->Contents(); }), 5);
}

TEST_F(Columns, OfARowGoWithItsContentsWhenItIsRefiled) {
    addRow({"a"});
    row(1)->setColumnWidths({300});

    document->TableRows()->refile(row(1), "new");

    EXPECT_EQ(row(1)->ColumnWidths(), Widths({300}));
    EXPECT_THAT(definitions(), ElementsAre("\\cellx300"));
}

TEST_F(Columns, OfTheDocumentAreResetWithThePage) {
    document->setColumnWidths({300});

    document->ClearStructure();

    EXPECT_EQ(document->ColumnWidths(), Widths());
}

TEST_F(Columns, CanBeSetInARowWithoutADocument) {
    const Ref<CRtfTableRow> held = addRow({"a"});
    document = nullptr;

    EXPECT_EQ(errorNumberOf([&] { held->setColumnWidths({300}); }), 91);
    EXPECT_EQ(held->ColumnWidths(), Widths({300}));
}

}  // namespace
}  // namespace quorvane
