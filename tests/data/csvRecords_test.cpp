#include "data/csvRecords.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "data/csvDelimiter.h"
#include "tests/data/textReader.h"

namespace quorvane::data {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(CsvDelimiter, IsTheOneThatTheRowsHaveAsOftenAsTheFirst) {
    EXPECT_EQ(csvDelimiter("a,b\n1,2\n"), ',');
    EXPECT_EQ(csvDelimiter("No.;Price\n1;2,50\n2;3,50\n"), ';');
    EXPECT_EQ(csvDelimiter("a\tb\nx, y; z\t1\n"), '\t');
    EXPECT_EQ(csvDelimiter("a|b\n1|2\n"), '|');
    EXPECT_EQ(csvDelimiter("name\nx;y\n"), ',');
    EXPECT_EQ(csvDelimiter(""), ',');
}

TEST(CsvDelimiter, DoesNotCountWhatStandsBetweenQuotationMarks) {
    EXPECT_EQ(csvDelimiter("\"a,b,c\";d\n\"1,2,3\";4\n"), ';');
}

TEST(CsvRecords, HaveTheNamesOfTheHeadingRow) {
    RecordsText text(readerOf("No.;;Price\n1;x;2,50\n\n2;y;3\n"), EncodingChoice::Auto);
    CsvRecords records(text, std::nullopt);
    EXPECT_THAT(records.names(), ElementsAre("No.", "Column 2", "Price"));
    std::vector<std::string_view> fields;
    ASSERT_TRUE(records.next(fields));
    EXPECT_THAT(fields, ElementsAre("1", "x", "2,50"));
    ASSERT_TRUE(records.next(fields));
    EXPECT_THAT(fields, ElementsAre("2", "y", "3"));
    EXPECT_EQ(records.line(), 4);
    EXPECT_FALSE(records.next(fields));
}

TEST(CsvRecords, TakeTheDelimiterOfALineThatNamesIt) {
    RecordsText text(readerOf("sep=|\r\na,b|c\r\n1|2\r\n"), EncodingChoice::Auto);
    CsvRecords records(text, std::nullopt);
    EXPECT_THAT(records.names(), ElementsAre("a,b", "c"));
    std::vector<std::string_view> fields;
    ASSERT_TRUE(records.next(fields));
    EXPECT_EQ(records.line(), 3);
}

TEST(CsvRecords, TakeTheDelimiterThatTheyAreGiven) {
    RecordsText text(readerOf("a,b;c\n"), EncodingChoice::Auto);
    EXPECT_THAT(CsvRecords(text, ';').names(), ElementsAre("a,b", "c"));
}

TEST(CsvRecords, ReportARowWithMoreOrFewerFieldsAndReadOn) {
    RecordsText text(readerOf("a,b\n1\n1,2,3\n1,2\n"), EncodingChoice::Auto);
    CsvRecords records(text, ',');
    std::vector<std::string_view> fields;
    const auto errorOfNext = [&]() -> std::string {
        try {
            records.next(fields);
        } catch (const RecordError& error) {
            EXPECT_TRUE(error.canGoOn);
            return std::to_string(error.line) + ": " + error.description;
        }
        return "no error";
    };
    EXPECT_EQ(errorOfNext(), "2: The row has 1 field, and the heading has 2.");
    EXPECT_EQ(errorOfNext(), "3: The row has 3 fields, and the heading has 2.");
    EXPECT_EQ(errorOfNext(), "no error");
    EXPECT_THAT(fields, ElementsAre("1", "2"));
}

std::vector<std::string> nextOf(CsvRecords& records) {
    std::vector<std::string_view> fields;
    records.next(fields);
    return {fields.begin(), fields.end()};
}

TEST(CsvRecords, LeaveOutRowsWhoseFieldsAreAllEmpty) {
    RecordsText text(readerOf(";;\na;;c\n;;\n1;;2\n;\n;3;\n\"\";;\n"), EncodingChoice::Auto);
    CsvRecords records(text, ';');
    EXPECT_THAT(records.names(), ElementsAre("a", "Column 2", "c"));
    EXPECT_TRUE(records.hasHeading(0));
    EXPECT_FALSE(records.hasHeading(1));
    EXPECT_THAT(nextOf(records), ElementsAre("1", "", "2"));
    EXPECT_EQ(records.line(), 4);
    EXPECT_THAT(nextOf(records), ElementsAre("", "3", ""));
    EXPECT_THAT(nextOf(records), IsEmpty());
    RecordsText oneColumn(readerOf("a\n\"\"\n"), EncodingChoice::Auto);
    CsvRecords single(oneColumn, ';');
    EXPECT_THAT(nextOf(single), ElementsAre(""));
}

TEST(CsvRecords, ReadTheFormulaThatKeepsDigitsAsTheyAre) {
    RecordsText text(readerOf("=\"No.\",b,c,d\n=\"0012\",\"=\"\"07\"\"\",=1+1,=\"\"\n"),
                     EncodingChoice::Auto);
    CsvRecords records(text, ',');
    EXPECT_EQ(records.names().front(), "No.");
    EXPECT_THAT(nextOf(records), ElementsAre("0012", "07", "=1+1", ""));
}

TEST(CsvRecords, RefuseMoreFieldsThanAnySpreadsheetHas) {
    RecordsText text(readerOf(std::string(65'536, ',') + "\n"), EncodingChoice::Auto);
    EXPECT_THROW(CsvRecords(text, ','), RecordError);
    RecordsText wide(readerOf("a" + std::string(65'535, ',') + "\n"), EncodingChoice::Auto);
    EXPECT_EQ(CsvRecords(wide, ',').names().size(), 65'536U);
}

TEST(CsvRecords, HaveNoNamesInAnEmptyFile) {
    RecordsText text(readerOf("\n\n"), EncodingChoice::Auto);
    CsvRecords records(text, std::nullopt);
    EXPECT_THAT(records.names(), IsEmpty());
    std::vector<std::string_view> fields;
    EXPECT_FALSE(records.next(fields));
}

}  // namespace
}  // namespace quorvane::data
