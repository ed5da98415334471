#include "quorvane/rtf/RtfGroup.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string_view>

namespace quorvane {
namespace {

/// The destination of the innermost of groups, each of which begins with such a word; one that
/// begins with "*" is marked.
RtfDestination destinationOf(std::initializer_list<std::string_view> words) {
    RtfGroup group;
    for (std::string_view word : words) {
        group = group.inner();
        if (word.starts_with('*')) {
            group.takeMark();
            word.remove_prefix(1);
        }
        group.takeWord(findRtfWord(word));
    }
    return group.destination;
}

TEST(RtfGroup, IsWhatItsFirstWordSays) {
    EXPECT_EQ(destinationOf({"b"}), RtfDestination::Text);
    EXPECT_EQ(destinationOf({"fonttbl"}), RtfDestination::FontTable);
    EXPECT_EQ(destinationOf({"fonttbl", "f"}), RtfDestination::FontTable);
    EXPECT_EQ(destinationOf({"footnote", "b"}), RtfDestination::Other);
    EXPECT_EQ(destinationOf({"*nesttableprops"}), RtfDestination::NestedRow);
}

TEST(RtfGroup, IsNotWhatALaterWordSays) {
    RtfGroup group;
    group.takeWord(findRtfWord("b"));
    group.takeWord(findRtfWord("fonttbl"));
    EXPECT_EQ(group.destination, RtfDestination::Text);
}

TEST(RtfGroup, IsAnInstructionWhereverThatBegins) {
    RtfGroup group;
    group.takeWord(findRtfWord("field"));
    group.takeWord(findRtfWord("fldinst"));
    EXPECT_EQ(group.destination, RtfDestination::Instruction);
}

TEST(RtfGroup, ShowsTheResultsOfFieldsAndObjects) {
    EXPECT_EQ(destinationOf({"field", "fldrslt"}), RtfDestination::Text);
    EXPECT_EQ(destinationOf({"object", "result"}), RtfDestination::Text);
    EXPECT_EQ(destinationOf({"header", "field", "fldrslt"}), RtfDestination::Other);
    EXPECT_EQ(destinationOf({"fldinst", "field", "fldrslt"}), RtfDestination::Instruction);
}

TEST(RtfGroup, HoldsTheTablesOfBothForms) {
    EXPECT_EQ(destinationOf({"upr", "fonttbl"}), RtfDestination::FontTable);
    EXPECT_EQ(destinationOf({"upr", "*ud", "fonttbl"}), RtfDestination::Other);
}

TEST(RtfGroup, IsSkippedWhereItIsMarkedAndItsWordUnknown) {
    EXPECT_EQ(destinationOf({"*odd"}), RtfDestination::Skipped);
    EXPECT_EQ(destinationOf({"*odd", "fonttbl"}), RtfDestination::Skipped);
    EXPECT_EQ(destinationOf({"odd"}), RtfDestination::Text);
    EXPECT_EQ(destinationOf({"*b"}), RtfDestination::Text);
    EXPECT_EQ(destinationOf({"stylesheet", "odd"}), RtfDestination::StyleSheet);
}

TEST(RtfGroup, ConcernsTheDocumentWhereItIsShownOrDefinesANestedRow) {
    EXPECT_TRUE(RtfGroup{RtfDestination::Text}.isOfDocument());
    EXPECT_TRUE(RtfGroup{RtfDestination::NestedRow}.isOfDocument());
    EXPECT_FALSE(RtfGroup{RtfDestination::Other}.isOfDocument());
    EXPECT_FALSE(RtfGroup{RtfDestination::Skipped}.isOfDocument());
}

}  // namespace
}  // namespace quorvane
