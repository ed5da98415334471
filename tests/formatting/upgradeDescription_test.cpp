#include "quorvane/formatting/upgradeDescription.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <optional>
#include <regex>
#include <string>
#include <vector>

#include "quorvane/base/text/extendedMark.h"
#include "quorvane/diagnostics/description/DescriptionCheck.h"
#include "quorvane/driver/CRtfDriver.h"
#include "quorvane/formatting/ShownTexts.h"
#include "quorvane/formatting/upgradeStyleSheet.h"
#include "tests/diagnostics/randomDescriptions.h"
#include "tests/formatting/messagesOf.h"
#include "tests/support/FakePlatform.h"

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

const std::string styleSheet =
    "{ name: normal; style-def: s; format: \\fs20 }\n"
    "{ name: x; style-def: s; format: \\b }\n"
    "{ name: b; style-def: cs; format: \\i }\n"
    "{ name: 12; style-def: s; format: \\i }\n"
    "{ name: strong; style-def: cs; format: \\b }\n";

/// A page on which the rows of both languages have the same width.
std::string withText(const std::string& text) {
    return "(doc\n(paper-width=11906)\n(paper-height=16838)\n(left-margin=1533)\n"
           "(right-margin=1533)\n(page-number-start=1)\n(r\n(c\n(p\n(pt=" +
           text + ")\np)\nc)\nr)\ndoc)\n";
}

std::string upgraded(const std::string& text) {
    const Upgrade upgrade = upgradedDescription(text, styleSheet);
    EXPECT_THAT(messagesOf(upgrade.errors), IsEmpty());
    return upgrade.text;
}

std::vector<std::string> errorsOf(const std::string& text,
                                  const std::optional<std::string>& sheet = styleSheet) {
    const Upgrade upgrade = upgradedDescription(text, sheet);
    EXPECT_EQ(upgrade.text, "");
    return messagesOf(upgrade.errors);
}

/// What the paragraph of such a text has in the extended language.
std::string leavesFor(const std::string& text) {
    const std::string all = upgraded(withText(text));
    const std::size_t begin = all.find("(p\n") + 3;
    return all.substr(begin, all.find("      p)") - begin);
}

TEST(UpgradeDescription, WritesTheExtendedLanguage) {
    EXPECT_EQ(upgraded("(doc\n(r\n(c\n(p\n(pt=a)\np)\nc)\nr)\ndoc)\n"),
              "; quorvane 2\n(doc\n  (paper-width=12242)\n  (paper-height=15842)\n"
              "  (page-number-start=2)\n  (r\n    (c\n      (p\n        (pt=a)\n      p)\n    c)\n"
              "  r)\ndoc)\n");
}

TEST(UpgradeDescription, LeavesAnExtendedDescriptionAsItIs) {
    const std::string text = "; quorvane 2\n(doc\n  (r\n (c\n";
    EXPECT_EQ(upgraded(text), text);
}

TEST(UpgradeDescription, ShowsTextsAsTheyAreRead) {
    EXPECT_EQ(leavesFor(R"(caf\'e9 \{a\} \\ \'28b\'29)"), "        (pt=café {a} \\ (b))\n");
    EXPECT_EQ(leavesFor(R"(\u8364  \u-10179\u-8704 {\uc1\u322l}\emdash  x\tab y)"),
              "        (pt=€ 😀ł— x\ty)\n");
    EXPECT_EQ(leavesFor("€ and {x}"), "        (pt=€ and x)\n");
    EXPECT_EQ(leavesFor("a; b"), "        (pt=a; b)\n");
}

TEST(UpgradeDescription, WritesTheLinesOfATextOnLines) {
    EXPECT_EQ(leavesFor(R"(one\line two\line )"),
              "        (pt=\"\"\"\n          one\n          two\n\n          \"\"\")\n");
}

TEST(UpgradeDescription, KeepsBlanksAtTheEndsOfAText) {
    EXPECT_EQ(leavesFor("{} a {}"), "        (pt=\"\"\" a \"\"\")\n");
}

TEST(UpgradeDescription, KeepsInlineStylesAndDropsThoseWithoutAnEffect) {
    EXPECT_EQ(leavesFor("<strong=8> to <nosuch=18>"), "        (pt=<strong=8> to 18)\n");
    EXPECT_EQ(leavesFor("a < b <1=c>"), "        (pt=a < b <1=c>)\n");
}

