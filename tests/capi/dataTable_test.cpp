#include <gtest/gtest.h>
#include <quorvane.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "quorvane/compose/TableWriter.h"
#include "tests/capi/support.h"

// Tables of CSV and JSON. command/dataTableBytes_test.cpp compares them with those of the command.

namespace quorvane::capi {
namespace {

constexpr const char* prices = "Article;Price\nVase;12,50\nBowl;7,00\n";

/// The setup that the prices have.
const TableSetup priceSetup{
    .columns = {{"Article", "93.14%"}, {.heading = "Price", .width = "6.85%", .align = eRight}}};

std::string errorOf(const TableHandle& table) {
    return errorText(quorvane_table_error(table.get()));
}

std::string taken(const TableHandle& table) {
    return textOf([&](char** bytes, size_t* length) {
        return quorvane_table_take(table.get(), bytes, length);
    });
}

quorvane_status set(const TableHandle& table, int option, const char* value) {
    return quorvane_table_set(table.get(), option, QUORVANE_TEXT(value));
}

/// The text must stay.
TableHandle tableOf(const char* text) {
    TableHandle table = newTable();
    EXPECT_EQ(quorvane_table_set_data(table.get(), QUORVANE_TEXT(text), QUORVANE_ANY_DATA,
                                      QUORVANE_TEXT("prices.csv")),
              QUORVANE_OK);
    return table;
}

quorvane_status begin(const TableHandle& table) {
    return quorvane_table_begin(table.get());
}

quorvane_status finish(const TableHandle& table) {
    return quorvane_table_finish(table.get());
}

/// "error wrong-value prices.csv:3: The message", each in a line.
std::string diagnosticsOf(const TableHandle& table) {
    std::string all;
    const size_t count = quorvane_table_diagnostic_count(table.get());
    for (size_t i = 0; i < count; ++i) {
        const quorvane_diagnostic* const each = quorvane_table_diagnostic(table.get(), i);
        all += each->severity == QUORVANE_ERROR ? "error " : "warning ";
        all += std::string(each->identifier) + " " + each->file + ":" + std::to_string(each->line) +
               ": " + each->message + "\n";
    }
    return all;
}

/// A table of rows, as the class of the C++ library writes it.
std::string written(const TableSetup& setup,
                    const std::vector<std::vector<std::string_view>>& rows) {
    std::ostringstream stream;
    TableWriter writer(setup, stream);
    for (const std::vector<std::string_view>& row : rows) {
        writer.addRow(row);
    }
    writer.finish();
    return stream.str();
}

TEST(DataTable, ShowsRecordsInColumnsThatSuitThem) {
    const TableHandle table = tableOf(prices);
    EXPECT_EQ(begin(table), QUORVANE_OK);
    EXPECT_EQ(finish(table), QUORVANE_OK);
    EXPECT_EQ(taken(table), written(priceSetup, {{"Vase", "12,50"}, {"Bowl", "7,00"}}));
    EXPECT_EQ(quorvane_table_diagnostic_count(table.get()), 0U);
    EXPECT_EQ(quorvane_table_diagnostic(table.get(), 0), nullptr);
}

TEST(DataTable, GoesThroughACallbackOrToAFile) {
    const TableHandle called = tableOf(prices);
    Received received;
    EXPECT_EQ(quorvane_table_begin_to(called.get(), Received::write, &received), QUORVANE_OK);
    EXPECT_EQ(finish(called), QUORVANE_OK);
    EXPECT_EQ(received.bytes, written(priceSetup, {{"Vase", "12,50"}, {"Bowl", "7,00"}}));

    const std::string path = ::testing::TempDir() + "/quorvane-data.rtf";
    std::filesystem::remove(path);
    const TableHandle saved = tableOf(prices);
    EXPECT_EQ(quorvane_table_begin_file(saved.get(), path.data(), path.size()), QUORVANE_OK);
    EXPECT_FALSE(std::filesystem::exists(path));
    EXPECT_EQ(finish(saved), QUORVANE_OK);
    EXPECT_EQ(std::filesystem::file_size(path), received.bytes.size());
    std::filesystem::remove(path);
}

TEST(DataTable, KeepsTheOptionsOfOtherTables) {
    const TableHandle table = tableOf(prices);
    set(table, QUORVANE_TABLE_HEADING, "no");
    set(table, QUORVANE_TABLE_MARGIN, "3cm");
    set(table, QUORVANE_TABLE_COLUMNS, "Article:70%,Price:30%");
    set(table, QUORVANE_TABLE_HEADER_LEFT, "Shop");
    begin(table);
    finish(table);
    TableSetup setup = priceSetup;
    setup.columns[0].width = "70%";
    setup.columns[1].width = "30%";
    setup.hasHeading = false;
    setup.margin = "3cm";
    setup.header.left = "Shop";
    EXPECT_EQ(taken(table), written(setup, {{"Vase", "12,50"}, {"Bowl", "7,00"}}));
}

TEST(DataTable, LeavesNoRoomForNamesThatItDoesNotShow) {
    const auto without = [](const char* text) {
        const TableHandle table = tableOf(text);
        set(table, QUORVANE_TABLE_HEADING, "no");
        begin(table);
        finish(table);
        return taken(table);
    };
    EXPECT_EQ(without("Article,The number of pieces in the warehouse\nVase,7\n"),
              without("a,b\nVase,7\n"));
}

TEST(DataTable, StaysOnThePageThatWasChosen) {
    std::string wide;
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 9; ++column) {
            wide += std::string(30, 'x') + std::to_string(column) + (column < 8 ? "," : "\n");
        }
    }
    const auto documentOn = [&](const char* page) {
        const TableHandle table = tableOf(wide.c_str());
        if (page) {
            set(table, QUORVANE_TABLE_PAGE, page);
        }
        begin(table);
        finish(table);
        return taken(table);
    };
    EXPECT_NE(documentOn(nullptr).find("\\paperw16838"), std::string::npos);
    EXPECT_EQ(documentOn("a4").find("\\paperw16838"), std::string::npos);
}

