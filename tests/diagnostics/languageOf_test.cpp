#include "quorvane/diagnostics/languageOf.h"

#include <gtest/gtest.h>

#include <string>

namespace quorvane {
namespace {

TEST(LanguageOf, IsDescriptionHoweverManyBracesItsTextsHold) {
    EXPECT_EQ(languageOf("(doc\n(r\n(c\n(p\n(pt={\\b A}{\\i B}{\\b C}{\\i D}{\\b E}{\\i F}{\\b G}"
                         "{\\i H}{\\b I}{\\i J})\np)\nc)\nr)\ndoc)\n"),
              CheckedLanguage::Description);
}

TEST(LanguageOf, IsDescriptionAfterBlankLinesAndComments) {
    EXPECT_EQ(languageOf("\r\n ; {a}{b}{c}\r\n\t(doc\r\n(r {{{{{{"), CheckedLanguage::Description);
}

TEST(LanguageOf, IsStyleSheetWhereABraceStandsFirst) {
    EXPECT_EQ(languageOf("; (p\n; (pt=Total)\n; p)\n { name: a;\n(pt=x)\n(pt=y)\n}"),
              CheckedLanguage::StyleSheet);
}

TEST(LanguageOf, IsRtfWhereABraceAndABackslashStandFirst) {
    EXPECT_EQ(languageOf("{\\rtf1 (doc\n"), CheckedLanguage::Rtf);
}

TEST(LanguageOf, GoesByTheCountWhereSomethingElseStandsFirst) {
    EXPECT_EQ(languageOf("Styles { name: a } { name: b }"), CheckedLanguage::StyleSheet);
    EXPECT_EQ(languageOf("(c) 2025 The printers\n{ name: a }"), CheckedLanguage::StyleSheet);
    EXPECT_EQ(languageOf("A list\n(doc\n(r\n"), CheckedLanguage::Description);
    EXPECT_EQ(languageOf(""), CheckedLanguage::Description);
}

TEST(LanguageOf, IsRtfThatIsBrokenWhereABackslashFollowsTheFirstBrace) {
    for (const char* text :
         {"{ \\rtf1 {a}", "\xEF\xBB\xBF{\\rtf1 {a}{b}{c}", "a\n{\\b x}{y}", "\\rtf1 a}"}) {
        EXPECT_EQ(languageOf(text), CheckedLanguage::Rtf) << text;
    }
}

TEST(LanguageOf, IsThatOfTheExtensionWhereTheContentIsAmbiguous) {
    EXPECT_EQ(languageOf("", "a.rtfss"), CheckedLanguage::StyleSheet);
    EXPECT_EQ(languageOf("; none yet\n", "B.RTFSS"), CheckedLanguage::StyleSheet);
    EXPECT_EQ(languageOf("Styles to come.", "a.rtfss"), CheckedLanguage::StyleSheet);
    EXPECT_EQ(languageOf("", "a.rtfspec"), CheckedLanguage::Description);
    EXPECT_EQ(languageOf("", "a.rtf"), CheckedLanguage::Rtf);
    EXPECT_EQ(languageOf("rtf1 {a}", "a.rtf"), CheckedLanguage::Rtf);
    EXPECT_EQ(languageOf("{rtf1 a}", "a.rtf"), CheckedLanguage::Rtf);
    EXPECT_EQ(languageOf("(doc\n(r\n", "a.rtf"), CheckedLanguage::Description);
    EXPECT_EQ(languageOf("{ name: a }", "a.rtfspec"), CheckedLanguage::StyleSheet);
    EXPECT_EQ(languageOf("int main(void) { return 0; }", "a.rtfspec"),
              CheckedLanguage::Description);
    EXPECT_EQ(languageOf("(doc\n", "a.rtfss"), CheckedLanguage::Description);
}

TEST(LanguageOf, LooksAfterTheMarkOfUtf8AndIntoUtf16) {
    EXPECT_EQ(languageOf("\xEF\xBB\xBF(doc\n(r {{{{"), CheckedLanguage::Description);
    EXPECT_EQ(languageOf(std::string("\xFF\xFE{\0 \0n\0a\0m\0e\0:\0", 16)),
              CheckedLanguage::StyleSheet);
    EXPECT_EQ(languageOf(std::string("\0(\0d\0o\0c\0\n", 10), "a.rtfss"),
              CheckedLanguage::Description);
}

TEST(OpeningOfDescription, IsTheFirstLineThatSaysSomething) {
    EXPECT_EQ(openingOfDescription("\n; (r\n  (doc ; x\n(r"), "(doc ; x");
    EXPECT_EQ(openingOfDescription("{ name: a }\n(doc\n"), "");
    EXPECT_EQ(openingOfDescription(""), "");
}

}  // namespace
}  // namespace quorvane
