// Tables of data have the bytes that the command writes.

#include <gtest/gtest.h>
#include <quorvane.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/capi/support.h"
#include "tests/cli/ProgramTest.h"

namespace quorvane::capi {
namespace {

using Options = std::vector<std::pair<quorvane_table_option, std::string>>;

class DataTableBytes : public cli::ProgramTest {
protected:
    DataTableBytes() : ProgramTest({"table"}) {}

    static void setOptions(const TableHandle& table, const Options& options) {
        for (const auto& [option, value] : options) {
            EXPECT_EQ(quorvane_table_set(table.get(), option, value.data(), value.size()),
                      QUORVANE_OK)
                << quorvane_table_error(table.get())->message;
        }
    }

    /// The bytes of a table that has its data.
    static std::string written(const TableHandle& table) {
        EXPECT_EQ(quorvane_table_begin(table.get()), QUORVANE_OK)
            << errorText(quorvane_table_error(table.get()));
        EXPECT_EQ(quorvane_table_finish(table.get()), QUORVANE_OK)
            << errorText(quorvane_table_error(table.get()));
        return textOf([&](char** bytes, size_t* length) {
            return quorvane_table_take(table.get(), bytes, length);
        });
    }

    static std::string ofFile(const std::string& path, const Options& options,
                              int format = QUORVANE_ANY_DATA) {
        const TableHandle table = newTable();
        EXPECT_EQ(quorvane_table_set_data_file(table.get(), path.data(), path.size(), format),
                  QUORVANE_OK);
        setOptions(table, options);
        return written(table);
    }

    static std::string ofText(const std::string& text, const std::string& name,
                              const Options& options, int format = QUORVANE_ANY_DATA) {
        const TableHandle table = newTable();
        EXPECT_EQ(quorvane_table_set_data(table.get(), text.data(), text.size(), format,
                                          name.data(), name.size()),
                  QUORVANE_OK);
        setOptions(table, options);
        return written(table);
    }

