#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <vector>

#include "quorvane/diagnostics/description/DescriptionCheck.h"
#include "quorvane/diagnostics/engine/diagnosticRules.h"
#include "quorvane/diagnostics/rtf/RtfCheck.h"
#include "quorvane/driver/CRtfDriver.h"
#include "tests/support/FakePlatform.h"

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string extended(std::string lines) {
    std::replace(lines.begin(), lines.end(), '|', '\n');
    return "; quorvane 2\n" + lines;
}

/// The diagnostics as "LINE:COLUMN IDENTIFIER: HINT".
std::vector<std::string> checked(const std::string& lines, KnownStyles* styles = nullptr) {
    std::vector<std::string> all;
    for (const Diagnostic& diagnostic :
         checkDescription(extended(lines), styles, TextEncoding::Utf8)) {
        all.push_back(std::to_string(diagnostic.place.line) + ":" +
                      std::to_string(diagnostic.place.column) + " " +
                      std::string(diagnosticRule(diagnostic.id).identifier) +
                      (diagnostic.hint.empty() ? "" : ": " + diagnostic.hint));
    }
    return all;
}

TEST(ExtendedCheck, FindsNothingInASoundDescription) {
    EXPECT_THAT(checked("(doc|(page=a4)|(columns=50 50)|(r|(row-heading=yes)|(c|(p|(pt={a}; <b=)|p)"
                        "|c)|(c|(cb=#123456)|(p|(rtf=\\b)|p)|c)|r)|doc)"),
                IsEmpty());
}

TEST(ExtendedCheck, ReportsEveryErrorAtItsPlace) {
    EXPECT_THAT(
        checked("(doc|(page=a44)|(left-margin=2mn)|(r|(row-keep=on)|(c|(span=0)|(p|(pt=a)"
                "|p)|c)|r)|doc)"),
        ElementsAre("3:7 wrong-value", "4:14 wrong-value", "6:11 wrong-value", "8:7 wrong-value"));
}

TEST(ExtendedCheck, ReportsTheFirstByteThatIsNotUtf8AsTheOnlyError) {
    EXPECT_THAT(checked("(doc|(pn=0)|(r|(c|(cmf=12)|(p|(pt=\xC3\xA9)|(pmf=\x80\xE9)|p)|c)|r)|doc)"),
                ElementsAre("9:6 not-utf-8: save the file in UTF-8"));
}

TEST(ExtendedCheck, OffersADecimalPointForAComma) {
    EXPECT_THAT(checked("(doc|(left-margin=3,5cm)|(r|(c|(p|(pt=a)|p)|c)|r)|doc)"),
                ElementsAre("3:14 wrong-value: write the decimal sign as a point: 3.5cm"));
}

TEST(ExtendedCheck, ReportsStylesThatTheStyleSheetLacks) {
    KnownStyles styles("; quorvane 2\n{name: normal; style-def: s; bold}");

    EXPECT_THAT(checked("(doc|(r|(c|(cs=normal)|(p|(ps=Nrmal)|(pt=a)|p)|(p|(ps=NORMAL)|(pt=a)|p)|c)"
                        "|r)|doc)",
                        &styles),
                ElementsAre("5:5 undefined-style: normal is a paragraph style",
                            "7:5 undefined-style: did you mean normal?"));
    EXPECT_TRUE(styles.isUsed(StyleKind::Paragraph, "normal"));
}

TEST(ExtendedCheck, CountsTheStylesOfTheHeaderAndTheFooterAsUsed) {
    for (const bool isUsed : {false, true}) {
        KnownStyles styles(
            "; quorvane 2\n{name: header; style-def: s; bold}{name: footer; style-def: s; bold}");
        checked(std::string("(doc|") + (isUsed ? "(header=a)|(footer=a)|" : "") +
                    "(r|(c|(p|(pt=a)|p)|c)|r)|doc)",
                &styles);
        EXPECT_EQ(styles.isUsed(StyleKind::Paragraph, "header"), isUsed);
        EXPECT_EQ(styles.isUsed(StyleKind::Paragraph, "footer"), isUsed);
    }
}

TEST(ExtendedCheck, SaysThatALineIsATagOfATemplate) {
    EXPECT_THAT(checked("(doc|{{#a}}|(r|(c|(p|(pt=a)|p)|c)|r)|doc)"),
                ElementsAre("3:1 wrong-syntax: this is a tag of a template; fill it with --data "
                            "FILE"));
}

