#include "data/renderTable.h"

#include <gtest/gtest.h>

#include <string>

#include "data/csvTable.h"
#include "quorvane/compose/Error.h"
#include "quorvane/compose/TableWriter.h"

namespace quorvane::data {
namespace {

using Rows = std::vector<std::vector<std::string>>;

template <class Body>
std::string errorOf(Body&& body) {
    try {
        body();
    } catch (const Error& error) {
        return error.identifier() + ": " + error.what();
    }
    return "none";
}

std::string errorOfTable(const Rows& rows, const TableChoices& choices = {}) {
    return errorOf([&] { renderTable(rows, choices); });
}

TEST(CsvTable, HasTheNamesAsItsFirstRow) {
    EXPECT_EQ(csvTable("Name;Price\r\n\"a;b\";1\r\n"), (Rows{{"Name", "Price"}, {"a;b", "1"}}));
}

TEST(CsvTable, NamesTheLineOfAWrongRow) {
    EXPECT_EQ(errorOf([] { csvTable("a,b\n1,2\n3\n"); }),
              "wrong-value: line 3: The row has 1 field, and the heading has 2.");
}

TEST(RenderTable, MakesTheDocumentThatTableWriterWrites) {
    Rendering rendering = renderTable({{"Name", "Price"}, {"Vase {b}", "12.50"}, {"Bowl", "3"}},
                                      {.columns = "Name:70%,Price:Net:30%", .title = "Prices"});

    std::string written;
    TableWriter writer({.columns = {{.heading = "Name", .width = "70%"},
                                    {.heading = "Net", .width = "30%", .align = eRight}},
                        .title = "Prices"},
                       [&written](std::string_view bytes) { written += bytes; });
    writer.addRow({{"Vase {b}", "12.50"}});
    writer.addRow({{"Bowl", "3"}});
    writer.finish();
    EXPECT_EQ(rendering.document.rtf(), written);
}

TEST(RenderTable, ShowsAllFieldsInWidthsThatSuitThem) {
    Rendering rendering = renderTable({{"A", "B"}, {"1", "a text that is longer"}});

    EXPECT_EQ(rendering.document.size(), 2U);
    EXPECT_NE(rendering.document.rtf().find("\\qr"), std::string::npos);
}

TEST(RenderTable, LeavesOutRowsAndColumnsWithoutTexts) {
    Rendering rendering = renderTable({{"A", "", "B", ""}, {}, {"1", "", "2", "x"}, {"", ""}});

    ASSERT_EQ(rendering.document.size(), 2U);
    EXPECT_EQ(rendering.document[0].size(), 3U);
    EXPECT_NE(rendering.document.rtf().find("Column 4\\cell"), std::string::npos);
}

TEST(RenderTable, TakesTheBlankColumnsOfCsvAsThoseOfRows) {
    EXPECT_EQ(renderTable(csvTable("A;;B\n1;;2\n")).document.rtf(),
              renderTable({{"A", "B"}, {"1", "2"}}).document.rtf());
}

TEST(RenderTable, LeavesCellsEmptyThatARowLacks) {
    EXPECT_EQ(renderTable({{"A", "B"}, {"1"}}).document[1].size(), 2U);
}

TEST(RenderTable, NamesTheRowThatIsWrong) {
    EXPECT_EQ(errorOfTable({{"A"}, {"1"}, {"2", "3"}}),
              "wrong-value: Row 2: The row has 2 fields, and the row of names has 1.");
    EXPECT_EQ(errorOfTable({{"A"}, {"\a"}}).substr(0, 27), "wrong-value: Row 1: Cell 1:");
}

TEST(RenderTable, NeedsNames) {
    const std::string error = "wrong-value: There is no data. A table needs a row of names.";

    EXPECT_EQ(errorOfTable({}), error);
    EXPECT_EQ(errorOfTable({{}}), error);
    EXPECT_EQ(errorOfTable({{"", ""}, {"", ""}}), error);
}

TEST(RenderTable, RefusesColumnsThatAreNoFields) {
    EXPECT_EQ(errorOfTable({{"Price"}}, {.columns = "Prise"}),
              "wrong-value: The data has no field \"Prise\"; did you mean Price?");
}

TEST(RenderTable, RefusesFilters) {
    EXPECT_NE(errorOfTable({{"Price"}}, {.columns = "Price:money:2"}).find("has a filter"),
              std::string::npos);
}

TEST(RenderTable, NeedsTheStylesOfTables) {
    EXPECT_NE(errorOfTable({{"A"}}, {.styleSheet = "{ name: a; style-def: s; format: \\f0 }"})
                  .find("table-heading"),
              std::string::npos);
}

}  // namespace
}  // namespace quorvane::data
