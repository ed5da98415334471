#include "data/csvRows.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "data/recordsSource.h"
#include "tests/data/textReader.h"

namespace quorvane::data {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using Rows = std::vector<std::vector<std::string>>;

/// All rows; an error is a row of its line and its message.
Rows rowsOf(const std::string& bytes, char delimiter = ',') {
    RecordsText text(readerOf(bytes), EncodingChoice::Utf8);
    CsvRows reader(text, delimiter);
    Rows rows;
    std::vector<std::string_view> fields;
    for (;;) {
        try {
            if (!reader.next(fields)) {
                return rows;
            }
            rows.emplace_back(fields.begin(), fields.end());
        } catch (const RecordError& error) {
            rows.push_back({std::to_string(error.line), error.description});
        }
    }
}

constexpr const char* afterQuote =
    "After the quotation mark that closes a field, the next field or row must begin. Write \"\" "
    "for "
    "a quotation mark in a field.";

TEST(CsvRows, SplitsAtDelimitersAndLineEndsOfAllKinds) {
    EXPECT_EQ(rowsOf("a,b\nc,\r\n,d\re"), (Rows{{"a", "b"}, {"c", ""}, {"", "d"}, {"e"}}));
    EXPECT_EQ(rowsOf("a;b,c\n", ';'), (Rows{{"a", "b,c"}}));
}

TEST(CsvRows, PassesOverBlankLines) {
    EXPECT_EQ(rowsOf("\n\r\n\r\ra\n\n\nb\n\n"), (Rows{{"a"}, {"b"}}));
    EXPECT_EQ(rowsOf(""), Rows());
    EXPECT_EQ(rowsOf("\n"), Rows());
}

TEST(CsvRows, TakesWhatStandsBetweenQuotationMarks) {
    EXPECT_EQ(rowsOf("\"a,b\",\"c\r\nd\",\"\"\n\"e \"\"f\"\"\"\"\",g"),
              (Rows{{"a,b", "c\r\nd", ""}, {"e \"f\"\"", "g"}}));
}

TEST(CsvRows, KeepsAQuotationMarkWithinAFieldThatDoesNotBeginWithOne) {
    EXPECT_EQ(rowsOf("a\"b\",c\n 1\"\n"), (Rows{{"a\"b\"", "c"}, {" 1\""}}));
}

TEST(CsvRows, ReportsWhatFollowsAClosingQuotationMarkAndReadsOn) {
    EXPECT_EQ(rowsOf("a\n\"b\"c,d\n\"e\nf\" ,g\nh\n"),
              (Rows{{"a"}, {"2", afterQuote}, {"3", afterQuote}, {"h"}}));
}

TEST(CsvRows, ReportsAQuotationMarkThatIsNotClosedAndEnds) {
    EXPECT_EQ(rowsOf("a\n\nb,\"c\nd\n"),
              (Rows{{"a"}, {"3", "A quotation mark opens a field, and none closes it."}}));
    EXPECT_EQ(rowsOf("\""), (Rows{{"1", "A quotation mark opens a field, and none closes it."}}));
}

TEST(CsvRows, KnowsTheLineOfEachRow) {
    RecordsText text(readerOf("\na\r\n\"b\nc\r\nd\re\"\nf\n"), EncodingChoice::Utf8);
    CsvRows rows(text, ',');
    std::vector<std::string_view> fields;
    std::vector<std::int64_t> lines;
    while (rows.next(fields)) {
        lines.push_back(rows.line());
    }
    EXPECT_THAT(lines, ElementsAre(2, 3, 7));
}

TEST(CsvRows, ReadsTheSameWhereverTheBlocksOfAFileEnd) {
    const std::string row = "one,\"t\"\"w\r\no\",three\r\n";
    for (std::size_t shift = 0; shift < row.size(); ++shift) {
        std::string bytes(65536 - shift, 'x');
        bytes += "\n" + row + row;
        const Rows rows = rowsOf(bytes);
        ASSERT_EQ(rows.size(), 3U);
        EXPECT_THAT(rows[1], ElementsAre("one", "t\"w\r\no", "three")) << shift;
        EXPECT_EQ(rows[2], rows[1]) << shift;
    }
}

TEST(CsvRows, RefusesARowThatIsTooLongAndNeedsLittleMemoryForIt) {
    std::size_t given = 0;
    const auto endless = [&](std::span<char> block) {
        given += block.size();
        std::fill(block.begin(), block.end(), 'x');
        return block.size();
    };
    RecordsText text(endless, EncodingChoice::Utf8);
    CsvRows rows(text, ',');
    std::vector<std::string_view> fields;
    EXPECT_THROW(rows.next(fields), RecordError);
    EXPECT_LT(given, 2 * longestRecord);
    EXPECT_FALSE(rows.next(fields));
}

TEST(CsvRows, NeedsLittleMemoryForBlankLines) {
    std::size_t left = 100;
    const auto blank = [&](std::span<char> block) -> std::size_t {
        if (left == 0) {
            return 0;
        }
        --left;
        std::fill(block.begin(), block.end(), '\n');
        return block.size();
    };
    RecordsText text(blank, EncodingChoice::Utf8);
    CsvRows rows(text, ',');
    std::vector<std::string_view> fields;
    EXPECT_FALSE(rows.next(fields));
    EXPECT_LE(text.size(), std::size_t{256} * 1024);
}

}  // namespace
}  // namespace quorvane::data