TEST(UpgradeDescription, PutsTheWordsBeforeATextApart) {
    EXPECT_EQ(leavesFor(R"(\b\fs28 Total <b=x>)"),
              "        (rtf=\\b\\fs28)\n        (pt=Total <b=x>)\n");
    EXPECT_EQ(leavesFor(R"(\b)"), "        (rtf=\\b)\n");
}

TEST(UpgradeDescription, LeavesWhatIsNoTextAsRtf) {
    EXPECT_EQ(leavesFor(R"(Page \chpgn)"), "        (rtf=Page \\chpgn)\n");
    EXPECT_EQ(leavesFor(R"(a {\b <b=c>} \u8364)"), "        (rtf=a {\\b {\\i c}} €)\n");
    EXPECT_EQ(leavesFor(R"(\'3cstrong=x\'3e)"), "        (rtf=\\'3cstrong=x\\'3e)\n");
    EXPECT_EQ(leavesFor("{}"), "        (rtf={})\n");
    EXPECT_EQ(leavesFor(R"(\~)"), "        (rtf=\\~)\n");
}

TEST(UpgradeDescription, RefusesWordsThatTheLanguageDoesNotTake) {
    EXPECT_THAT(
        errorsOf(withText(R"(a\page b)")),
        ElementsAre("10: The extended language cannot express this: \"\\page\" cannot stand "
                    "here; write words that format text"));
}

TEST(UpgradeDescription, NeedsTheStyleSheetOfInlineStyles) {
    EXPECT_THAT(
        errorsOf(withText("<strong=a>"), std::nullopt),
        ElementsAre(HasSubstr("10: The text has an inline style; its stylesheet is needed")));
    EXPECT_THAT(messagesOf(upgradedDescription(withText("a < b"), std::nullopt).errors), IsEmpty());
}

TEST(UpgradeDescription, RefusesADescriptionWithErrors) {
    EXPECT_THAT(errorsOf("(doc\n(r\n(rb=crimson)\n(c\n(cw=a)\nc)\nr)\ndoc)"),
                ElementsAre("3: crimson isn't a recognized color; did you mean dark-red? (correct "
                            "this before the upgrade)",
                            HasSubstr("5: Value for cell-width should be numeric; ")));
    EXPECT_THAT(errorsOf("(doc\n(r\n(r\n(c\nc)\nr)\ndoc)"), Not(IsEmpty()));
    EXPECT_THAT(errorsOf("(doc\n(r\n(c\nc)\nr)\ndoc)\n(doc\ndoc)"), Not(IsEmpty()));
}

TEST(UpgradeDescription, PutsCommentsOnLinesOfTheirOwn) {
    EXPECT_THAT(upgraded("; all\n(doc ; one\n(r;two\n(c\n(cw=100) ; three\n(p\n(pt=a) ; four\np)\n"
                         "c) ; five\n\n; six\nr)\ndoc)\n"),
                HasSubstr("; quorvane 2\n; all\n; one\n(doc\n"));
    EXPECT_THAT(upgraded("(doc\n(r\n(c\n(cw=100) ; three\n(p\n(pt=a) ; four\np)\nc) ; five\n\n"
                         "; six\nr)\ndoc)\n"),
                HasSubstr("    (c\n      ; three\n      (p\n        ; four\n        (pt=a)\n"
                          "      p)\n      ; five\n    c)\n\n    ; six\n  r)\n"));
}

TEST(UpgradeDescription, ClosesNodesThatWereLeftOpen) {
    EXPECT_THAT(upgraded("(doc\n(r\n(c\n(para\n(pt=a)\n(row\n(c\nc)\nr)\ndoc)\n"),
                HasSubstr("        (pt=a)\n      para)\n    c)\n  r)\n  (row\n"));
}

TEST(UpgradeDescription, WritesThePageAsItIs) {
    EXPECT_THAT(
        upgraded("(doc\n; size\n(paper-height=16838)\n(left-margin=99999)\n"
                 "(paper-width=11906.4)\n(r\n(c\nc)\nr)\ndoc)\n"),
        HasSubstr("(doc\n  ; size\n  (page=a4)\n  (left-margin=1)\n  (page-number-start=2)\n"
                  "  (r\n    (columns=8840tw)\n"));
    EXPECT_THAT(
        upgraded("(doc\n(paper-width=9000)\n(page-number-start=1)\n(r\n(c\n(cw=100)\nc)\nr)\n"
                 "doc)\n"),
        HasSubstr("(doc\n  (paper-width=9000)\n  (page-number-start=1)\n"
                  "  (paper-height=15842)\n  (r\n    (c\n"));
}