    /// What the command writes for a file of the folder or at a path.
    std::string ofCommand(const std::string& file, std::vector<std::string> arguments) {
        arguments.insert(arguments.end(), {file, "-o", "expected.rtf"});
        EXPECT_EQ(run(arguments).errors, "");
        return folder.read("expected.rtf");
    }
};

TEST_F(DataTableBytes, AreThoseOfTheCommandForACsvFile) {
    const std::string articles = QUORVANE_EXAMPLES_FOLDER "/articles.csv";
    EXPECT_EQ(ofFile(articles, {}), ofCommand(articles, {}));
    EXPECT_EQ(ofFile(articles, {{QUORVANE_TABLE_TITLE, "Articles, spring 2027"},
                                {QUORVANE_TABLE_GROUP_BY, "Kind"},
                                {QUORVANE_TABLE_TOTAL, "Price"},
                                {QUORVANE_TABLE_TOTAL_LABEL, "Sum"}}),
              ofCommand(articles, {"--title", "Articles, spring 2027", "--group-by", "Kind",
                                   "--total", "Price", "--total-label", "Sum"}));
    EXPECT_EQ(ofFile(articles, {{QUORVANE_TABLE_PAGE, "a4"},
                                {QUORVANE_TABLE_STRIPE, "none"},
                                {QUORVANE_TABLE_BORDER, "hair"},
                                {QUORVANE_TABLE_LIMIT, "3"},
                                {QUORVANE_TABLE_SORT, "Price:desc"}}),
              ofCommand(articles, {"--page", "a4", "--stripe", "none", "--border", "hair",
                                   "--limit", "3", "--sort", "Price:desc"}));
}

TEST_F(DataTableBytes, AreThoseOfTheCommandForAListAsAnOfficeKeepsIt) {
    const std::string shop = QUORVANE_EXAMPLES_FOLDER "/museum-shop.csv";
    const std::string columns =
        "Artikel-Nr.:Nr.,Bezeichnung,Im Angebot seit:Neu:date:MM/yyyy|default:–,Preis:right";
    EXPECT_EQ(
        ofFile(shop, {{QUORVANE_TABLE_TITLE, "Museumsladen"},
                      {QUORVANE_TABLE_GROUP_BY, "Warengruppe"},
                      {QUORVANE_TABLE_GROUP_PAGES, "yes"},
                      {QUORVANE_TABLE_SORT, "Warengruppe,Bezeichnung"},
                      {QUORVANE_TABLE_LOCALE, "de-DE"},
                      {QUORVANE_TABLE_COLUMNS, columns},
                      {QUORVANE_TABLE_ENCODING, "windows-1252"},
                      {QUORVANE_TABLE_DELIMITER, ";"}}),
        ofCommand(shop, {"--title", "Museumsladen", "--group-by", "Warengruppe", "--group-pages",
                         "--sort", "Warengruppe,Bezeichnung", "--locale", "de-DE", "--columns",
                         columns, "--encoding", "windows-1252", "--delimiter", ";"}));
}

TEST_F(DataTableBytes, AreThoseOfTheCommandForJson) {
    const std::string lines =
        "{\"id\": 1, \"customer\": {\"city\": \"Łódź\"}}\n{\"id\": 2.5, \"tags\": [\"new\"]}\n";
    folder.write("events.jsonl", lines);
    const std::string expected = ofCommand("events.jsonl", {});
    EXPECT_EQ(ofFile(folder / "events.jsonl", {}), expected);
    EXPECT_EQ(ofText(lines, "events.jsonl", {}), expected);
    EXPECT_EQ(ofText(lines, "", {}), expected);
    EXPECT_EQ(ofText(lines, "events.csv", {}, QUORVANE_JSON), expected);
    const std::string list =
        "[{\"id\": 1, \"customer\": {\"city\": \"Łódź\"}},"
        "{\"id\": 2.5, \"tags\": [\"new\"]}]";
    EXPECT_EQ(ofText(list, "events.json", {}), expected);
}

TEST_F(DataTableBytes, AreThoseOfTheCommandForATextThatLooksLikeJson) {
    const std::string text = "{a},b\n1,2\n";
    folder.write("a.csv", text);
    const std::string expected = ofCommand("a.csv", {});
    EXPECT_EQ(ofText(text, "a.csv", {}), expected);
    EXPECT_EQ(ofText(text, "", {}, QUORVANE_CSV), expected);
    EXPECT_EQ(ofText(text, "", {{QUORVANE_TABLE_DELIMITER, ","}}), expected);
}

TEST_F(DataTableBytes, AreThoseOfTheCommandForMoreRecordsThanAreReadAtOnce) {
    std::string text = "No.\tName\tPrice\n";
    for (int i = 0; i < 5000; ++i) {
        text += std::to_string(i) + "\tArticle " + std::to_string(i % 97) + "\t" +
                std::to_string(i) + ".50\n";
    }
    folder.write("long.tsv", text);
    EXPECT_EQ(ofText(text, "long.tsv", {{QUORVANE_TABLE_TOTAL, "Price"}}),
              ofCommand("long.tsv", {"--total", "Price"}));
    EXPECT_EQ(ofFile(folder / "long.tsv", {{QUORVANE_TABLE_SORT, "Name,Price:desc"}}),
              ofCommand("long.tsv", {"--sort", "Name,Price:desc"}));
}

TEST_F(DataTableBytes, AreThoseOfTheCommandWithAStylesheetAndTabs) {
    const std::string sheet =
        "; quorvane 2\n{ name: table-cell, table-heading, table-group, table-total; "
        "style-def: paragraph; size: 31pt }\n";
    folder.write("own.rtfss", sheet);
    folder.write("a.txt", "a\tb\n1\tx,y\n");
    EXPECT_EQ(ofFile(folder / "a.txt",
                     {{QUORVANE_TABLE_STYLESHEET, sheet}, {QUORVANE_TABLE_DELIMITER, "tab"}}),
              ofCommand("a.txt", {"-s", "own.rtfss", "--delimiter", "tab"}));
}

}  // namespace
}  // namespace quorvane::capi
