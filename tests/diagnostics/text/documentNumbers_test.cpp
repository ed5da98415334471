#include "quorvane/diagnostics/text/documentNumbers.h"

#include <gtest/gtest.h>

#include <string>

namespace quorvane {
namespace {

/// What a control names by a number that no document has.
std::string missing(const std::string& text, const KnownStyles* styles = nullptr) {
    const RtfControl control = rtfControlAt(text, 0);
    const RtfWord* const word = findRtfWord(control.word);
    return word ? std::string(missingReference(*word, control, styles)) : "no control word";
}

TEST(DocumentNumbers, OfFontsAreFrom0To17) {
    for (const char* word : {"\\f", "\\af"}) {
        EXPECT_EQ(missing(word), "") << word;
        EXPECT_EQ(missing(word + std::string("0")), "") << word;
        EXPECT_EQ(missing(word + std::string("17")), "") << word;
        EXPECT_EQ(missing(word + std::string("18")), "font") << word;
        EXPECT_EQ(missing(word + std::string("-1")), "font") << word;
    }
}

TEST(DocumentNumbers, OfColorsAreFrom0To57) {
    for (const char* word :
         {"\\cf", "\\cb", "\\acf", "\\highlight", "\\chcbpat", "\\clcbpat", "\\brdrcf"}) {
        EXPECT_EQ(missing(word), "") << word;
        EXPECT_EQ(missing(word + std::string("57")), "") << word;
        EXPECT_EQ(missing(word + std::string("58")), "color") << word;
        EXPECT_EQ(missing(word + std::string("-1")), "color") << word;
    }
}

TEST(DocumentNumbers, OfStylesAreThoseOfTheStyleSheet) {
    const KnownStyles styles(
        "{ name: normal; style-def: s }{ name: b; style-def: s }{ name: c; style-def: cs }");
    EXPECT_EQ(missing("\\s100", &styles), "");
    EXPECT_EQ(missing("\\s101", &styles), "");
    EXPECT_EQ(missing("\\s102", &styles), "style");
    EXPECT_EQ(missing("\\s99", &styles), "style");
    EXPECT_EQ(missing("\\cs100", &styles), "");
    EXPECT_EQ(missing("\\cs101", &styles), "style");
}

TEST(DocumentNumbers, HaveThe0ForParagraphsWithoutAStyle) {
    const KnownStyles styles("{ name: normal; style-def: s }{ name: c; style-def: cs }");
    EXPECT_EQ(missing("\\s0", &styles), "");
    EXPECT_EQ(missing("\\s", &styles), "");
    EXPECT_EQ(missing("\\cs0", &styles), "style");
}

TEST(DocumentNumbers, OfStylesAreNotKnownWithoutAStyleSheet) {
    EXPECT_EQ(missing("\\s4711"), "");
    EXPECT_EQ(missing("\\cs4711"), "");
}

TEST(DocumentNumbers, AreNoneOfTablesAndSections) {
    EXPECT_EQ(missing("\\ts1"), "style");
    EXPECT_EQ(missing("\\ds1"), "style");
}

TEST(DocumentNumbers, AreOfNoConcernToOtherControls) {
    EXPECT_EQ(missing("\\fs4711"), "");
    EXPECT_EQ(missing("\\b0"), "");
    EXPECT_EQ(missing("\\u4711"), "");
}

}  // namespace
}  // namespace quorvane
