#include "quorvane/diagnostics/engine/withoutIgnored.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "quorvane/diagnostics/description/DescriptionCheck.h"
#include "quorvane/diagnostics/engine/diagnosticRules.h"
#include "quorvane/diagnostics/stylesheet/StyleSheetCheck.h"

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> shown(const std::vector<Diagnostic>& diagnostics) {
    std::vector<std::string> list;
    for (const Diagnostic& diagnostic : diagnostics) {
        list.push_back(std::to_string(diagnostic.place.line) + " " +
                       std::string(diagnosticRule(diagnostic.id).identifier));
    }
    return list;
}

/// What is left of a description with these lines in a row.
std::vector<std::string> leftOf(const std::string& lines) {
    const std::string text = "(doc\n(r\n" + lines + "(c\nc)\nr)\ndoc)\n";
    return shown(withoutIgnored(checkDescription(text), text, CheckedLanguage::Description));
}

std::vector<std::string> leftOfSheet(const std::string& text) {
    return shown(withoutIgnored(checkStyleSheet(text), text, CheckedLanguage::StyleSheet));
}

TEST(IgnoreComments, AreAboutTheNextLine) {
    EXPECT_THAT(leftOf("(rb=x)\n(rtb=y)\n"), ElementsAre("3 wrong-color", "4 wrong-border"));
    EXPECT_THAT(leftOf("; quorvane: ignore wrong-color\n(rb=x)\n(rtb=y)\n"),
                ElementsAre("5 wrong-border"));
    EXPECT_THAT(leftOf("(rb=x)\n; quorvane: ignore wrong-color\n(rtb=y)\n"),
                ElementsAre("3 wrong-color", "5 wrong-border"));
}

TEST(IgnoreComments, ReachOverBlankLinesAndOtherComments) {
    EXPECT_THAT(leftOf("; quorvane: ignore wrong-color\r\n\r\n; the color of the house\n(rb=x)\n"),
                IsEmpty());
    EXPECT_THAT(leftOf("; quorvane: ignore wrong-border\n; quorvane: ignore wrong-color\n(rb=x)\n"),
                IsEmpty());
}

TEST(IgnoreComments, TakeSeveralIdentifiers) {
    for (const char* list :
         {"wrong-border, wrong-color", "wrong-border,wrong-color", "wrong-border wrong-color ,"}) {
        EXPECT_THAT(leftOf("; quorvane: ignore " + std::string(list) + "\n(rb=x)\n"), IsEmpty())
            << list;
    }
}

TEST(IgnoreComments, MayBeWrittenWithoutBlanksAndInCapitals) {
    EXPECT_THAT(leftOf(";quorvane:ignore wrong-color\n(rb=x)\n"), IsEmpty());
    EXPECT_THAT(leftOf("  ;; Quorvane:  ignore wrong-color\n(rb=x)\n"), IsEmpty());
}

TEST(IgnoreComments, ThatLeaveNothingOutAreNotReported) {
    EXPECT_THAT(leftOf("; quorvane: ignore wrong-color\n(rb=red)\n"), IsEmpty());
    EXPECT_THAT(leftOf("; quorvane rocks\n; about quorvane: it ignores much\n(rb=red)\n"),
                IsEmpty());
}

TEST(IgnoreComments, InAStyleSheetAreAboutTheNextDefinition) {
    const std::string broken = "{ name: a; style-def: s;\nformat: \\b; format: \\i }\n";
    EXPECT_THAT(leftOfSheet(broken), ElementsAre("2 repeated-item"));
    EXPECT_THAT(leftOfSheet("; quorvane: ignore repeated-item\n" + broken + broken),
                ElementsAre("4 duplicate-style", "5 repeated-item"));
    EXPECT_THAT(leftOfSheet("The house.\n; quorvane: ignore repeated-item\nprose\n" + broken),
                IsEmpty());
}

TEST(IgnoreComments, DoNotCountWithinBraces) {
    EXPECT_THAT(leftOfSheet("{ name: a; style-def: s\n; quorvane: ignore bad-keyword\n}\n"),
                ElementsAre("2 bad-keyword"));
}

std::vector<std::string> messagesAbout(const std::string& comment) {
    std::vector<std::string> messages;
    for (const Diagnostic& diagnostic :
         checkDescription("(doc\n(r\n" + comment + "\n(c\nc)\nr)\ndoc)\n")) {
        messages.push_back(diagnostic.message + " " + diagnostic.hint);
    }
    return messages;
}

TEST(IgnoreComments, ThatCannotBeFollowedAreReported) {
    EXPECT_THAT(messagesAbout("; quorvane: ignore wrong-colour, wrong-border"),
                ElementsAre("Invalid quorvane comment: there is no diagnostic wrong-colour. "
                            "did you mean wrong-color?"));
    EXPECT_THAT(messagesAbout("; quorvane: ingore wrong-color"),
                ElementsAre("Invalid quorvane comment: ingore is not a command. did you "
                            "mean ignore?"));
    EXPECT_THAT(messagesAbout("; quorvane: ignore"),
                ElementsAre("Invalid quorvane comment: the identifier is missing. write "
                            "the identifier that the report shows in brackets"));
    EXPECT_THAT(messagesAbout("; quorvane:"),
                ElementsAre("Invalid quorvane comment: the command is missing. write ignore and an "
                            "identifier"));
}

}  // namespace
}  // namespace quorvane