TEST(ExtendedCheck, LooksUpNoStyleWithoutAStyleSheet) {
    EXPECT_THAT(checked("(doc|(r|(c|(cs=a)|(p|(ps=b)|(pt=<c=d>)|p)|c)|r)|doc)"), IsEmpty());
}

TEST(ExtendedCheck, LeavesErrorsOfTheStyleSheetToItsOwnCheck) {
    KnownStyles styles("; quorvane 2\n{name: normal; style-def: x; bold}");

    EXPECT_THAT(checked("(doc|(r|(c|(p|(ps=normal)|(pt=a)|p)|c)|r)|doc)", &styles), IsEmpty());
}

TEST(ExtendedCheck, WarnsOfTextThatIsAlmostAnInlineStyle) {
    KnownStyles styles("; quorvane 2\n{name: strong; style-def: cs; bold}");

    EXPECT_THAT(
        checked("(doc|(r|(c|(p|(pt=<stong=a> <b=c> <strong=d> <strong=)|p)|c)|r)|doc)", &styles),
        ElementsAre("6:6 inline-style-as-text: did you mean strong?",
                    testing::StartsWith("6:33 unclosed-inline-style: write a >")));
}

TEST(ExtendedCheck, ReportsAWrongPlaceholderOfAPageLineAsAValue) {
    EXPECT_THAT(checked("(doc|(header={pgae})|(r|(c|(p|(pt=a)|p)|c)|r)|doc)"),
                ElementsAre("3:9 wrong-value"));
}

TEST(ExtendedCheck, SaysThatAKeyBelongsToTheExtendedLanguage) {
    const std::vector<Diagnostic> found =
        checkDescription("(doc\n(page=a4)\n(r\n(c\n(p\n(pt=a)\np)\nc)\nr)\ndoc)");
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found.front().hint,
              "this is a key of the extended language; begin the file with the line ; quorvane 2");
}

TEST(ExtendedCheck, SaysWhereALineStandsThatCannotStandThere) {
    EXPECT_THAT(checked("(doc|(r|(c|(p|(pt=a)|(p|(pt=b)|p)|c)|r)|doc)"),
                ElementsAre("7:1 wrong-place"));
    EXPECT_THAT(checked("(doc|(r|(c|(p|(pt=a)|p)|c)|r)|doc)|(page=a4)|doc)"),
                ElementsAre("11:1 wrong-place", "12:1 wrong-place"));
}

TEST(ExtendedCheck, SaysWhatToDoAboutACommentAfterALine) {
    EXPECT_THAT(checked("(doc ; all|(r|(c ; first|(p|(pt=a) ; b|p) ; end|c)|r)|doc)"),
                ElementsAre("2:1 wrong-syntax: a comment stands on a line of its own",
                            "4:1 wrong-syntax: a comment stands on a line of its own",
                            "6:1 wrong-syntax: a comment stands on a line of its own",
                            "7:1 wrong-syntax: a comment stands on a line of its own"));
}

TEST(ExtendedCheck, SaysWhatToDoAboutAValueThatDoesNotEnd) {
    EXPECT_THAT(
        checked("(doc|(r|(c|(p|(pt=a|p)|c)|r)|doc)"),
        ElementsAre("6:1 wrong-syntax: the ) is missing at the end of the line; put a value "
                    "of several lines between \"\"\" and \"\"\""));
    EXPECT_THAT(checked("(doc|(r|(c|(p|(pt=a) b|p)|c)|r)|doc)"),
                ElementsAre("6:1 wrong-syntax: nothing can follow the ) that ends the value"));
    EXPECT_THAT(checked("(doc|(r|(c|(p|(pt=\"\"\"a)|p)|c)|r)|doc)"),
                ElementsAre("6:5 unclosed-value: write \"\"\") at the end of its last line"));
    EXPECT_THAT(checked("(doc|(r|(c|(p|(pt=\"\"\"|a|b; c|\"\")|p)|c)|r)|doc)"),
                ElementsAre("6:5 unclosed-value: write \"\"\") at the end of its last line"));
}

TEST(ExtendedCheck, CountsTheLinesOfValues) {
    EXPECT_THAT(checked("(doc|(r|(c|(p|(pt=\"\"\"|a|\"\"\")|p)|c)|r)|(page=x)|doc)"),
                ElementsAre("12:7 wrong-value"));
}

TEST(ExtendedCheck, FindsNoCommentsInValues) {
    EXPECT_THAT(checked("(doc|(r|(c|(p|(pt=\"\"\"|; quorvane: ignore nosuch|\"\"\")|p)|c)|r)|doc)"),
                IsEmpty());
}