TEST(UpgradeDescription, WritesWidthsAsColumns) {
    const std::string wide = "(r\n(c\n(cw=30)\nc)\n(c\nc)\nr)\n";
    const std::string even = "(r\n(c\nc)\n(c\nc)\nr)\n";
    EXPECT_THAT(upgraded("(doc\n" + wide + even + "doc)\n"),
                HasSubstr("  (r\n    (columns=30 70)\n    (c\n    c)\n    (c\n    c)\n  r)\n  (r\n"
                          "    (c\n"));
    EXPECT_THAT(upgraded("(doc\n" + wide + wide + wide + even + "doc)\n"),
                HasSubstr("  (columns=30 70)\n  (r\n    (c\n    c)\n    (c\n    c)\n  r)\n  (r\n"
                          "    (c\n    c)\n    (c\n    c)\n  r)\n  (r\n    (c\n    c)\n    (c\n"
                          "    c)\n  r)\n  (r\n    (columns=50 50)\n"));
    EXPECT_THAT(upgraded("(doc\n(paper-width=15000)\n(r\n(c\nc)\n(c\nc)\n(c\nc)\nr)\ndoc)\n"),
                HasSubstr("(columns=2947tw 2947tw 2947tw)"));
}

TEST(UpgradeDescription, RefusesATableWiderThanItsPaper) {
    EXPECT_THAT(
        errorsOf("(doc\n(paper-width=6000)\n(r\n(c\nc)\n(c\nc)\nr)\ndoc)\n"),
        ElementsAre(HasSubstr("3: The extended language cannot express this: The columns are "
                              "8840 twips wide, but the paper ends 4299 twips after")));
}

TEST(UpgradeDescription, WritesNamesInPlaceOfNumbers) {
    const std::string text = upgraded(
        "(doc\n(r\n(rb=32)\n(rtb=10)\n(row-key=007)\n(c\n(cb=57)\n(ca=3)\n(cell-key=1.50)\n(cmf=12)"
        "\n(p\n"
        "(pt=0012)\n(ps=0012)\n(pmf=12)\np)\nc)\nr)\ndoc)\n");
    EXPECT_THAT(text,
                HasSubstr("    (rb=silver)\n    (rtb=thin)\n    (row-key=7)\n    (c\n"
                          "      (cb=#990000)\n      (ca=right)\n      (cell-key=1.5)\n      (p\n"
                          "        (pt=0012)\n        (ps=12)\n        (pmf=)\n"));
}

TEST(UpgradeDescription, NamesTheStyleOfParagraphsWithoutOne) {
    const std::string sheet =
        "{ name: body; style-def: s; format: \\fs22 }\n"
        "{ name: normal; style-def: s; format: \\fs20 }\n";
    const std::string text =
        "(doc\n(r\n(c\n(p\n(pt=a)\np)\n(para\n(ps=normal)\n(pt=b)\np)\n(p\n"
        "(pt=c)\n(ps=nosuch)\np)\nc)\nr)\ndoc)\n";
    const Upgrade upgrade = upgradedDescription(text, sheet);
    EXPECT_THAT(upgrade.text, HasSubstr("      (p\n        (ps=body)\n        (pt=a)\n"));
    EXPECT_THAT(upgrade.text, HasSubstr("        (ps=normal)\n        (pt=b)\n"));
    EXPECT_THAT(upgrade.text, HasSubstr("        (pt=c)\n        (ps=body)\n"));
}

TEST(UpgradeDescription, LeavesOutStylesThatTheStyleSheetLacks) {
    const std::string sheet =
        "{ name: reserved; style-def: s }\n{ name: normal; style-def: s }\n"
        "{ name: b; style-def: cs }\n{ name: shaded; style-def: cell }\n";
    const auto described = [](const std::string& cellStyle, const std::string& paraStyle) {
        return "(doc\n(r\n(c\n(cs=" + cellStyle + ")\n(p\n(pt=a)\n(ps=" + paraStyle +
               ")\np)\nc)\nr)\ndoc)\n";
    };
    EXPECT_THAT(upgradedDescription(described("Shaded", "Normal"), sheet).text,
                HasSubstr("    (c\n      (cs=Shaded)\n      (p\n        (pt=a)\n"
                          "        (ps=Normal)\n      p)\n"));
    EXPECT_THAT(upgradedDescription(described("nosuch", "reserved"), sheet).text,
                HasSubstr("    (c\n      (p\n        (pt=a)\n      p)\n"));
    EXPECT_THAT(upgradedDescription(described("nosuch", "nosuch"), std::nullopt).text,
                HasSubstr("    (c\n      (cs=nosuch)\n      (p\n        (pt=a)\n"
                          "        (ps=nosuch)\n      p)\n"));
}