TEST(DataTable, HasTheTotalsThatWereAdded) {
    const TableHandle table = tableOf("a,b,c\nx,1,2\ny,3,4\n");
    set(table, QUORVANE_TABLE_TOTAL, "c");
    set(table, QUORVANE_TABLE_TOTAL, "");
    set(table, QUORVANE_TABLE_TOTAL, "b");
    set(table, QUORVANE_TABLE_TOTAL_LABEL, "Sum");
    set(table, QUORVANE_TABLE_TOTAL_LABEL, "");
    begin(table);
    finish(table);
    const std::string rtf = taken(table);
    EXPECT_NE(rtf.find(" Total\\cell"), std::string::npos);
    EXPECT_NE(rtf.find(" 4\\cell"), rtf.rfind(" 4\\cell"));
    EXPECT_EQ(rtf.find(" 6\\cell"), std::string::npos);
}

TEST(DataTable, NamesTheLineOfARecordThatIsWrong) {
    const TableHandle table = tableOf("name,price\nVase,12\nBowl,7,50\nCandle,3\n");
    EXPECT_EQ(begin(table), QUORVANE_WRONG_CONTENT);
    EXPECT_EQ(errorOf(table),
              "prices.csv:3: wrong-value: The row has 3 fields, and the heading has 2.");
    EXPECT_EQ(quorvane_table_error(table.get())->number, 5);
}

