#include "quorvane/stylesheet/stylesheetSyntax.h"

#include <gmock/gmock.h>

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> piecesOf(std::string_view text) {
    std::vector<std::string> all;
    Pieces pieces(text, ',');
    while (const auto piece = pieces.next()) {
        all.emplace_back(*piece);
    }
    return all;
}

std::vector<std::string> itemsOf(std::string_view body) {
    std::vector<std::string> all;
    StyleItems items(body);
    while (const StyleItem* const item = items.next()) {
        all.push_back(item->keyword + "=" + std::string(item->value));
    }
    return all;
}

std::vector<std::string> definitionsOf(std::string_view text) {
    std::vector<std::string> bodies;
    BracedTexts definitions(text);
    while (const auto definition = definitions.next()) {
        bodies.emplace_back(definition->body);
    }
    return bodies;
}

TEST(Pieces, StandBetweenSeparators) {
    EXPECT_THAT(piecesOf("a,b,,c"), ElementsAre("a", "b", "", "c"));
    EXPECT_THAT(piecesOf("a,"), ElementsAre("a", ""));
    EXPECT_THAT(piecesOf(""), ElementsAre(""));
}

TEST(StyleItem, HasAKeywordAndAValueWithoutBlanks) {
    const StyleItem item = readStyleItem(" \tFormat :\r\n \\b :x ");

    EXPECT_EQ(item.whole, "Format :\r\n \\b :x");
    EXPECT_EQ(item.writtenKeyword, "Format");
    EXPECT_EQ(item.keyword, "format");
    EXPECT_EQ(item.value, "\\b :x");
    EXPECT_TRUE(item.hasColon());
}

TEST(StyleItem, HasAnEmptyValueWithoutAColon) {
    const StyleItem item = readStyleItem(" format ");

    EXPECT_EQ(item.keyword, "format");
    EXPECT_EQ(item.value, "");
    EXPECT_FALSE(item.hasColon());
    EXPECT_TRUE(readStyleItem("format:").hasColon());
}

TEST(StyleItems, AreSeparatedBySemicolons) {
    EXPECT_THAT(itemsOf("name: a; Next: B"), ElementsAre("name=a", "next=B"));
}

TEST(StyleItems, LeaveOutAnEmptyLastItemOnly) {
    EXPECT_THAT(itemsOf("; name: a;; "), ElementsAre("=", "name=a", "="));
    EXPECT_THAT(itemsOf(" \r\n"), IsEmpty());
}

TEST(StyleSheetFaults, OfTheFirstItemAreKeywordsOtherThanName) {
    EXPECT_EQ(faultOfFirst(readStyleItem("NAME")), std::nullopt);
    EXPECT_EQ(faultOfFirst(readStyleItem("format: \\b")), StyleSheetFault::BadKeyword);
}

std::optional<StyleSheetFault> faultIn(std::string_view text) {
    const StyleItem item = readStyleItem(text);
    return faultOf(item, item.value);
}

TEST(StyleSheetFaults, AreUnknownKeywords) {
    EXPECT_EQ(faultIn("name: a"), StyleSheetFault::BadKeyword);
    EXPECT_EQ(faultIn(""), StyleSheetFault::BadKeyword);
    EXPECT_EQ(faultIn("Based-On"), std::nullopt);
}

TEST(StyleSheetFaults, AreValuesThatAKeywordDoesNotAccept) {
    EXPECT_EQ(faultIn("style-def: cs"), std::nullopt);
    EXPECT_EQ(faultIn("style-def: c"), StyleSheetFault::BadStyleKind);
    EXPECT_EQ(faultIn("additive: yes"), std::nullopt);
    EXPECT_EQ(faultIn("additive"), StyleSheetFault::BadAdditive);
    EXPECT_EQ(faultIn("next: anything"), std::nullopt);
}

TEST(StyleSheetFaults, AreMoreBracesOfOneDirection) {
    EXPECT_EQ(faultOf(countBraces("}{")), std::nullopt);
    EXPECT_EQ(faultOf(countBraces("{}}")), StyleSheetFault::BracesUnderflow);
    EXPECT_EQ(faultOf(countBraces("{{}")), StyleSheetFault::BracesOverflow);
}

TEST(StyleNames, AreSeparatedByCommasAndKeepTheirCase) {
    EXPECT_THAT(styleNamesIn(" Title ,\theading,, a b"),
                ElementsAre("Title", "heading", "", "a b"));
    EXPECT_THAT(styleNamesIn(""), ElementsAre(""));
}

TEST(Braces, AreCounted) {
    EXPECT_EQ(countBraces("}a{b{").opened, 2);
    EXPECT_EQ(countBraces("}a{b{").closed, 1);
}

TEST(LoneBrace, IsNotInATextWhereBracesAlternate) {
    EXPECT_EQ(findLoneBrace(""), "");
    EXPECT_EQ(findLoneBrace("{a} {b}"), "");
}

TEST(LoneBrace, IsTheFirstThatIsNotOneOfAPair) {
    const auto placeIn = [](std::string_view text) {
        return findLoneBrace(text).data() - text.data();
    };
    EXPECT_EQ(placeIn("{a} } {"), 4);
    EXPECT_EQ(placeIn("{a} { {b}"), 4);
    EXPECT_EQ(placeIn("{a} {b"), 4);
}

TEST(BracedTexts, PairTheBracesInTheirOrder) {
    EXPECT_THAT(definitionsOf("a{b}c{d}e"), ElementsAre("b", "d"));
    EXPECT_THAT(definitionsOf("{a{b}c}"), ElementsAre("a{b", "b}c"));
}

TEST(BracedTexts, AreEmptyWhereTheClosingBraceComesFirst) {
    EXPECT_THAT(definitionsOf("}a{"), ElementsAre(""));
    EXPECT_THAT(definitionsOf("none"), IsEmpty());
}

TEST(BracedTextFrom, EndsAtTheNextClosingBrace) {
    const auto found = bracedTextFrom("{a} }{b} c}", 1);

    ASSERT_TRUE(found);
    EXPECT_EQ(found->open, 5U);
    EXPECT_EQ(found->close, 7U);
    EXPECT_EQ(found->body, "b");
}

TEST(BracedTextFrom, EndsWithTheTextWhenNothingClosesIt) {
    EXPECT_EQ(bracedTextFrom("}{ab", 0)->body, "ab");
    EXPECT_FALSE(bracedTextFrom("{a}", 1));
}

}  // namespace
}  // namespace quorvane
