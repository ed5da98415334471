#include "quorvane/formatting/languageToFormat.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace quorvane {
namespace {

constexpr auto description = CheckedLanguage::Description;
constexpr auto styleSheet = CheckedLanguage::StyleSheet;

TEST(LanguageToFormat, IsDescriptionWhereTheFirstLineThatSaysSomethingOpensANode) {
    for (const char* name : {"", "a.txt", "a.rtfspec", "a.rtfss", "a.rtf"}) {
        EXPECT_EQ(languageToFormat("\n; mine\n  (doc ; {\n", name), description) << name;
        EXPECT_EQ(languageToFormat("(row\nrow)\n", name), description) << name;
    }
}

TEST(LanguageToFormat, IsDescriptionWhereALeafOfAnyNodeStandsFirst) {
    for (const char* text :
         {"(paper-width=1)", "(rb=red)", "(cell-width=50)", "(pt=a)", "( pa = centered )"}) {
        EXPECT_EQ(languageToFormat(text, "a.txt"), description) << text;
    }
}

TEST(LanguageToFormat, IsNoneWhereALeafOfAnUnknownKeyStandsFirst) {
    EXPECT_EQ(languageToFormat("(x=1)\n", "a.lisp"), std::nullopt);
    EXPECT_EQ(languageToFormat("(setq a=(b))\n", "a.lisp"), std::nullopt);
}

TEST(LanguageToFormat, IsStyleSheetWhereADefinitionSaysMoreThanItsName) {
    EXPECT_EQ(languageToFormat("; mine\n{ Name: a; Style-Def: s }", "a.txt"), styleSheet);
    EXPECT_EQ(languageToFormat("{name:a}\n{name:b;format:\\b}", ""), styleSheet);
}

TEST(LanguageToFormat, IsNoneWhereBracesBelongToAnotherLanguage) {
    for (const char* text : {
             "p { color: red; next: x }",
             "styles to come { name: a; format: \\b }",
             "{ name: a }",
             "{ name: a, next: b }",
             "{ color: red; name: a; format: \\b }",
             "{ name: a; format }",
             "{}",
             "{}{ name: a; format: \\b }",
         }) {
        EXPECT_EQ(languageToFormat(text, "a.txt"), std::nullopt) << text;
    }
}

TEST(LanguageToFormat, IsThatOfItsExtensionWhereAFileLacksMuchOfTheLanguage) {
    for (const char* text : {"", "; later\n", "To come.\n"}) {
        EXPECT_EQ(languageToFormat(text, "A.RTFSPEC"), description) << text;
        EXPECT_EQ(languageToFormat(text, "a.rtfss"), styleSheet) << text;
        EXPECT_EQ(languageToFormat(text, "a.txt"), std::nullopt) << text;
        EXPECT_EQ(languageToFormat(text, ""), std::nullopt) << text;
    }
}

TEST(LanguageToFormat, IsStyleSheetOfItsExtensionWithASingleKeyword) {
    for (const char* text : {"{ name: a }", "{ color: red }{ Next: b }", "{ additive: yes }",
                             "{ style-def: s }", "{ based-on: a }"}) {
        EXPECT_EQ(languageToFormat(text, "a.rtfss"), styleSheet) << text;
    }
}

TEST(LanguageToFormat, IsNoneWhereAFileOfItsExtensionsHoldsAnotherLanguage) {
    for (const char* name : {"a.rtfspec", "a.rtfss"}) {
        EXPECT_EQ(languageToFormat("int main(void) { return 0; }\n", name), std::nullopt) << name;
        EXPECT_EQ(languageToFormat("{ color: red }\n", name), std::nullopt) << name;
        EXPECT_EQ(languageToFormat("{\\rtf1 a}", name), std::nullopt) << name;
    }
}

TEST(LanguageToFormat, IsNoneOfRtf) {
    EXPECT_EQ(languageToFormat("{\\rtf1 a}", "a.rtf"), std::nullopt);
    EXPECT_EQ(languageToFormat("{\\rtf1 a}", ""), std::nullopt);
}

TEST(LanguageToFormat, IsNoneWhereAByteOfZeroStands) {
    EXPECT_EQ(languageToFormat(std::string("(doc\n\0", 6), "a.rtfspec"), std::nullopt);
    EXPECT_EQ(languageToFormat(std::string("{\0n\0", 4), "a.rtfss"), std::nullopt);
}

}  // namespace
}  // namespace quorvane