TEST(UpgradeDescription, KeepsTheKindOfLineEnds) {
    EXPECT_THAT(upgraded("(doc\r\n(r\r\n(c\r\n(p\r\n(pt=a\\line b)\r\np)\r\nc)\r\nr)\r\ndoc)\r\n"),
                HasSubstr("(pt=\"\"\"\r\n          a\r\n          b\r\n          \"\"\")\r\n"));
}

/// The document that a driver makes, without what has other numbers in the extended language.
class Document {
public:
    Document(const std::string& description, const std::string& sheet) {
        const Ref<CRtfDriver> driver = CRtfDriver::create(platform_);
        driver->setUnicodeTexts(true);
        driver->setReadsExtended(true);
        driver->RtfObject()->setExtendedStyleSheets(true);
        driver->RtfObject()->LoadStyleSheetFromMemmory(sheet);
        driver->setNotifyErrorHandler(
            [](CRtfDriver&, const RtfError& error) { ADD_FAILURE() << error.description; });
        driver->ParseFromMemmory(description);
        rtf_ = driver->Contents();
        takeEdges();
        const std::size_t begin = rtf_.find("{\\stylesheet");
        rtf_.erase(begin, rtf_.find("}}", begin) + 2 - begin);
        rtf_ = std::regex_replace(rtf_, std::regex(R"(\\s[0-9]+)"), "");
        // A margin is at least a twip there.
        rtf_ = std::regex_replace(rtf_, std::regex(R"(\\margb0)"), "\\margb1");
        // The table ends in a small paragraph, so that no page follows that it fills.
        const std::string small = R"(\pard\plain\sl-20\slmult0\fs2\par)";
        if (const std::size_t end = rtf_.rfind(small); end != std::string::npos) {
            rtf_.erase(end, small.size());
        }
        // A cell with a style that the stylesheet lacks has no color.
        rtf_ = std::regex_replace(rtf_, std::regex(R"(\\clcbpat0)"), "");
    }

    const std::string& rtf() const { return rtf_; }
    const std::vector<int>& edges() const { return edges_; }

private:
    void takeEdges() {
        const std::regex edge(R"(\\cellx(-?[0-9]+))");
        for (std::sregex_iterator found(rtf_.begin(), rtf_.end(), edge), end; found != end;
             ++found) {
            edges_.push_back(std::stoi((*found)[1]));
        }
        rtf_ = std::regex_replace(rtf_, edge, "\\cellx1");
    }

    FakePlatform platform_;
    std::string rtf_;
    std::vector<int> edges_;
};

void expectSamePicture(const std::string& before, const std::string& after) {
    const Document original(before, styleSheet);
    const Document extended(after, upgradedStyleSheet(styleSheet).text);
    ASSERT_TRUE(ShownTexts().areAlike(original.rtf(), extended.rtf()))
        << before << after << original.rtf() << extended.rtf();
    ASSERT_EQ(original.edges().size(), extended.edges().size());
    for (std::size_t i = 0; i < original.edges().size(); ++i) {
        ASSERT_LE(std::abs(original.edges()[i] - extended.edges()[i]), 1) << before << after;
    }
}

/// True for a text that could be upgraded. Those that could not have been refused with a reason.
bool keepsPicture(const std::string& text) {
    const Upgrade upgrade = upgradedDescription(text, styleSheet);
    for (const UpgradeRemark& error : upgrade.errors) {
        EXPECT_GT(error.line, 0) << error.message << text;
        EXPECT_NE(error.message, "");
    }
    if (!upgrade.errors.empty()) {
        EXPECT_EQ(upgrade.text, "");
        return false;
    }
    KnownStyles styles(upgradedStyleSheet(styleSheet).text);
    for (const Diagnostic& diagnostic : checkDescription(upgrade.text, &styles)) {
        EXPECT_EQ(diagnostic.severity, Severity::Warning) << diagnostic.message << upgrade.text;
    }
    EXPECT_EQ(upgradedDescription(upgrade.text, styleSheet).text, upgrade.text);
    EXPECT_EQ(formattedDescription(upgrade.text), upgrade.text);
    expectSamePicture(text, upgrade.text);
    return true;
}

