#include "quorvane/diagnostics/text/textColors.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string shown(const TextColors& colors) {
    return std::to_string(colors.text) + " on " + std::to_string(colors.ground);
}

/// The parts of a text that begins in color 1 on color 2, each with its colors.
std::vector<std::string> parts(const std::string& text, const KnownStyles* styles = nullptr) {
    std::vector<std::string> list;
    for (const ColoredPart& part : coloredParts(text, {1, 2}, styles)) {
        list.push_back(std::string(part.part) + ": " + shown(part.colors));
    }
    return list;
}

TEST(TextColors, AfterAFormatAreTheLastOfIt) {
    EXPECT_EQ(shown(colorsAfter("\\fs20\\cf5\\b\\cf6", {1, 2})), "6 on 2");
    EXPECT_EQ(shown(colorsAfter("\\fs20", {1, 2})), "1 on 2");
    EXPECT_EQ(shown(colorsAfter("", {1, 2})), "1 on 2");
}

TEST(TextColors, OfTheGroundHaveSeveralWords) {
    for (const char* word : {"\\highlight", "\\cb", "\\chcbpat", "\\cbpat"}) {
        EXPECT_EQ(shown(colorsAfter(word + std::string("7"), {1, 2})), "1 on 7") << word;
    }
}

TEST(TextColors, OfTheGroundAreTheFirstAgainAfterANumberOf0) {
    EXPECT_THAT(parts("\\highlight7 a\\highlight0 b\\cb8 c\\cb d"),
                ElementsAre("a: 1 on 7", "b: 1 on 2", "c: 1 on 8", "d: 1 on 2"));
}

TEST(TextColors, OfPlainTextAreNoneOnTheFirstGround) {
    EXPECT_THAT(parts("\\cf5\\cb7 a\\plain b"), ElementsAre("a: 5 on 7", "b: 0 on 2"));
}

TEST(TextColors, OfCharactersThatAreControlWordsCount) {
    EXPECT_THAT(parts("\\cf5\\emdash\\cf6\\chpgn\\cf7\\emspace"),
                ElementsAre("\\emdash: 5 on 2", "\\chpgn: 6 on 2"));
}

TEST(TextColors, OfWhatAnObjectShowsCount) {
    EXPECT_THAT(parts("{\\object{\\*\\objdata 00}{\\result\\cf5 a}}"), ElementsAre("a: 5 on 2"));
    EXPECT_THAT(parts("{\\footnote{\\field{\\fldrslt\\cf5 a}}}"), IsEmpty());
}

TEST(TextColors, OfBinaryDataAreNone) {
    EXPECT_THAT(parts("a{\\cf5\\bin3 }}}}b"), ElementsAre("a{\\cf5\\bin3 }}}}b: 1 on 2"));
}

TEST(TextColors, EndWithTheirGroup) {
    EXPECT_THAT(parts("a{\\cf5 b{\\cb6 c}}d"),
                ElementsAre("a: 1 on 2", "b: 5 on 2", "c: 5 on 6", "d: 1 on 2"));
}

TEST(TextColors, OfTextThatStaysTheSameMakeOnePart) {
    EXPECT_THAT(parts("a {b}\\b c\\'e9\\b0  d"), ElementsAre("a {b}\\b c\\'e9\\b0  d: 1 on 2"));
}

TEST(TextColors, OfBlanksAreOfNoConcern) {
    EXPECT_THAT(parts("\\cf5  {\\cf6\\~\\tab }\\cf7 a "), ElementsAre("a: 7 on 2"));
    EXPECT_THAT(parts("  "), IsEmpty());
}

TEST(TextColors, OfInlineStylesAreThoseOfTheirFormats) {
    const KnownStyles styles("{ name: red; style-def: cs; format: \\cf5 }");
    EXPECT_THAT(parts("a<red=b>c", &styles), ElementsAre("a: 1 on 2", "b: 5 on 2", "c: 1 on 2"));
    EXPECT_THAT(parts("a<blue=b>c", &styles), ElementsAre("a<blue=b>c: 1 on 2"));
    EXPECT_THAT(parts("a<red=b>c"), ElementsAre("a<red=b>c: 1 on 2"));
}

TEST(TextColors, OfWhatIsNotSeenAreLeftOut) {
    EXPECT_THAT(parts("{\\footnote \\cf5 a}{\\*\\xyzzyx b}{\\field{\\*\\fldinst PAGE}}"),
                IsEmpty());
    EXPECT_THAT(parts("a\\* b"), ElementsAre("a\\* b: 1 on 2"));
}

TEST(TextColors, OfTheResultOfAFieldCount) {
    EXPECT_THAT(parts("{\\field{\\*\\fldinst PAGE}{\\fldrslt \\cf5 1}}"), ElementsAre("1: 5 on 2"));
}

TEST(TextColors, GoOnAfterAClosingBraceTooMany) {
    EXPECT_THAT(parts("\\cf5 a}b"), ElementsAre("a}b: 5 on 2"));
}

}  // namespace
}  // namespace quorvane
