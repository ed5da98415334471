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

TEST(LanguageOf, IsDescriptionBehindBlankLinesAndComments) {
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

}  // namespace
}  // namespace quorvane
