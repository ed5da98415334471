#include "quorvane/base/text/LineReader.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> linesOf(std::string_view text) {
    std::vector<std::string> lines;
    for (LineReader reader(text); !reader.atEnd();) {
        lines.emplace_back(reader.next());
    }
    return lines;
}

TEST(LineReader, EndsLinesAtEveryKindOfLineBreak) {
    EXPECT_THAT(linesOf("a\nb\rc\r\nd"), ElementsAre("a", "b", "c", "d"));
}

TEST(LineReader, ReadsEmptyLines) {
    EXPECT_THAT(linesOf("\n\na\r\r\n\n\r"), ElementsAre("", "", "a", "", "", ""));
}

TEST(LineReader, BeginsNoLineAfterTheLastEnd) {
    EXPECT_THAT(linesOf("a\r\n"), ElementsAre("a"));
    EXPECT_THAT(linesOf(""), IsEmpty());
}

TEST(LineReader, KeepsTheBlanksOfALine) {
    EXPECT_THAT(linesOf(" a\t\n "), ElementsAre(" a\t", " "));
}

TEST(LineReader, SaysWhereALineBegins) {
    LineReader reader("ab\r\nc\rd");
    std::vector<std::size_t> positions;
    while (!reader.atEnd()) {
        positions.push_back(reader.position());
        reader.next();
    }
    EXPECT_THAT(positions, ElementsAre(0, 4, 6));
}

TEST(LineReader, SaysWhetherALineHasAnEnd) {
    LineReader reader("a\r\nb");
    reader.next();
    EXPECT_TRUE(reader.endedLine());
    reader.next();
    EXPECT_FALSE(reader.endedLine());
}

TEST(LineReader, ReadsNothingAtTheEnd) {
    LineReader reader("a\n");
    reader.next();
    EXPECT_TRUE(reader.atEnd());
    EXPECT_EQ(reader.next(), "");
    EXPECT_FALSE(reader.endedLine());
}

}  // namespace
}  // namespace quorvane
