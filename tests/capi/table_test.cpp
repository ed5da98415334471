#include <gtest/gtest.h>
#include <quorvane.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>

#include "quorvane/compose/TableWriter.h"
#include "tests/capi/support.h"

namespace quorvane::capi {
namespace {

TableHandle tableOfTwo() {
    TableHandle table = newTable();
    quorvane_table_add_column(table.get(), QUORVANE_TEXT("Article"), nullptr, 0,
                              QUORVANE_ALIGN_DEFAULT);
    quorvane_table_add_column(table.get(), QUORVANE_TEXT("Price"), nullptr, 0,
                              QUORVANE_ALIGN_RIGHT);
    return table;
}

std::string taken(const TableHandle& table) {
    return textOf([&](char** bytes, size_t* length) {
        return quorvane_table_take(table.get(), bytes, length);
    });
}

std::string errorOf(const TableHandle& table) {
    return errorText(quorvane_table_error(table.get()));
}

quorvane_status addRow(const TableHandle& table, const char* first, const char* second) {
    const char* const texts[] = {first, second};
    return quorvane_table_add_row(table.get(), texts, nullptr, 2);
}

/// The same table by the class of the C++ library.
template <class Add>
std::string written(const TableSetup& setup, Add add) {
    std::ostringstream stream;
    TableWriter writer(setup, stream);
    add(writer);
    writer.finish();
    return stream.str();
}

const TableSetup twoColumns{.columns = {{"Article"}, {.heading = "Price", .align = eRight}}};

TEST(Table, WritesTheBytesOfTheCppLibrary) {
    const TableHandle table = tableOfTwo();
    EXPECT_EQ(quorvane_table_begin(table.get()), QUORVANE_OK);
    const char* const texts[] = {"Vase {blue}", "12.50 euros"};
    const size_t lengths[] = {QUORVANE_NUL_TERMINATED, 5};
    EXPECT_EQ(quorvane_table_add_group(table.get(), QUORVANE_TEXT("Glass")), QUORVANE_OK);
    EXPECT_EQ(quorvane_table_add_row(table.get(), texts, lengths, 2), QUORVANE_OK);
    EXPECT_EQ(quorvane_table_add_total(table.get(), texts, lengths, 1), QUORVANE_OK);
    EXPECT_EQ(quorvane_table_finish(table.get()), QUORVANE_OK);
    EXPECT_EQ(taken(table), written(twoColumns, [](TableWriter& writer) {
                  writer.addGroup("Glass");
                  writer.addRow({{"Vase {blue}", "12.50"}});
                  writer.addTotal({{"Vase {blue}"}});
              }));
}

TEST(Table, TakesEveryOption) {
    const TableHandle table = newTable();
    quorvane_table_add_column(table.get(), QUORVANE_TEXT("A"), QUORVANE_TEXT("3cm"),
                              QUORVANE_ALIGN_CENTER);
    const auto set = [&](quorvane_table_option option, const char* value) {
        EXPECT_EQ(quorvane_table_set(table.get(), option, QUORVANE_TEXT(value)), QUORVANE_OK);
    };
    set(QUORVANE_TABLE_TITLE, "Prices");
    set(QUORVANE_TABLE_HEADING, "no");
    set(QUORVANE_TABLE_PAGE, "a5-landscape");
    set(QUORVANE_TABLE_MARGIN, "1cm");
    set(QUORVANE_TABLE_STRIPE, "silver");
    set(QUORVANE_TABLE_BORDER, "thin");
    set(QUORVANE_TABLE_STYLESHEET, std::string(standardTableStyles()).c_str());
    set(QUORVANE_TABLE_HEADER_LEFT, "hl");
    set(QUORVANE_TABLE_HEADER_CENTER, "hc");
    set(QUORVANE_TABLE_HEADER_RIGHT, "hr");
    set(QUORVANE_TABLE_FOOTER_LEFT, "fl");
    set(QUORVANE_TABLE_FOOTER_CENTER, "fc");
    set(QUORVANE_TABLE_FOOTER_RIGHT, "fr");
    quorvane_table_begin(table.get());
    quorvane_table_finish(table.get());
    const TableSetup setup{.columns = {{"A", "3cm", eCentered}},
                           .title = "Prices",
                           .hasHeading = false,
                           .page = "a5-landscape",
                           .margin = "1cm",
                           .stripe = "silver",
                           .border = "thin",
                           .header = {"hl", "hc", "hr"},
                           .footer = {"fl", "fc", "fr"},
                           .styleSheet = std::string(standardTableStyles())};
    EXPECT_EQ(taken(table), written(setup, [](TableWriter&) {}));
}

TEST(Table, BeginsAPageWithEachGroup) {
    const TableHandle table = tableOfTwo();
    EXPECT_EQ(quorvane_table_set(table.get(), QUORVANE_TABLE_GROUP_PAGES, QUORVANE_TEXT("yes")),
              QUORVANE_OK);
    quorvane_table_begin(table.get());
    quorvane_table_add_group(table.get(), QUORVANE_TEXT("Glass"));
    quorvane_table_add_group(table.get(), QUORVANE_TEXT("Wood"));
    quorvane_table_finish(table.get());
    TableSetup setup = twoColumns;
    setup.groupsStartPages = true;
    EXPECT_EQ(taken(table), written(setup, [](TableWriter& writer) {
                  writer.addGroup("Glass");
                  writer.addGroup("Wood");
              }));
}

TEST(Table, AddsManyRowsInOneCall) {
    const TableHandle table = tableOfTwo();
    quorvane_table_begin(table.get());
    const std::string texts("a\0b\0\0d\0", 7);
    size_t added = 9;
    EXPECT_EQ(quorvane_table_add_rows(table.get(), texts.data(), texts.size(), 2, 2, &added),
              QUORVANE_OK);
    EXPECT_EQ(added, 2U);
    EXPECT_EQ(quorvane_table_add_rows(table.get(), nullptr, 0, 2, 0, nullptr), QUORVANE_OK);
    quorvane_table_finish(table.get());
    EXPECT_EQ(taken(table), written(twoColumns, [](TableWriter& writer) {
                  writer.addRow({{"a", "b"}});
                  writer.addRow({{"", "d"}});
              }));
}

TEST(Table, AddsNoRowsOfAnyNumberOfCells) {
    const TableHandle table = tableOfTwo();
    quorvane_table_begin(table.get());
    size_t added = 9;
    EXPECT_EQ(quorvane_table_add_rows(table.get(), nullptr, 0, SIZE_MAX / 16, 0, &added),
              QUORVANE_OK);
    EXPECT_EQ(quorvane_table_add_rows(table.get(), nullptr, 0, SIZE_MAX, 0, &added), QUORVANE_OK);
    EXPECT_EQ(added, 0U);
    quorvane_table_finish(table.get());
    EXPECT_EQ(taken(table), written(twoColumns, [](TableWriter&) {}));
}

TEST(Table, AddsNoRowOfTextsThatDoNotFit) {
    const TableHandle table = tableOfTwo();
    quorvane_table_begin(table.get());
    size_t added = 9;
    const auto add = [&](const std::string& texts, size_t cells, size_t rows) {
        return quorvane_table_add_rows(table.get(), texts.data(), texts.size(), cells, rows,
                                       &added);
    };
    EXPECT_EQ(add(std::string("a\0b\0c\0", 6), 2, 2), QUORVANE_WRONG_CALL);
    EXPECT_EQ(errorOf(table),
              "wrong-call: There are 3 texts that end with a zero byte, and not 2 rows of 2.");
    EXPECT_EQ(add(std::string("a\0b\0c", 5), 2, 1), QUORVANE_WRONG_CALL);
    EXPECT_EQ(add("", 0, SIZE_MAX), QUORVANE_WRONG_CALL);
    EXPECT_EQ(add(std::string("a\0b\0", 4), 2, SIZE_MAX), QUORVANE_WRONG_CALL);
    EXPECT_EQ(added, 0U);
    quorvane_table_finish(table.get());
    EXPECT_EQ(taken(table), written(twoColumns, [](TableWriter&) {}));
}

TEST(Table, LeavesOutAWrongRowAlone) {
    const TableHandle table = tableOfTwo();
    quorvane_table_begin(table.get());
    EXPECT_EQ(addRow(table, "a\x01", "b"), QUORVANE_WRONG_CONTENT);
    EXPECT_STREQ(quorvane_table_error(table.get())->identifier, "wrong-value");
    EXPECT_EQ(addRow(table, "caf\xE9", "b"), QUORVANE_WRONG_CONTENT);
    const char* const three[] = {"a", "b", "c"};
    EXPECT_EQ(quorvane_table_add_row(table.get(), three, nullptr, 3), QUORVANE_WRONG_CONTENT);
    const std::string texts("a\0b\0c\0\x01\0", 8);
    size_t added = 9;
    EXPECT_EQ(quorvane_table_add_rows(table.get(), texts.data(), texts.size(), 2, 2, &added),
              QUORVANE_WRONG_CONTENT);
    EXPECT_EQ(added, 1U);
    EXPECT_EQ(addRow(table, "e", "f"), QUORVANE_OK);
    quorvane_table_finish(table.get());
    EXPECT_EQ(taken(table), written(twoColumns, [](TableWriter& writer) {
                  writer.addRow({{"a", "b"}});
                  writer.addRow({{"e", "f"}});
              }));
}

TEST(Table, BeginsAgainAfterOptionsThatDoNotFit) {
    const TableHandle table = tableOfTwo();
    quorvane_table_set(table.get(), QUORVANE_TABLE_PAGE, QUORVANE_TEXT("a44"));
    EXPECT_EQ(quorvane_table_begin(table.get()), QUORVANE_WRONG_CONTENT);
    const std::string path = ::testing::TempDir() + "/quorvane-unbegun.rtf";
    EXPECT_EQ(quorvane_table_begin_file(table.get(), path.data(), path.size()),
              QUORVANE_WRONG_CONTENT);
    EXPECT_FALSE(std::filesystem::exists(path));
    quorvane_table_set(table.get(), QUORVANE_TABLE_PAGE, QUORVANE_TEXT("a4"));
    EXPECT_EQ(quorvane_table_begin(table.get()), QUORVANE_OK);
}

TEST(Table, WritesThroughACallback) {
    const TableHandle table = tableOfTwo();
    Received received;
    EXPECT_EQ(quorvane_table_begin_to(table.get(), Received::write, &received), QUORVANE_OK);
    addRow(table, "a", "b");
    EXPECT_EQ(quorvane_table_finish(table.get()), QUORVANE_OK);
    EXPECT_EQ(received.bytes, written(twoColumns, [](TableWriter& writer) {
                  writer.addRow({{"a", "b"}});
              }));
    EXPECT_EQ(taken(table), "<none>");
}

TEST(Table, StopsWhenTheCallbackSaysSo) {
    const TableHandle table = tableOfTwo();
    Received received;
    received.result = 1;
    quorvane_table_begin_to(table.get(), Received::write, &received);
    EXPECT_EQ(quorvane_table_finish(table.get()), QUORVANE_STOPPED);
    EXPECT_EQ(received.calls, 1);
    EXPECT_EQ(quorvane_table_finish(table.get()), QUORVANE_WRONG_CALL);
    EXPECT_EQ(received.calls, 1);
}

TEST(Table, AppearsAsAFileWhenItIsFinished) {
    const std::string path = ::testing::TempDir() + "/quorvane-finished.rtf";
    TableHandle table = tableOfTwo();
    EXPECT_EQ(quorvane_table_begin_file(table.get(), path.data(), path.size()), QUORVANE_OK);
    addRow(table, "a", "b");
    EXPECT_FALSE(std::filesystem::exists(path));
    EXPECT_EQ(quorvane_table_finish(table.get()), QUORVANE_OK);
    EXPECT_TRUE(std::filesystem::exists(path));
    std::filesystem::remove(path);
}

TEST(Table, LeavesNoFileIfItIsNotFinished) {
    const std::string path = ::testing::TempDir() + "/quorvane-unfinished.rtf";
    TableHandle table = tableOfTwo();
    quorvane_table_begin_file(table.get(), path.data(), path.size());
    addRow(table, "a", "b");
    table.reset();
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST(Table, ReportsAFileThatCannotBeWritten) {
    const TableHandle table = tableOfTwo();
    EXPECT_EQ(quorvane_table_begin_file(table.get(), QUORVANE_TEXT("/missing/folder/a.rtf")),
              QUORVANE_FILE_ERROR);
    EXPECT_EQ(errorOf(table), "/missing/folder/a.rtf: unwritable-file: " + noFolder);
    EXPECT_EQ(quorvane_table_error_text(table.get()), "/missing/folder/a.rtf: " + noFolder);
    EXPECT_EQ(quorvane_table_begin(table.get()), QUORVANE_OK);
}

TEST(Table, RefusesAnEmptyPathBeforeThereAreRows) {
    const TableHandle table = tableOfTwo();
    EXPECT_EQ(quorvane_table_begin_file(table.get(), QUORVANE_TEXT("")), QUORVANE_FILE_ERROR);
    EXPECT_EQ(errorOf(table), "unwritable-file: " + noFolder);
    EXPECT_EQ(quorvane_table_begin_file(table.get(), nullptr, 0), QUORVANE_FILE_ERROR);
    EXPECT_EQ(quorvane_table_begin(table.get()), QUORVANE_OK);
}

TEST(Table, ReportsAFullDisk) {
    if (!std::filesystem::exists("/dev/full")) {
        GTEST_SKIP() << "this system has no /dev/full";
    }
    const TableHandle table = tableOfTwo();
    EXPECT_EQ(quorvane_table_begin_file(table.get(), QUORVANE_TEXT("/dev/full")), QUORVANE_OK);
    EXPECT_EQ(quorvane_table_finish(table.get()), QUORVANE_FILE_ERROR);
    EXPECT_EQ(errorOf(table), "/dev/full: unwritable-file: No space left on device");
    EXPECT_EQ(addRow(table, "a", "b"), QUORVANE_WRONG_CALL);
}

/// With the widths that a vase for 12.50 asks for.
const TableSetup fittedColumns{
    .columns = {{"Article", "93.14%"}, {.heading = "Price", .width = "6.85%", .align = eRight}}};

TableHandle fittedTable() {
    TableHandle table = newTable();
    EXPECT_EQ(quorvane_table_fit_columns(table.get()), QUORVANE_OK);
    quorvane_table_add_column(table.get(), QUORVANE_TEXT("Article"), nullptr, 0,
                              QUORVANE_ALIGN_DEFAULT);
    quorvane_table_add_column(table.get(), QUORVANE_TEXT("Price"), nullptr, 0,
                              QUORVANE_ALIGN_DEFAULT);
    return table;
}

TEST(FittedTable, HasColumnsAsWideAsTheirContentsAskFor) {
    const TableHandle table = fittedTable();
    EXPECT_EQ(quorvane_table_begin(table.get()), QUORVANE_OK);
    EXPECT_EQ(addRow(table, "Vase", "12.50"), QUORVANE_OK);
    EXPECT_EQ(addRow(table, "Bowl", "7.00"), QUORVANE_OK);
    EXPECT_EQ(quorvane_table_finish(table.get()), QUORVANE_OK);
    EXPECT_EQ(taken(table), written(fittedColumns, [](TableWriter& writer) {
                  writer.addRow({{"Vase", "12.50"}});
                  writer.addRow({{"Bowl", "7.00"}});
              }));
}

TEST(FittedTable, HasTheBytesOfATableOfData) {
    std::string csv = "Kind,Article,Price\n";
    const TableHandle table = fittedTable();
    quorvane_table_begin(table.get());
    quorvane_table_add_group(table.get(), QUORVANE_TEXT("A group that is long"));
    for (int i = 0; i < 3000; ++i) {
        // From the 1001st row on they are longer than the columns ask for.
        const std::string article = "Article " + std::string(i < 1000 ? 10 : 90, 'x');
        const std::string price = std::to_string(i) + ".50";
        csv += "A group that is long," + article + "," + price + "\n";
        ASSERT_EQ(addRow(table, article.c_str(), price.c_str()), QUORVANE_OK);
    }
    EXPECT_EQ(quorvane_table_finish(table.get()), QUORVANE_OK);
    const TableHandle ofData = newTable();
    quorvane_table_set_data(ofData.get(), csv.data(), csv.size(), QUORVANE_CSV, nullptr, 0);
    quorvane_table_set(ofData.get(), QUORVANE_TABLE_GROUP_BY, QUORVANE_TEXT("Kind"));
    quorvane_table_begin(ofData.get());
    quorvane_table_finish(ofData.get());
    EXPECT_EQ(taken(table), taken(ofData));
}

TEST(FittedTable, HasRoomForTotals) {
    const TableHandle table = fittedTable();
    quorvane_table_begin(table.get());
    addRow(table, "Vase", "12.50");
    const char* const total[] = {"Total", "12.50"};
    EXPECT_EQ(quorvane_table_add_total(table.get(), total, nullptr, 2), QUORVANE_OK);
    quorvane_table_finish(table.get());
    const std::string csv = "Article,Price\nVase,12.50\n";
    const TableHandle ofData = newTable();
    quorvane_table_set_data(ofData.get(), csv.data(), csv.size(), QUORVANE_CSV, nullptr, 0);
    quorvane_table_set(ofData.get(), QUORVANE_TABLE_TOTAL, QUORVANE_TEXT("Price"));
    quorvane_table_begin(ofData.get());
    quorvane_table_finish(ofData.get());
    EXPECT_EQ(taken(table), taken(ofData));
}

TEST(FittedTable, KeepsWidthsAndAlignmentsThatAreGiven) {
    const TableHandle table = newTable();
    quorvane_table_fit_columns(table.get());
    quorvane_table_add_column(table.get(), QUORVANE_TEXT("Article"), QUORVANE_TEXT("30%"),
                              QUORVANE_ALIGN_CENTER);
    quorvane_table_add_column(table.get(), QUORVANE_TEXT("Price"), nullptr, 0, QUORVANE_ALIGN_LEFT);
    quorvane_table_set(table.get(), QUORVANE_TABLE_PAGE, QUORVANE_TEXT("a5"));
    quorvane_table_begin(table.get());
    addRow(table, "Vase", "12.50");
    quorvane_table_finish(table.get());
    const TableSetup setup{.columns = {{"Article", "30%", eCentered}, {"Price", "70%", eLeft}},
                           .page = "a5"};
    EXPECT_EQ(taken(table), written(setup, [](TableWriter& writer) {
                  writer.addRow({{"Vase", "12.50"}});
              }));
}

TEST(FittedTable, LeavesOutAWrongRowAlone) {
    const TableHandle table = fittedTable();
    quorvane_table_begin(table.get());
    EXPECT_EQ(addRow(table, "a\x01", "a price that is long"), QUORVANE_WRONG_CONTENT);
    EXPECT_EQ(errorOf(table),
              "wrong-value: Cell 1: No document can show the control character U+0001 (byte 2)");
    const char* const three[] = {"a", "b", "c"};
    EXPECT_EQ(quorvane_table_add_row(table.get(), three, nullptr, 3), QUORVANE_WRONG_CONTENT);
    const std::string texts(
        "Vase\0"
        "12.50\0"
        "a\0\x01\0",
        15);
    size_t added = 9;
    EXPECT_EQ(quorvane_table_add_rows(table.get(), texts.data(), texts.size(), 2, 2, &added),
              QUORVANE_WRONG_CONTENT);
    EXPECT_EQ(added, 1U);
    EXPECT_EQ(quorvane_table_finish(table.get()), QUORVANE_OK);
    EXPECT_EQ(taken(table), written(fittedColumns, [](TableWriter& writer) {
                  writer.addRow({{"Vase", "12.50"}});
              }));
}

TEST(FittedTable, HasEvenColumnsWhereThereIsNoRoomForOthers) {
    const TableHandle table = newTable();
    quorvane_table_fit_columns(table.get());
    quorvane_table_add_column(table.get(), QUORVANE_TEXT("Article"), QUORVANE_TEXT("97%"),
                              QUORVANE_ALIGN_DEFAULT);
    for (const char* const heading : {"a", "b", "c"}) {
        quorvane_table_add_column(table.get(), QUORVANE_TEXT(heading), nullptr, 0,
                                  QUORVANE_ALIGN_DEFAULT);
    }
    quorvane_table_set(table.get(), QUORVANE_TABLE_PAGE, QUORVANE_TEXT("letter"));
    const std::string path = ::testing::TempDir() + "/quorvane-narrow.rtf";
    EXPECT_EQ(quorvane_table_begin_file(table.get(), path.data(), path.size()), QUORVANE_OK);
    const std::string texts(
        "Vase\0"
        "12\0"
        "a text that is longer than the others\0"
        "\0",
        47);
    size_t added = 0;
    for (int i = 0; i < 1001; ++i) {
        ASSERT_EQ(quorvane_table_add_rows(table.get(), texts.data(), texts.size(), 4, 1, &added),
                  QUORVANE_OK)
            << errorOf(table);
    }
    EXPECT_EQ(quorvane_table_finish(table.get()), QUORVANE_OK) << errorOf(table);
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    file.close();
    const TableSetup setup{
        .columns = {{"Article", "97%"}, {"a", "1%", eRight}, {"b", "1%"}, {"c", "1%"}},
        .page = "letter"};
    EXPECT_EQ(bytes, written(setup, [](TableWriter& writer) {
                  for (int i = 0; i < 1001; ++i) {
                      writer.addRow({{"Vase", "12", "a text that is longer than the others", ""}});
                  }
              }));
    std::filesystem::remove(path);
}

TEST(FittedTable, EndsWhenTheCallbackStopsItsFirstRows) {
    const TableHandle table = fittedTable();
    Received received;
    received.result = 1;
    quorvane_table_begin_to(table.get(), Received::write, &received);
    for (int i = 0; i < 999; ++i) {
        ASSERT_EQ(addRow(table, "Vase", "12.50"), QUORVANE_OK);
    }
    EXPECT_EQ(addRow(table, "Vase", "12.50"), QUORVANE_STOPPED);
    EXPECT_EQ(addRow(table, "Vase", "12.50"), QUORVANE_WRONG_CALL);
    EXPECT_EQ(errorOf(table), "wrong-call: The table is finished, or could not be written.");
    EXPECT_EQ(quorvane_table_finish(table.get()), QUORVANE_WRONG_CALL);
    EXPECT_EQ(received.calls, 1);
}

TEST(FittedTable, CanHaveNoRows) {
    const TableHandle table = fittedTable();
    Received received;
    EXPECT_EQ(quorvane_table_begin_to(table.get(), Received::write, &received), QUORVANE_OK);
    EXPECT_EQ(received.bytes, "");
    EXPECT_EQ(quorvane_table_finish(table.get()), QUORVANE_OK);
    EXPECT_NE(received.bytes.find(" Price\\cell"), std::string::npos);
}

TEST(FittedTable, NeedsColumns) {
    const TableHandle fitted = newTable();
    quorvane_table_fit_columns(fitted.get());
    EXPECT_EQ(quorvane_table_begin(fitted.get()), QUORVANE_WRONG_CONTENT);
    const TableHandle even = newTable();
    EXPECT_EQ(quorvane_table_begin(even.get()), QUORVANE_WRONG_CONTENT);
    EXPECT_EQ(errorOf(fitted), errorOf(even));
}

TEST(FittedTable, BeginsAgainAfterWhatDoesNotFit) {
    const TableHandle table = fittedTable();
    quorvane_table_set(table.get(), QUORVANE_TABLE_PAGE, QUORVANE_TEXT("a44"));
    EXPECT_EQ(quorvane_table_begin(table.get()), QUORVANE_WRONG_CONTENT);
    quorvane_table_set(table.get(), QUORVANE_TABLE_PAGE, QUORVANE_TEXT("a4"));
    EXPECT_EQ(quorvane_table_begin_file(table.get(), QUORVANE_TEXT("/missing/folder/a.rtf")),
              QUORVANE_FILE_ERROR);
    EXPECT_EQ(errorOf(table), "/missing/folder/a.rtf: unwritable-file: " + noFolder);
    EXPECT_EQ(addRow(table, "Vase", "12.50"), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_table_begin(table.get()), QUORVANE_OK);
    EXPECT_EQ(quorvane_table_fit_columns(table.get()), QUORVANE_WRONG_CALL);
    addRow(table, "Vase", "12.50");
    quorvane_table_finish(table.get());
    EXPECT_EQ(taken(table), written(fittedColumns, [](TableWriter& writer) {
                  writer.addRow({{"Vase", "12.50"}});
              }));
}

TEST(FittedTable, AppearsAsAFileWhenItIsFinished) {
    const std::string path = ::testing::TempDir() + "/quorvane-fitted.rtf";
    std::filesystem::remove(path);
    TableHandle table = fittedTable();
    EXPECT_EQ(quorvane_table_begin_file(table.get(), path.data(), path.size()), QUORVANE_OK);
    addRow(table, "Vase", "12.50");
    EXPECT_FALSE(std::filesystem::exists(path));
    EXPECT_EQ(quorvane_table_finish(table.get()), QUORVANE_OK);
    EXPECT_TRUE(std::filesystem::exists(path));
    std::filesystem::remove(path);

    table = fittedTable();
    quorvane_table_begin_file(table.get(), path.data(), path.size());
    addRow(table, "Vase", "12.50");
    table.reset();
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST(FittedTable, ReportsAFullDisk) {
    if (!std::filesystem::exists("/dev/full")) {
        GTEST_SKIP() << "this system has no /dev/full";
    }
    const TableHandle table = fittedTable();
    EXPECT_EQ(quorvane_table_begin_file(table.get(), QUORVANE_TEXT("/dev/full")), QUORVANE_OK);
    EXPECT_EQ(addRow(table, "Vase", "12.50"), QUORVANE_OK);
    EXPECT_EQ(quorvane_table_finish(table.get()), QUORVANE_FILE_ERROR);
    EXPECT_EQ(errorOf(table), "/dev/full: unwritable-file: No space left on device");
    EXPECT_EQ(addRow(table, "a", "b"), QUORVANE_WRONG_CALL);
}

TEST(Table, KeepsTheOrderOfItsCalls) {
    const TableHandle table = tableOfTwo();
    EXPECT_EQ(addRow(table, "a", "b"), QUORVANE_WRONG_CALL);
    EXPECT_EQ(errorOf(table), "wrong-call: Begin the table first.");
    EXPECT_EQ(quorvane_table_add_group(table.get(), QUORVANE_TEXT("a")), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_table_add_total(table.get(), nullptr, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_table_add_rows(table.get(), nullptr, 0, 2, 0, nullptr), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_table_finish(table.get()), QUORVANE_WRONG_CALL);
    quorvane_table_begin(table.get());
    EXPECT_EQ(quorvane_table_begin(table.get()), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_table_set(table.get(), QUORVANE_TABLE_TITLE, QUORVANE_TEXT("late")),
              QUORVANE_WRONG_CALL);
    EXPECT_EQ(taken(table), "<none>");
    quorvane_table_finish(table.get());
    EXPECT_EQ(addRow(table, "a", "b"), QUORVANE_WRONG_CALL);
    EXPECT_NE(taken(table), "<none>");
    EXPECT_EQ(taken(table), "<none>");
}

TEST(Table, RefusesWrongArguments) {
    const TableHandle table = tableOfTwo();
    EXPECT_EQ(quorvane_table_add_column(table.get(), nullptr, 0, nullptr, 0, 5),
              QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_table_set(table.get(), 24, QUORVANE_TEXT("a")), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_table_set(table.get(), QUORVANE_TABLE_HEADING, QUORVANE_TEXT("perhaps")),
              QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_table_begin_to(table.get(), nullptr, nullptr), QUORVANE_WRONG_CALL);
    quorvane_table_begin(table.get());
    EXPECT_EQ(quorvane_table_add_row(table.get(), nullptr, nullptr, 1), QUORVANE_WRONG_CALL);
    quorvane_table_finish(table.get());
    EXPECT_EQ(quorvane_table_take(table.get(), nullptr, nullptr), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_table_new(nullptr), QUORVANE_WRONG_CALL);
}

}  // namespace
}  // namespace quorvane::capi
