#include <gtest/gtest.h>

#include "tests/docmodel/layout/TextTable.h"
#include "tests/support/errorNumberOf.h"

namespace quorvane {
namespace {

class RowSettings : public testing::Test, protected TextTable {
protected:
    RowSettings() { document->setColumnWidths({100}); }
};

std::string plainRow(const std::string& text) {
    return rowText("", " \\cellx100", cellText(text));
}

TEST_F(RowSettings, AreOffAtFirst) {
    addRow({"a"});

    EXPECT_FALSE(row(1)->RepeatsAsHeading());
    EXPECT_FALSE(row(1)->KeepTogether());
    EXPECT_FALSE(row(1)->KeepWithNext());
    EXPECT_FALSE(row(1)->StartsPage());
}

TEST_F(RowSettings, KeepARowOnOnePage) {
    addRow({"a"});

    row(1)->setKeepTogether(true);

    EXPECT_EQ(text(), rowText("\\trkeep", " \\cellx100", cellText("a")));
}

TEST_F(RowSettings, KeepARowOnThePageOfTheNext) {
    addRow({"a"});
    addRow({"b"});

    row(1)->setKeepWithNext(true);

    EXPECT_EQ(text(), rowText("\\trkeepfollow", " \\cellx100 \\pard\\plain\\intbl\\keepn",
                              cellText("a", "\\keepn")) +
                          plainRow("b"));
}

TEST_F(RowSettings, KeepTheCoveredCellsOfARowWithTheNext) {
    addRow({"a"});
    addRow({});
    addRow({"c"});
    cell(1, 1)->setRowSpan(2);

    row(2)->setKeepWithNext(true);

    EXPECT_NE(text().find("\\clvmrg\\cellx100 \\pard\\plain\\intbl\\keepn"
                          " \\pard\\plain\\intbl\\keepn\\cell\\row}"),
              std::string::npos);
}

TEST_F(RowSettings, StartAPageBetweenTwoTables) {
    addRow({"a"});
    addRow({"b"});

    row(2)->setStartsPage(true);

    EXPECT_EQ(text(), plainRow("a") + "\r\n\\pard\\plain\\pagebb\\fs2\\par" + plainRow("b"));
}

TEST_F(RowSettings, StartNoPageBeforeTheFirstRow) {
    addRow({"a"});

    row(1)->setStartsPage(true);

    EXPECT_EQ(text(), plainRow("a"));
}

TEST_F(RowSettings, LetNoCellSpanTheStartOfAPage) {
    addRow({"a"});
    addRow({});
    cell(1, 1)->setRowSpan(2);

    row(2)->setStartsPage(true);

    EXPECT_EQ(error(), "5 A cell of row 1 spans 2 rows, but a page ends with row 1.");
}

TEST_F(RowSettings, MarkTheDocumentChangedWhenTheyChange) {
    const Ref<CRtfTableRow> row = addRow({"a"});
    const auto expectChange = [&](void (CRtfTableRow::*set)(bool),
                                  bool (CRtfTableRow::*get)() const) {
        EXPECT_FALSE(marksChanged(*document, [&] { ((*row).*set)(false); }));
        EXPECT_TRUE(marksChanged(*document, [&] { ((*row).*set)(true); }));
        EXPECT_TRUE(((*row).*get)());
        EXPECT_FALSE(marksChanged(*document, [&] { ((*row).*set)(true); }));
        EXPECT_TRUE(marksChanged(*document, [&] { ((*row).*set)(false); }));
        EXPECT_FALSE(((*row).*get)());
    };

    expectChange(&CRtfTableRow::setRepeatsAsHeading, &CRtfTableRow::RepeatsAsHeading);
    expectChange(&CRtfTableRow::setKeepTogether, &CRtfTableRow::KeepTogether);
    expectChange(&CRtfTableRow::setKeepWithNext, &CRtfTableRow::KeepWithNext);
    expectChange(&CRtfTableRow::setStartsPage, &CRtfTableRow::StartsPage);
}

TEST_F(RowSettings, GoWithARowThatIsRefiled) {
    addRow({"a"});
    row(1)->setKeepTogether(true);

    document->TableRows()->refile(row(1), "new");

    EXPECT_TRUE(row(1)->KeepTogether());
}

TEST_F(RowSettings, StayWithARowThatIsRemoved) {
    const Ref<CRtfTableRow> held = addRow({"a"});
    held->setKeepTogether(true);

    document->TableRows()->RemoveHead();
    document = nullptr;

    EXPECT_TRUE(held->KeepTogether());
    EXPECT_EQ(errorNumberOf([&] { held->setStartsPage(true); }), 91);
    EXPECT_TRUE(held->StartsPage());
}

class Headings : public RowSettings {
protected:
    Headings() {
        addRow({"a"});
        addRow({"b"});
        addRow({"c"});
        row(1)->setRepeatsAsHeading(true);
    }
};

TEST_F(Headings, AreInThePageHeaderOnly) {
    EXPECT_EQ(text(), "\r\n\\headery1418\r\n{\\header" + plainRow("a") +
                          "\r\n\\pard\\plain\\fs2\\par}" + plainRow("b") + plainRow("c"));
}

TEST_F(Headings, CanHaveSeveralRows) {
    row(2)->setRepeatsAsHeading(true);

    EXPECT_EQ(text(), "\r\n\\headery1418\r\n{\\header" + plainRow("a") + plainRow("b") +
                          "\r\n\\pard\\plain\\fs2\\par}" + plainRow("c"));
}

TEST_F(Headings, StandUnderTheTextOfThePageHeader) {
    document->setPageHeader("x", "", "");

    EXPECT_EQ(text(),
              "\r\n\\headery709\r\n{\\header"
              "\r\n\\pard\\plain \\tqc\\tx4420\\tqr\\tx8840\\sa429 x\\tab \\tab \\par" +
                  plainRow("a") + "\r\n\\pard\\plain\\fs2\\par}" + plainRow("b") + plainRow("c"));
}

TEST_F(Headings, AreARowPropertyIfYouWant) {
    document->setHeadingForm(HeadingForm::RowProperty);

    EXPECT_EQ(text(),
              rowText("\\trhdr", " \\cellx100", cellText("a")) + plainRow("b") + plainRow("c"));
}

TEST_F(Headings, StandInEachTableAsARowProperty) {
    document->setHeadingForm(HeadingForm::RowProperty);

    row(3)->setStartsPage(true);

    const std::string heading = rowText("\\trhdr", " \\cellx100", cellText("a"));
    EXPECT_EQ(text(), heading + plainRow("b") + "\r\n\\pard\\plain\\pagebb\\fs2\\par" + heading +
                          plainRow("c"));
}

TEST_F(Headings, StayOnTheFirstPageWithItsFirstRow) {
    document->setHeadingForm(HeadingForm::RowProperty);

    row(1)->setStartsPage(true);
    row(2)->setStartsPage(true);

    EXPECT_EQ(text(),
              rowText("\\trhdr", " \\cellx100", cellText("a")) + plainRow("b") + plainRow("c"));
}

TEST_F(Headings, AreTheFirstRows) {
    row(3)->setRepeatsAsHeading(true);

    EXPECT_EQ(error(), "5 Row 3 cannot repeat as a heading, because row 2 does not.");
}

TEST_F(Headings, AreNotLeftByACell) {
    row(2)->TableCells()->RemoveHead();

    cell(1, 1)->setRowSpan(2);

    EXPECT_EQ(error(), "5 A cell of row 1 spans 2 rows, but the heading ends with row 1.");
}

TEST_F(Headings, HaveTheFormOfThePageHeaderAtFirst) {
    EXPECT_EQ(document->HeadingForm(), HeadingForm::PageHeader);
    EXPECT_FALSE(
        marksChanged(*document, [&] { document->setHeadingForm(HeadingForm::PageHeader); }));
    EXPECT_TRUE(
        marksChanged(*document, [&] { document->setHeadingForm(HeadingForm::RowProperty); }));

    document->ClearStructure();

    EXPECT_EQ(document->HeadingForm(), HeadingForm::PageHeader);
}

}  // namespace
}  // namespace quorvane
