// What is found about descriptions together with their stylesheet.

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "quorvane/diagnostics/DescriptionCheck.h"
#include "quorvane/diagnostics/StyleSheetCheck.h"
#include "quorvane/diagnostics/diagnosticRules.h"

namespace quorvane {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

std::string line(const Diagnostic& finding) {
    return std::to_string(finding.place.line) + " " +
           std::string(diagnosticRule(finding.id).identifier) +
           (finding.hint.empty() ? "" : ": " + finding.hint);
}

std::vector<std::string> lines(const std::vector<Diagnostic>& findings) {
    std::vector<std::string> list;
    for (const Diagnostic& finding : findings) {
        list.push_back(line(finding));
    }
    return list;
}

/// What is found about a description, each as its line, its identifier and its hint.
std::vector<std::string> found(const std::string& description, const std::string& styleSheet) {
    KnownStyles styles(styleSheet);
    EXPECT_TRUE(styles.areLoaded());
    return lines(checkDescription(description, &styles));
}

constexpr const char* plainSheet =
    "{ name: reserved; style-def: s; format: \\fs20 }\n"
    "{ name: normal; style-def: s; format: \\fs20 }\n"
    "{ name: label; style-def: cs; format: \\b }\n";

TEST(StyleFindings, SayOfWhichKindAStyleIs) {
    EXPECT_THAT(found("(doc\n(r\n(c\n(p\n(pt=a)\n(ps=label)\np)\nc)\nr)\ndoc)\n", plainSheet),
                ElementsAre("6 unknown-paragraph-style: it is a character style"));
}

TEST(StyleFindings, TakeNoLonelyAngleForAnInlineStyle) {
    EXPECT_THAT(
        found("(doc\n(r\n(c\n(p\n(pt=a < b <> <1=c> <label=d>)\n(ps=normal)\np)\nc)\nr)\ndoc)\n",
              plainSheet),
        IsEmpty());
}

TEST(StyleFindings, WarnOfSharedNumbersInTheFirstAndTheLastParagraphOfACell) {
    constexpr const char* shared =
        "(doc\n(r\n(c\n"
        "(p\n(pt=a)\n(ps=reserved)\np)\n"
        "(p\n(pt=b)\n(ps=reserved)\np)\n"
        "(p\n(pt=c)\n(ps=reserved)\np)\n"
        "c)\n(c\n(p\n(pt=d)\n(ps=reserved)\np)\nc)\nr)\ndoc)\n";
    EXPECT_THAT(found(shared, plainSheet),
                ElementsAre("6 shared-style-number", "14 shared-style-number"));
}

TEST(StyleFindings, WarnOfNoSharedNumberWhereNoTextIsWritten) {
    EXPECT_THAT(found("(doc\n(r\n(c\n(p\n(ps=reserved)\np)\nc)\n(c\n(p\n(pt=a)\np)\nc)\nr)\ndoc)\n",
                      plainSheet),
                Not(Contains(HasSubstr("shared-style-number"))));
}

TEST(StyleFindings, TakeTheColourOfATextFromItsStyle) {
    constexpr const char* dark = "{ name: normal; style-def: s; format: \\cf3\\fs20\\cf24 }\n";
    constexpr const char* light = "{ name: normal; style-def: s; format: \\cf3\\fs20\\cf21 }\n";
    constexpr const char* description =
        "(doc\n(r\n(c\n(cb=light-yellow)\n(p\n(pt=a)\n(ps=normal)\np)\nc)\nr)\ndoc)\n";

    EXPECT_THAT(found(description, dark), IsEmpty());
    EXPECT_THAT(found(description, light), ElementsAre("6 low-contrast"));
}

TEST(StyleFindings, TakeAStyleForUsedThatAnotherOneIsBasedOn) {
    const KnownStyles styles(
        "{ name: normal; style-def: s; format: \\fs20 }\n"
        "{ name: base; style-def: s; format: \\fs20 }\n"
        "{ name: lonely; style-def: s; format: \\fs20 }\n"
        "{ name: based; style-def: s; format: \\fs30; based-on: Base }\n");

    EXPECT_THAT(lines(findUnusedStyles(styles)), ElementsAre("3 unused-style", "4 unused-style"));
}

TEST(StyleFindings, KnowTheKindThatWasMeant) {
    EXPECT_THAT(lines(checkStyleSheet("{ name: a; style-def: character; format: \\b }\n")),
                Contains(HasSubstr("a character style is cs")));
    EXPECT_THAT(lines(checkStyleSheet("{ name: a; style-def: paragraph; format: \\b }\n")),
                Contains(HasSubstr("a paragraph style is s")));
}

TEST(Findings, WeighAsErrorOrAsWarning) {
    EXPECT_EQ(severityName(Severity::Error), "error");
    EXPECT_EQ(severityName(Severity::Warning), "warning");
}

}  // namespace
}  // namespace quorvane