TEST(ExtendedCheck, LimitsNoNumberOfNodes) {
    std::string text = "(doc|";
    for (int i = 0; i < 1200; ++i) {
        text += "(r|(c|(p|(pt=x)|p)|c)|r)|";
    }
    EXPECT_THAT(checked(text + "doc)"), IsEmpty());
}

/// Lines that make extended descriptions, most of them sound.
class RandomLines {
public:
    explicit RandomLines(std::uint32_t seed) : engine_(seed) {}

    std::string description() {
        std::string text = "(doc\n";
        addLeaves(text, {"(page=a5)", "(columns=50 30 20)", "(left-margin=1cm)", "(header=a|b)",
                         "(footer={page})", "(columns=90 20)", "(page=a0)", "(heading=trhdr)"});
        for (std::size_t rows = 1 + below(3); rows > 0; --rows) {
            text += "(r\n";
            addLeaves(text, {"(row-heading=yes)", "(row-keep=yes)", "(rb=#ffeedd)", "(rb=#ffeed)",
                             "(row-page-break=no)", "(columns=10 20)", "(row-key=a)"});
            for (std::size_t cells = 1 + below(3); cells > 0; --cells) {
                text += "(c\n";
                addLeaves(text, {"(span=2)", "(vspan=2)", "(cw=20)", "(cw=3cm)", "(cb=red)",
                                 "(cw=90)", "(span=x)", "(cell-key=b)", "(ca=right)"});
                text += "(p\n(pt=" + value() + ")\n";
                addLeaves(text, {"(pa=left)", "(rtf=\\b)", "(rtf={)", "(para-key=1)", "(pa=up)"});
                text += below(60) == 0 ? "c)\n" : "p)\nc)\n";
            }
            text += below(60) == 0 ? "(row\n" : "r)\n";
        }
        return extended(text + "doc)");
    }

private:
    std::size_t below(std::size_t count) { return engine_() % count; }

    void addLeaves(std::string& text, const std::vector<const char*>& leaves) {
        for (std::size_t i = 0; i < leaves.size(); ++i) {
            if (below(10) == 0) {
                text += std::string(leaves[i]) + "\n";
            }
        }
    }

    std::string value() {
        static const std::array<const char*, 14> parts{
            "a",       "{", "}", "\\",       "<strong=",         ">",
            "(",       ")", ";", "\xC5\x99", "\xF0\x9F\x98\x80", " ",
            "\\bin9 ", "\t"};
        std::string text;
        for (std::size_t i = below(8); i > 0; --i) {
            text += parts[below(parts.size())];
        }
        return below(5) == 0 ? "\"\"\"" + text + "\n" + text + "\"\"\"" : text;
    }

    std::mt19937 engine_;
};

TEST(ExtendedCheck, FindsAnErrorWhereTheDriverReportsOne) {
    RandomLines random(1);
    int sound = 0;
    for (int i = 0; i < 3000; ++i) {
        const std::string text = random.description();
        FakePlatform platform;
        const Ref<CRtfDriver> driver = CRtfDriver::create(platform);
        int errors = 0;
        driver->setReadsExtended(true);
        driver->setNotifyErrorHandler([&](CRtfDriver&, const RtfError&) { ++errors; });
        driver->ParseFromMemmory(text);
        const std::vector<Diagnostic> found = checkDescription(text, nullptr, TextEncoding::Utf8);
        const bool hasError = std::any_of(
            found.begin(), found.end(),
            [](const Diagnostic& diagnostic) { return diagnostic.severity == Severity::Error; });
        ASSERT_EQ(hasError, errors > 0) << text;
        ASSERT_LE(errors, 1) << text;
        sound += errors == 0 ? 1 : 0;
    }
    EXPECT_GT(sound, 200);
}

TEST(ExtendedCheck, LetsNoTextDamageADocument) {
    RandomLines random(2);
    int rendered = 0;
    for (int i = 0; i < 3000; ++i) {
        const std::string text = random.description();
        FakePlatform platform;
        const Ref<CRtfDriver> driver = CRtfDriver::create(platform);
        driver->setReadsExtended(true);
        driver->ParseFromMemmory(text);
        if (driver->RtfObject()->TableRows()->Count() == 0) {
            continue;
        }
        const std::vector<Diagnostic> damage = checkRtf(driver->Contents());
        ASSERT_THAT(damage, IsEmpty()) << text << damage.front().message;
        ++rendered;
    }
    EXPECT_GT(rendered, 100);
}

}  // namespace
}  // namespace quorvane