TEST(DataTable, NamesTheLineOfARecordThatIsWrongAfterTheFirstOnes) {
    std::string text = "name,price\n";
    for (int i = 0; i < 2000; ++i) {
        text += "Vase,1\n";
    }
    text += "Bowl\x01,7\n";
    const std::string path = ::testing::TempDir() + "/quorvane-wrong-record.rtf";
    std::filesystem::remove(path);
    TableHandle table = tableOf(text.c_str());
    EXPECT_EQ(quorvane_table_begin_file(table.get(), path.data(), path.size()), QUORVANE_OK);
    EXPECT_EQ(finish(table), QUORVANE_WRONG_CONTENT);
    EXPECT_EQ(errorOf(table).substr(0, 29), "prices.csv:2002: wrong-value:");
    EXPECT_EQ(finish(table), QUORVANE_WRONG_CALL);
    EXPECT_EQ(errorOf(table), "wrong-call: The table is finished, or could not be written.");
    table.reset();
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST(DataTable, LeavesWrongRecordsOutIfItMayGoOn) {
    const TableHandle table = tableOf("name,price\nVase,12\nBowl,7,50\nJug\x01,2\nCandle,3\n");
    set(table, QUORVANE_TABLE_KEEP_GOING, "yes");
    EXPECT_EQ(begin(table), QUORVANE_OK);
    EXPECT_EQ(finish(table), QUORVANE_OK);
    EXPECT_EQ(diagnosticsOf(table),
              "error wrong-value prices.csv:3: The row has 3 fields, and the heading has 2.\n"
              "error wrong-value prices.csv:4: Cell 1: No document can show the control character "
              "U+0001 (byte 4)\n");
    EXPECT_EQ(taken(table), written({.columns = {{"name", "93.42%"}, {"price", "6.57%", eRight}}},
                                    {{"Vase", "12"}, {"Candle", "3"}}));
}

TEST(DataTable, WarnsOfGroupsThatBeginSeveralTimes) {
    const TableHandle table = tableOf("kind,name\na,x\nb,y\na,z\n");
    set(table, QUORVANE_TABLE_GROUP_BY, "kind");
    begin(table);
    EXPECT_EQ(diagnosticsOf(table), "");
    EXPECT_EQ(finish(table), QUORVANE_OK);
    EXPECT_EQ(diagnosticsOf(table),
              "warning scattered-groups prices.csv:1: Some groups begin several times, since their "
              "rows do not follow each other. Sort the rows by \"kind\".\n");
}

TEST(DataTable, BeginsAgainAfterOptionsThatDoNotSuitTheData) {
    const TableHandle table = tableOf(prices);
    const auto messageWith = [&](int option, const char* value) {
        EXPECT_EQ(set(table, option, value), QUORVANE_OK);
        EXPECT_EQ(begin(table), QUORVANE_WRONG_CONTENT);
        set(table, option, "");
        return errorOf(table);
    };
    EXPECT_EQ(messageWith(QUORVANE_TABLE_COLUMNS, "Prize"),
              "wrong-value: The data has no field \"Prize\"; did you mean Price?");
    EXPECT_EQ(
        messageWith(QUORVANE_TABLE_SORT, "Price:down"),
        "wrong-value: \"down\" after the field \"Price\" is not an order; write asc or desc.");
    EXPECT_EQ(messageWith(QUORVANE_TABLE_GROUP_BY, "Kind"),
              "wrong-value: The data has no field \"Kind\"; its fields are: Article, Price.");
    EXPECT_EQ(messageWith(QUORVANE_TABLE_TOTAL, "Kind"),
              "wrong-value: The table has no column \"Kind\" for a total.");
    EXPECT_EQ(messageWith(QUORVANE_TABLE_LOCALE, "xx").substr(0, 33),
              "wrong-value: xx is not a locale; ");
    set(table, QUORVANE_TABLE_PAGE, "a44");
    EXPECT_EQ(begin(table), QUORVANE_WRONG_CONTENT);
    set(table, QUORVANE_TABLE_PAGE, "a4");
    EXPECT_EQ(begin(table), QUORVANE_OK);
    EXPECT_EQ(finish(table), QUORVANE_OK);
    EXPECT_EQ(taken(table), written(priceSetup, {{"Vase", "12,50"}, {"Bowl", "7,00"}}));
}

TEST(DataTable, SpeaksOfOptionsInItsOwnTerms) {
    const TableHandle table = tableOf("price\n1.250\n");
    set(table, QUORVANE_TABLE_COLUMNS, "price:money:2");
    begin(table);
    EXPECT_EQ(finish(table), QUORVANE_WRONG_CONTENT);
    EXPECT_EQ(errorOf(table),
              "prices.csv:2: wrong-value: \"price\": \"1.250\" can be read in two ways. Choose one "
              "with the option locale, such as en-US or de-DE.");
}

TEST(DataTable, ReportsDataWithoutRecords) {
    EXPECT_EQ(begin(tableOf("")), QUORVANE_WRONG_CONTENT);
    const TableHandle empty = tableOf("");
    begin(empty);
    EXPECT_EQ(
        errorOf(empty),
        "prices.csv: wrong-value: There is no data. A table needs a row of names or a record.");
    const TableHandle unnamed = newTable();
    quorvane_table_set_data(unnamed.get(), QUORVANE_TEXT("[{\"a\": }]"), QUORVANE_ANY_DATA, nullptr,
                            0);
    EXPECT_EQ(begin(unnamed), QUORVANE_WRONG_CONTENT);
    EXPECT_STREQ(quorvane_table_error(unnamed.get())->file, "data");
    EXPECT_EQ(quorvane_table_error(unnamed.get())->line, 1U);
}

TEST(DataTable, ReportsAFileThatCannotBeRead) {
    const auto errorFor = [](const std::string& path) {
        const TableHandle table = newTable();
        EXPECT_EQ(
            quorvane_table_set_data_file(table.get(), path.data(), path.size(), QUORVANE_ANY_DATA),
            QUORVANE_OK);
        EXPECT_EQ(begin(table), QUORVANE_FILE_ERROR);
        return errorOf(table);
    };
    EXPECT_EQ(errorFor("missing/prices.csv"),
              "missing/prices.csv: unreadable-file: No such file or directory");
    EXPECT_EQ(errorFor("/"), "/: unreadable-file: Is a directory");
    EXPECT_EQ(errorFor(""), "unreadable-file: No such file or directory");
    const std::string path = ::testing::TempDir() + "/quorvane-nul.csv";
    std::ofstream(path) << "a\n1\n";
    EXPECT_EQ(errorFor(path + std::string("\0x", 2)),
              path + ": unreadable-file: Path/File access error");
    std::filesystem::remove(path);
}

TEST(DataTable, ReportsADocumentThatCannotBeWritten) {
    const TableHandle table = tableOf(prices);
    EXPECT_EQ(quorvane_table_begin_file(table.get(), QUORVANE_TEXT("/missing/folder/a.rtf")),
              QUORVANE_FILE_ERROR);
    EXPECT_EQ(errorOf(table), "/missing/folder/a.rtf: unwritable-file: " + noFolder);
    EXPECT_EQ(quorvane_table_begin(table.get()), QUORVANE_OK);
}

TEST(DataTable, DoesNotReplaceItsData) {
    namespace fs = std::filesystem;
    const fs::path folder = fs::path(::testing::TempDir()) / "quorvane-own-data";
    fs::remove_all(folder);
    fs::create_directory(folder);
    const std::string data = (folder / "prices.csv").string();
    std::ofstream(data, std::ios::binary) << prices;
    const std::string hardLink = (folder / "hard.rtf").string();
    fs::create_hard_link(data, hardLink);
    std::vector<std::string> paths{data, (folder / "." / "prices.csv").string(), hardLink};
    std::error_code failure;
    fs::create_symlink("prices.csv", folder / "soft.rtf", failure);
    if (!failure) {
        paths.push_back((folder / "soft.rtf").string());
    }
    const TableHandle table = newTable();
    quorvane_table_set_data_file(table.get(), data.data(), data.size(), QUORVANE_ANY_DATA);
    for (const std::string& path : paths) {
        EXPECT_EQ(quorvane_table_begin_file(table.get(), path.data(), path.size()),
                  QUORVANE_WRONG_CALL);
        EXPECT_EQ(errorOf(table), "wrong-call: The document would replace " + path +
                                      ", which has the data; name another file.");
    }
    EXPECT_EQ(fs::file_size(data), std::string(prices).size());
    const std::string document = (folder / "prices.rtf").string();
    EXPECT_EQ(quorvane_table_begin_file(table.get(), document.data(), document.size()),
              QUORVANE_OK);
    EXPECT_EQ(finish(table), QUORVANE_OK);
    EXPECT_EQ(fs::file_size(document),
              written(priceSetup, {{"Vase", "12,50"}, {"Bowl", "7,00"}}).size());

    const TableHandle again = newTable();
    quorvane_table_set_data_file(again.get(), data.data(), data.size(), QUORVANE_ANY_DATA);
    EXPECT_EQ(quorvane_table_begin_file(again.get(), document.data(), document.size()),
              QUORVANE_OK);
    EXPECT_EQ(finish(again), QUORVANE_OK);
    fs::remove_all(folder);
}

/// True if this process has a file open.
bool isOpen(const std::filesystem::path& file) {
    namespace fs = std::filesystem;
#ifdef _WIN32
    // Windows renames no file that a program reads.
    const fs::path other = file.string() + ".renamed";
    std::error_code failure;
    fs::rename(file, other, failure);
    if (!failure) {
        fs::rename(other, file);
    }
    return static_cast<bool>(failure);
#else
    const fs::path whole = fs::canonical(file);
    const fs::directory_iterator all("/proc/self/fd");
    return std::any_of(begin(all), end(all), [&](const fs::directory_entry& entry) {
        std::error_code failure;
        return fs::read_symlink(entry, failure) == whole;
    });
#endif
}

TEST(DataTable, ClosesItsDataWhenItIsFinished) {
    const std::string path = ::testing::TempDir() + "/quorvane-closed.csv";
    const auto endsWith = [&](const std::string& text, quorvane_status status) {
        std::ofstream(path, std::ios::binary) << text;
        const TableHandle table = newTable();
        quorvane_table_set_data_file(table.get(), path.data(), path.size(), QUORVANE_CSV);
        EXPECT_EQ(begin(table), QUORVANE_OK);
        EXPECT_TRUE(isOpen(path));
        EXPECT_EQ(finish(table), status);
        EXPECT_FALSE(isOpen(path));
    };
    endsWith(prices, QUORVANE_OK);
    endsWith("name\nBowl\x01\n", QUORVANE_WRONG_CONTENT);
    std::filesystem::remove(path);
}

TEST(DataTable, ReportsAFullDisk) {
    if (!std::filesystem::exists("/dev/full")) {
        GTEST_SKIP() << "this system has no /dev/full";
    }
    const TableHandle table = tableOf(prices);
    EXPECT_EQ(quorvane_table_begin_file(table.get(), QUORVANE_TEXT("/dev/full")), QUORVANE_OK);
    EXPECT_EQ(finish(table), QUORVANE_FILE_ERROR);
    EXPECT_EQ(errorOf(table), "/dev/full: unwritable-file: No space left on device");
    EXPECT_EQ(finish(table), QUORVANE_WRONG_CALL);
}

TEST(DataTable, StopsWhenTheCallbackSaysSo) {
    const TableHandle table = tableOf(prices);
    Received received;
    received.result = 1;
    EXPECT_EQ(quorvane_table_begin_to(table.get(), Received::write, &received), QUORVANE_OK);
    EXPECT_EQ(finish(table), QUORVANE_STOPPED);
    EXPECT_EQ(received.calls, 1);
    EXPECT_EQ(finish(table), QUORVANE_WRONG_CALL);
}

TEST(DataTable, TakesNoColumnsAndRowsOfTheCaller) {
    const TableHandle table = tableOf(prices);
    EXPECT_EQ(quorvane_table_add_column(table.get(), QUORVANE_TEXT("a"), nullptr, 0,
                                        QUORVANE_ALIGN_DEFAULT),
              QUORVANE_WRONG_CALL);
    EXPECT_EQ(errorOf(table),
              "wrong-call: The columns come from the data; set QUORVANE_TABLE_COLUMNS.");
    EXPECT_EQ(finish(table), QUORVANE_WRONG_CALL);
    begin(table);
    EXPECT_EQ(quorvane_table_set_data(table.get(), nullptr, 0, QUORVANE_CSV, nullptr, 0),
              QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_table_add_row(table.get(), nullptr, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(errorOf(table), "wrong-call: The rows of this table come from its data.");
    EXPECT_EQ(quorvane_table_add_rows(table.get(), nullptr, 0, 0, 0, nullptr), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_table_add_group(table.get(), nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_table_add_total(table.get(), nullptr, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(finish(table), QUORVANE_OK);
    EXPECT_EQ(taken(table), written(priceSetup, {{"Vase", "12,50"}, {"Bowl", "7,00"}}));
}

TEST(DataTable, NeedsItsDataForItsOptions) {
    const TableHandle table = newTable();
    quorvane_table_add_column(table.get(), QUORVANE_TEXT("a"), nullptr, 0, QUORVANE_ALIGN_DEFAULT);
    EXPECT_EQ(quorvane_table_set_data(table.get(), nullptr, 0, QUORVANE_CSV, nullptr, 0),
              QUORVANE_WRONG_CALL);
    EXPECT_EQ(errorOf(table),
              "wrong-call: The table has columns, and those of data come from it; set "
              "QUORVANE_TABLE_COLUMNS.");
    EXPECT_EQ(set(table, QUORVANE_TABLE_SORT, "a"), QUORVANE_WRONG_CALL);
    EXPECT_EQ(errorOf(table),
              "wrong-call: This option is for tables of data; set the data before.");
}

TEST(DataTable, RefusesValuesThatAnOptionCannotHave) {
    const TableHandle table = tableOf(prices);
    const auto refused = [&](int option, const char* value) {
        EXPECT_EQ(set(table, option, value), QUORVANE_WRONG_CALL);
        return errorOf(table);
    };
    EXPECT_EQ(refused(QUORVANE_TABLE_DELIMITER, "ab"),
              "wrong-call: The delimiter is one character, or \"tab\".");
    EXPECT_EQ(refused(QUORVANE_TABLE_ENCODING, "latin"),
              "wrong-call: The encoding is \"auto\", \"utf-8\" or \"windows-1252\".");
    EXPECT_EQ(refused(QUORVANE_TABLE_LIMIT, "-1"), "wrong-call: The limit is a number of rows.");
    EXPECT_EQ(refused(QUORVANE_TABLE_KEEP_GOING, "perhaps"),
              "wrong-call: The option to keep going is \"yes\" or \"no\".");
    EXPECT_EQ(refused(QUORVANE_TABLE_GROUP_PAGES, ""),
              "wrong-call: The option for pages of groups is \"yes\" or \"no\".");
    EXPECT_EQ(refused(24, "a"), "wrong-call: The argument option is not one of its constants.");
    EXPECT_EQ(refused(-1, "a"), "wrong-call: The argument option is not one of its constants.");
    EXPECT_EQ(quorvane_table_set_data(table.get(), nullptr, 0, 3, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_table_set_data(table.get(), nullptr, 5, 0, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_table_set_data_file(table.get(), nullptr, 0, -1), QUORVANE_WRONG_CALL);
}

TEST(DataTable, GoesBackToADefaultWithAnEmptyText) {
    const TableHandle table = tableOf(prices);
    for (const auto& [option, value] :
         std::vector<std::pair<int, const char*>>{{QUORVANE_TABLE_DELIMITER, ","},
                                                  {QUORVANE_TABLE_ENCODING, "windows-1252"},
                                                  {QUORVANE_TABLE_LIMIT, "1"},
                                                  {QUORVANE_TABLE_KEEP_GOING, "yes"},
                                                  {QUORVANE_TABLE_COLUMNS, "Price"},
                                                  {QUORVANE_TABLE_SORT, "Price"},
                                                  {QUORVANE_TABLE_GROUP_BY, "Price"},
                                                  {QUORVANE_TABLE_LOCALE, "de"}}) {
        EXPECT_EQ(set(table, option, value), QUORVANE_OK);
        EXPECT_EQ(set(table, option, ""), QUORVANE_OK);
    }
    begin(table);
    finish(table);
    EXPECT_EQ(taken(table), written(priceSetup, {{"Vase", "12,50"}, {"Bowl", "7,00"}}));
}

}  // namespace
}  // namespace quorvane::capi
