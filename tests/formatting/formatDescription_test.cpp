#include "quorvane/formatting/formatDescription.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "quorvane/driver/CRtfDriver.h"
#include "tests/diagnostics/randomDescriptions.h"
#include "tests/support/FakePlatform.h"

namespace quorvane {
namespace {

TEST(FormatDescription, IndentsTheLinesOfANode) {
    EXPECT_EQ(formattedDescription("(doc\n(r\n(c\n(p\n(pt=a)\np)\nc)\nr)\ndoc)\n"),
              "(doc\n  (r\n    (c\n      (p\n        (pt=a)\n      p)\n    c)\n  r)\ndoc)\n");
}

TEST(FormatDescription, WritesLongOrShortNames) {
    const std::string mixed =
        "(doc\n(row\n(rb=red)\n(c\n(cell-key=1)\n(para\n(pt=a)\np)\nc)\nr)\ndoc)\n";
    EXPECT_EQ(formattedDescription(mixed, NameForm::Long),
              "(doc\n  (row\n    (row-backcolor=red)\n    (cell\n      (cell-key=1)\n      (para\n"
              "        (para-text=a)\n      para)\n    cell)\n  row)\ndoc)\n");
    EXPECT_EQ(formattedDescription(mixed, NameForm::Short),
              "(doc\n  (r\n    (rb=red)\n    (c\n      (cell-key=1)\n      (p\n        (pt=a)\n"
              "      p)\n    c)\n  r)\ndoc)\n");
}

TEST(FormatDescription, KeepsCommentsAndOneBlankLine) {
    EXPECT_EQ(formattedDescription(
                  "\n\n;first\n\n\n\n(doc;x\n; in\n(r   ;  y\nr)\t; z\n\n; out\ndoc)\n\n"),
              ";first\n\n(doc ;x\n  ; in\n  (r ;  y\n  r) ; z\n\n  ; out\ndoc)\n");
}

TEST(FormatDescription, KeepsValuesOfSeveralLinesInTheExtendedLanguage) {
    const std::string formatted =
        "; quorvane 2\n(doc\n  (r\n    (c\n      (p\n        (pt=\"\"\"\n ; a  \n\n b)\n "
        "\"\"\")\n      p)\n    c)\n  r)\ndoc)\n";
    EXPECT_EQ(formattedDescription("; quorvane 2\n(doc\n(r\n(c\n(p\n(pt= \"\"\"\n ; a  \n\n b)\n "
                                   "\"\"\")  \np)\nc)\nr)\ndoc)"),
              formatted);
    EXPECT_EQ(formattedDescription(formatted), formatted);
}

TEST(FormatDescription, EndsTheLinesOfAValueAsAllOthers) {
    EXPECT_EQ(
        formattedDescription("; quorvane 2\r\n(doc\r\n(r\r\n(C\r\n(pt=\"\"\"a\nb\"\"\")\r\nC)\r\n"
                             "r)\r\ndoc)"),
        "; quorvane 2\r\n(doc\r\n  (r\r\n    (c\r\n      (pt=\"\"\"a\r\nb\"\"\")\r\n    c)\r\n"
        "  r)\r\ndoc)\r\n");
}

TEST(FormatDescription, LeavesTextWithASemicolonAloneInTheExtendedLanguage) {
    EXPECT_EQ(formattedDescription("; quorvane 2\n(doc\n(r\n(c\n(p\n( pt = a;  (b) )\np)\nc)\nr)"
                                   "\ndoc)"),
              "; quorvane 2\n(doc\n  (r\n    (c\n      (p\n        (pt=a;  (b))\n      p)\n    "
              "c)\n  r)\ndoc)\n");
}

TEST(FormatDescription, TakesBlanksFromKeysAndValues) {
    EXPECT_EQ(formattedDescription("(doc\n(  paper-width =  9000 )  ; wide\ndoc)"),
              "(doc\n  (paper-width=9000) ; wide\ndoc)\n");
}

TEST(FormatDescription, WritesNamesOfNodesInLowerCase) {
    EXPECT_EQ(formattedDescription("(doc\n(Row\n(C\nCELL)\nr)\n(r\nR)\ndoc)\n"),
              "(doc\n  (row\n    (c\n    cell)\n  r)\n  (r\n  r)\ndoc)\n");
}

TEST(FormatDescription, KeepsTheKindOfLineEnds) {
    EXPECT_EQ(formattedDescription("(doc\r\n(r\nr)\rdoc)"), "(doc\r\n  (r\r\n  r)\r\ndoc)\r\n");
}

TEST(FormatDescription, KeepsUnreadableLines) {
    EXPECT_EQ(formattedDescription("(doc\n  (pt Total)\ntext\n(a) ;=x)\ndoc)"),
              "(doc\n  (pt Total)\n  text\n  (a) ;=x)\ndoc)\n");
}

TEST(FormatDescription, IndentsWhatAnOpenerCloses) {
    EXPECT_EQ(formattedDescription("(doc\n(r\n(c\n(p\n(pt=a)\n(r\n(c\nc)\nr)\ndoc)\n"),
              "(doc\n  (r\n    (c\n      (p\n        (pt=a)\n  (r\n    (c\n    c)\n  r)\ndoc)\n");
}

TEST(FormatDescription, KeepsNamesWhereAnotherFormWouldBeRepaired) {
    const std::string rows = "(doc\n  (row\n  (row\n    (c\n    c)\n  r)\ndoc)\n";
    EXPECT_EQ(formattedDescription(rows, NameForm::Short), rows);
    EXPECT_EQ(formattedDescription("(doc\n(R\n(R\n(c\nc)\nr)\ndoc)\n"),
              "(doc\n  (R\n  (R\n    (c\n    c)\n  r)\ndoc)\n");
}

TEST(FormatDescription, LeavesAnEmptyTextEmpty) {
    EXPECT_EQ(formattedDescription(""), "");
    EXPECT_EQ(formattedDescription(" \n\n\t\n"), "");
}

/// What a driver makes of a text: the errors without their lines, and the document.
std::vector<std::string> outcomeOf(const std::string& text, bool isChecked) {
    FakePlatform platform;
    std::vector<std::string> outcome;
    const Ref<CRtfDriver> driver = CRtfDriver::create(platform);
    driver->setErroneousInput(isChecked);
    driver->setNotifyErrorHandler(
        [&](CRtfDriver&, const RtfError& error) { outcome.push_back(error.description); });
    driver->ParseFromMemmory(text);
    driver->setNotifyErrorHandler({});
    outcome.push_back(driver->Contents());
    return outcome;
}

void expectSameOutcomes(const std::string& text) {
    for (const NameForm names : {NameForm::Kept, NameForm::Long, NameForm::Short}) {
        const std::string formatted = formattedDescription(text, names);
        ASSERT_EQ(formattedDescription(formatted, names), formatted) << text;
        std::vector<std::string> before = outcomeOf(text, false);
        std::vector<std::string> after = outcomeOf(formatted, false);
        ASSERT_EQ(after.back(), before.back()) << text << formatted;
        ASSERT_EQ(after.size(), before.size()) << text << formatted;
        before = outcomeOf(text, true);
        after = outcomeOf(formatted, true);
        ASSERT_EQ(after.back(), before.back()) << text << formatted;
        ASSERT_EQ(after.size(), before.size()) << text << formatted;
    }
}

TEST(FormatDescription, ChangesNoDocumentAndNothingTheSecondTime) {
    RandomDescriptions random(11);
    for (int i = 0; i < 150; ++i) {
        ASSERT_NO_FATAL_FAILURE(expectSameOutcomes(random.description()));
        ASSERT_NO_FATAL_FAILURE(
            expectSameOutcomes(random.mutated(random.description(), 1 + random.below(5))));
    }
}

TEST(FormatDescription, ChangesNoGoldenDocument) {
    RandomDescriptions random(12);
    for (const std::string& text : textsBelow(QUORVANE_GOLDEN_FOLDER, ".rtfspec")) {
        ASSERT_NO_FATAL_FAILURE(expectSameOutcomes(text));
        for (int i = 0; i < (text.size() > 5000 ? 0 : 5); ++i) {
            ASSERT_NO_FATAL_FAILURE(expectSameOutcomes(random.mutated(text, 1 + random.below(5))));
        }
    }
}

TEST(FormatDescription, FindsTheExampleInvoiceInItsForm) {
    const std::string invoice = bytesOf(QUORVANE_EXAMPLES_FOLDER "/invoice.rtfspec");
    EXPECT_EQ(formattedDescription(invoice), invoice);
    EXPECT_EQ(formattedDescription(formattedDescription(invoice, NameForm::Short), NameForm::Long),
              invoice);
}

}  // namespace
}  // namespace quorvane