TEST(UpgradeDescription, KeepsThePictureOrSaysWhyNot) {
    RandomDescriptions random(21);
    int upgradedOnes = 0;
    for (int i = 0; i < 150 && !testing::Test::HasFailure(); ++i) {
        std::string text = random.description();
        upgradedOnes += keepsPicture(text) ? 1 : 0;
        upgradedOnes += keepsPicture(random.mutated(text, 1 + random.below(3))) ? 1 : 0;
    }
    EXPECT_GT(upgradedOnes, 30);
}

/// A paragraph's text made of pieces of RTF.
std::string randomText(RandomDescriptions& random) {
    static const std::vector<std::string> pieces{
        "a",          "Total",
        " ",          "  ",
        "<b=",        "<strong=",
        "<nosuch=",   ">",
        "<",          "\\'e9",
        "\\'3c",      "\\'3e",
        "\\'80",      "\\'0a",
        "\\'7",       "\\u8364?",
        "\\u322l",    "\\u9?",
        "\\u65?",     "\\uc0 ",

        "\\u-10179?", "\\u-8704?",
        "\\tab ",     "\\line ",
        "\\line",     "\\par ",
        "\\b ",       "\\b0",
        "\\fs28",     "\\i",
        "{",          "}",
        "\\{",        "\\}",
        "\\\\",       "\\~",
        "\\-",        "\\_",
        "\\emdash ",  "\\chpgn",
        "\\qc ",      "\\page ",
        "\\cs100",    "\\x12 ",
        "\"\"\"",     ";",
        "=",          "€",
        "ł",          "😀",
        "\\*",        "\\b-",
        "\\'2",       "{\\b x}",
        "<b=y>",      "\\cell",
        "\\bullet",   "{\\field{\\*\\fldinst PAGE}{\\fldrslt 1}}"};
    std::string text;
    for (std::size_t i = random.below(7); i > 0; --i) {
        text += pieces[random.below(pieces.size())];
    }
    return text;
}

TEST(UpgradeDescription, ShowsEveryTextAsBeforeOrSaysWhyNot) {
    RandomDescriptions random(22);
    int upgradedOnes = 0;
    for (int i = 0; i < 800 && !testing::Test::HasFailure(); ++i) {
        upgradedOnes += keepsPicture(withText(randomText(random))) ? 1 : 0;
    }
    EXPECT_GT(upgradedOnes, 300);
}

TEST(UpgradeDescription, KeepsThePictureOfGoldenDescriptions) {
    int upgradedOnes = 0;
    for (const std::string& text : textsBelow(QUORVANE_GOLDEN_FOLDER, ".rtfspec")) {
        upgradedOnes += !isMarkedExtended(text) && keepsPicture(text) ? 1 : 0;
    }
    EXPECT_GT(upgradedOnes, 10);
}

/// The lines of a text but for comments and blank lines.
std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    const std::regex line("[^\n]+");
    for (std::sregex_iterator found(text.begin(), text.end(), line), end; found != end; ++found) {
        const std::string whole = found->str();
        if (whole.find_first_not_of(' ') != whole.find(';')) {
            lines.push_back(whole);
        }
    }
    return lines;
}

TEST(UpgradeDescription, MakesTheExtendedExamples) {
    for (const std::string name : {"minimal", "invoice", "price-list", "catalog"}) {
        const std::string original = QUORVANE_EXAMPLES_FOLDER "/" + name;
        const std::string extended = QUORVANE_EXAMPLES_FOLDER "/extended/" + name;
        const std::string sheet = bytesOf(original + ".rtfss");
        EXPECT_EQ(linesOf(upgradedDescription(bytesOf(original + ".rtfspec"), sheet).text),
                  linesOf(bytesOf(extended + ".rtfspec")));
        EXPECT_EQ(linesOf(upgradedStyleSheet(sheet).text), linesOf(bytesOf(extended + ".rtfss")));
    }
}

}  // namespace
}  // namespace quorvane
