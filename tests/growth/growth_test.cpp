// Inputs that are built to be slow take time in proportion to their size: eight times the input
// takes about eight times as long, where a quadratic walk would take sixty-four times as long.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <ctime>
#include <functional>
#include <string>
#include <string_view>

#include "quorvane/base/text/wildcards.h"
#include "quorvane/diagnostics/KnownStyles.h"
#include "quorvane/diagnostics/description/DescriptionCheck.h"
#include "quorvane/diagnostics/rtf/RtfCheck.h"
#include "quorvane/diagnostics/stylesheet/StyleSheetCheck.h"
#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/docmodel/InnerDocument.h"
#include "quorvane/driver/CRtfDriver.h"
#include "quorvane/driver/DescriptionTree.h"
#include "quorvane/driver/Dialect.h"
#include "quorvane/driver/DocumentBuilder.h"
#include "quorvane/formatting/formatStyleSheet.h"
#include "quorvane/support/recordStrings.h"
#include "tests/docmodel/withCharacterStyles.h"
#include "tests/support/FakePlatform.h"

namespace quorvane {
namespace {

using Work = std::function<void(std::size_t size)>;

std::string repeated(std::string_view text, std::size_t times) {
    std::string all;
    all.reserve(text.size() * times);
    for (std::size_t i = 0; i < times; ++i) {
        all += text;
    }
    return all;
}

/// The shortest of several runs, in processor time: what the work takes when nothing else is in its
/// way.
double secondsOf(const Work& work, std::size_t size) {
    constexpr int runs = 3;
    double shortest = 1e9;
    for (int run = 0; run < runs; ++run) {
        const std::clock_t start = std::clock();
        work(size);
        const auto taken = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
        shortest = std::min(shortest, taken);
    }
    return shortest;
}

void expectProportional(const Work& work, std::size_t size) {
    constexpr std::size_t growth = 8;
    constexpr double mostTimes = 28;
    constexpr int attempts = 4;
    double times = 0;
    // A machine under load may be slow just when the large input is at work.
    for (int attempt = 0; attempt < attempts; ++attempt) {
        times = secondsOf(work, size * growth) / std::max(secondsOf(work, size), 1e-6);
        if (times < mostTimes) {
            return;
        }
    }
    FAIL() << growth << " times the input takes " << times << " times as long";
}

void analyze(const std::string& text, bool erroneousInput) {
    FakePlatform platform;
    const Ref<CRtfDriver> driver = CRtfDriver::create(platform);
    driver->setErroneousInput(erroneousInput);
    driver->ParseFromMemmory(text);
}

TEST(Growth, OfDeepNestingIsProportional) {
    expectProportional(
        [](std::size_t size) {
            analyze(repeated("(doc\n", size) + "(r\n(c\nc)\nr)\n" + repeated("doc)\n", size), true);
        },
        100);
}

TEST(Growth, OfUnclosedRowsIsProportional) {
    expectProportional(
        [](std::size_t size) {
            analyze("(doc\n" + repeated("(r\n(c\n(p\n(pt=x)\np)\nc)\n", size) + "doc)", true);
        },
        1000);
}

TEST(Growth, OfRowsRightAfterEachOtherIsProportional) {
    expectProportional(
        [](std::size_t size) {
            analyze("(doc\n" + repeated("(r\n", size) + "(c\nc)\nr)\ndoc)", true);
        },
        20'000);
}

TEST(Growth, OfClosersIsProportional) {
    expectProportional(
        [](std::size_t size) { analyze("(doc\n(r\n" + repeated("c)\n", size) + "doc)", true); },
        100'000);
}

TEST(Growth, OfAHundredMegabytesOfClosersIsBearable) {
    FakePlatform platform;
    const Ref<CRtfDriver> driver = CRtfDriver::create(platform);
    int events = 0;
    driver->setNotifyErrorHandler([&events](CRtfDriver&, const RtfError&) { ++events; });

    driver->ParseFromMemmory("(doc\n(r\n" + repeated(std::string(60, ' ') + "c)\n", 1'600'000) +
                             "doc)");

    driver->setNotifyErrorHandler({});
    EXPECT_EQ(events, 1);
}

TEST(Growth, OfAnUnreadableLineIsProportional) {
    for (const char* part : {"(", "=", ")", "(=", ";", "r)"}) {
        expectProportional(
            [part](std::size_t size) {
                analyze("(doc\n(r\n" + repeated(part, size) + ".\ndoc)", false);
            },
            50'000);
    }
}

/// A cell whose paragraphs all ask for the key of the last one, which has its number as key.
class ParagraphsWithATakenKey {
public:
    explicit ParagraphsWithATakenKey(std::size_t count) : tree_(count) {
        constexpr int line = 1;
        DescriptionNode& doc = tree_.AddNode(tree_.root(), NodeKind::Doc, documentNumber, line);
        DescriptionNode& row = tree_.AddNode(doc, NodeKind::Row, 1001, line);
        DescriptionNode& cell = tree_.AddNode(row, NodeKind::Cell, 2001, line);
        const std::int32_t first = originalDialect().numbers[indexOf(NodeKind::Para)].start + 1;
        const std::int32_t last = first + static_cast<std::int32_t>(count) - 1;
        for (std::int32_t number = first; number < last; ++number) {
            Leaf& key = *tree_.addLeaf(tree_.AddNode(cell, NodeKind::Para, number, line),
                                       originalVocabulary().leafKey("para-key"));
            key.number = last;
            key.kind = LeafKind::Number;
        }
        tree_.AddNode(cell, NodeKind::Para, last, line);
    }

    /// Builds a document and returns how many keys were taken.
    std::size_t build() {
        FakePlatform platform;
        const Ref<CRtfDoc> document = CRtfDoc::create(platform);
        std::size_t taken = 0;
        DocumentBuilder(*document, originalDialect(), [&](const Violation& violation) {
            taken += violation.fault == DriverFault::TakenKey && violation.node ? 1 : 0;
        }).build(tree_.root().child(documentNumber));
        return taken;
    }

private:
    DescriptionTree tree_;
};

TEST(Growth, OfTakenKeysIsProportional) {
    expectProportional(
        [](std::size_t size) { EXPECT_EQ(ParagraphsWithATakenKey(size).build(), size - 1); }, 4000);
}

TEST(Growth, OfAStylesheetIsProportional) {
    expectProportional(
        [](std::size_t size) {
            const Ref<CRtfDoc> document = CRtfDoc::create();
            std::string text;
            for (std::size_t i = 0; i < size; ++i) {
                text += "{name: s" + std::to_string(i) + "; style-def: s; based-on: s; next: s}";
            }
            document->LoadStyleSheetFromMemmory(text);
            document->Contents();
        },
        500);
}

TEST(Growth, OfAnExtendedStylesheetIsProportional) {
    expectProportional(
        [](std::size_t size) {
            const Ref<CRtfDoc> document = CRtfDoc::create();
            document->setExtendedStyleSheets(true);
            std::string text = "; quorvane 2\n{name: s; style-def: s; bold}";
            for (std::size_t i = 0; i < size; ++i) {
                const std::string number = std::to_string(100'000 + i);
                text += "{name: s" + number + "; style-def: s; based-on: " +
                        (i == 0 ? "s" : "s" + std::to_string(99'999 + i)) + "; next: s; color: #" +
                        number + "; font: f" + number + "}\n";
            }
            document->LoadStyleSheetFromMemmory(text);
            document->Contents();
            checkStyleSheet(text + text);
            formattedStyleSheet(text);
        },
        200);
}

TEST(Growth, OfARecordStringIsProportional) {
    expectProportional(
        [](std::size_t size) {
            const std::string record = repeated("^a  ", size);
            EXPECT_TRUE(AllSubFieldsEmpty(record));
            EXPECT_EQ(ReplaceString(record, "^", "").size(), 3 * size);
        },
        50'000);
}

// With as many stars as the text allows, the product of the two lengths is what may be spent.
TEST(Growth, OfATextForAPatternOfStarsIsProportional) {
    const std::string pattern = repeated("*a", 50) + "b";
    expectProportional(
        [&pattern](std::size_t size) {
            EXPECT_FALSE(matchesWildcards(std::string(size, 'a'), pattern));
        },
        2000);
}

TEST(Growth, OfAPatternOfStarsIsProportional) {
    const std::string text(2000, 'a');
    expectProportional(
        [&text](std::size_t size) {
            EXPECT_FALSE(matchesWildcards(text, repeated("*", size) + "b"));
        },
        2000);
}

std::string paragraphWith(const std::string& text) {
    return "(doc\n(r\n(c\n(p\n(pt=" + text + ")\np)\nc)\nr)\ndoc)\n";
}

TEST(Growth, OfCheckingBracesIsProportional) {
    for (const char* part : {"{", "}", "{\n", "}{"}) {
        expectProportional([part](std::size_t size) { checkStyleSheet(repeated(part, size)); },
                           3000);
        expectProportional(
            [part](std::size_t size) { checkRtf("{\\rtf1 " + repeated(part, size)); }, 50'000);
        expectProportional(
            [part](std::size_t size) { checkDescription(paragraphWith(repeated(part, size))); },
            3000);
    }
}

TEST(Growth, OfCheckingIgnoreCommentsIsProportional) {
    const std::string comment = "; quorvane: ignore wrong-color\n";
    expectProportional(
        [&](std::size_t size) { checkDescription(repeated(comment, size) + "(doc\n", nullptr); },
        500);
    expectProportional(
        [&](std::size_t size) { checkStyleSheet(repeated(comment, size) + "{ name: a\n"); }, 500);
}

TEST(Growth, OfCheckingCharactersWithSubstitutesIsProportional) {
    for (const char* before : {"", "{\\fldinst "}) {
        expectProportional(
            [before](std::size_t size) {
                checkDescription(paragraphWith(before + repeated("\\u8364?", size)));
            },
            2000);
    }
}

TEST(Growth, OfCheckingFieldsAndColorsIsProportional) {
    KnownStyles styles("{name: b; style-def: cs; format: \\cf36}");
    for (const char* part : {"{\\fldinst x", "{\\cf36 x", "<b=x", "{\\*\\x<b=\\u1?>", "\\cell"}) {
        expectProportional(
            [&](std::size_t size) {
                checkDescription(paragraphWith(repeated(part, size)), &styles);
            },
            3000);
    }
}

class InlineTokens : public testing::Test {
protected:
    InlineTokens() {
        document->LoadStyleSheetFromMemmory(
            "{name: bold; style-def: cs; format: \\b}"
            "{name: more; style-def: cs; format: <bold=x>}");
    }

    using Text = std::function<std::string(std::size_t count)>;

    void expectProportionalTo(const Text& textOf, std::size_t size) {
        expectProportional(
            [&](std::size_t count) {
                EXPECT_NE(withCharacterStyles(inner(*document), textOf(count)), "");
            },
            size);
    }

    void expectProportionalTo(const std::string& before, const std::string& token,
                              std::size_t size) {
        expectProportionalTo([&](std::size_t count) { return before + repeated(token, count); },
                             size);
    }

    // One piece after another, each with a number of its own.
    static std::string numbered(const std::string& start, std::size_t count,
                                const std::string& end) {
        std::string text;
        for (std::size_t i = 0; i < count; ++i) {
            text += start + std::to_string(i) + end;
        }
        return text;
    }

    Ref<CRtfDoc> document = CRtfDoc::create();
};

TEST_F(InlineTokens, GrowProportionally) {
    expectProportionalTo("", "<bold=x> ", 10'000);
}

TEST_F(InlineTokens, MayBeAMillion) {
    const std::string styled =
        withCharacterStyles(inner(*document), repeated("<bold=x>", 1'000'000));

    EXPECT_EQ(styled, repeated("{\\cs100\\b x}", 1'000'000));
}

TEST_F(InlineTokens, GrowProportionallyAfterAStrayBracket) {
    expectProportionalTo("5 < 7 ", "<bold=x> ", 4000);
}

TEST_F(InlineTokens, GrowProportionallyAfterAStrayBracketWhenTheyDiffer) {
    expectProportionalTo(
        [](std::size_t count) { return "5 < 7 " + numbered("<bold=", count, "> "); }, 2000);
    expectProportionalTo(
        [](std::size_t count) { return "5 < 7 " + numbered("<bold", count, "=>"); }, 2000);
    expectProportionalTo(
        [](std::size_t count) { return "5 < 7 " + numbered("<bold=x> ", count, ""); }, 2000);
}

TEST_F(InlineTokens, GrowProportionallyAfterManyStrayBrackets) {
    expectProportionalTo(repeated("< ", 50), "<bold=x> ", 1000);
    expectProportionalTo(
        [](std::size_t count) { return repeated("< ", 50) + numbered("<bold=", count, "> "); },
        1000);
    expectProportionalTo(
        [](std::size_t count) { return repeated("< ", count) + repeated("<bold=x> ", count); },
        2000);
}

TEST_F(InlineTokens, GrowProportionallyWithinOneAnother) {
    expectProportionalTo(
        [](std::size_t count) { return repeated("<bold=", count) + repeated(">", count); }, 2000);
    expectProportionalTo(
        [](std::size_t count) { return numbered("<bold", count, "=") + repeated(">", count); },
        2000);
    expectProportionalTo(
        [](std::size_t count) { return repeated("<bold", count) + repeated(">", count); }, 5000);
}

// The text shrinks below the walk, so that each token reaches over those after it to the far end.
TEST_F(InlineTokens, GrowProportionallyWithinOneAnotherWhenTheirStyleIsUnknown) {
    for (const char* inner : {"", "x", "<b"}) {
        expectProportionalTo(
            [inner](std::size_t count) {
                return repeated("<a=", count) + repeated(inner, count) + repeated(">", 2 * count);
            },
            2000);
    }
}

TEST_F(InlineTokens, GrowProportionallyWhenOnlyOneOfManyThatBeginAlikeIsClosed) {
    expectProportionalTo(
        [](std::size_t count) {
            return repeated("<bold=", count) + ">" + repeated("<bold=", count) + "!";
        },
        5000);
}

TEST_F(InlineTokens, GrowProportionallyWhereAStylePutsTokensIn) {
    expectProportionalTo([](std::size_t count) { return numbered("<more=", count, ">"); }, 1000);
    expectProportionalTo(
        [](std::size_t count) { return "5 < 7 " + numbered("<more=", count, ">"); }, 1000);
}

TEST_F(InlineTokens, OverflowInProportionToTheWordsThatPutThemIn) {
    expectProportional(
        [](std::size_t count) {
            const Ref<CRtfDoc> endless = CRtfDoc::create();
            endless->LoadStyleSheetFromMemmory("{name: once; style-def: cs; format: <once=>" +
                                               repeated("x", count) + "}");
            EXPECT_THROW(withCharacterStyles(inner(*endless), "<once=>" + repeated("x", count)),
                         RtfError);
        },
        1000);
}

TEST_F(InlineTokens, GrowProportionallyWhereAllBracketsAreStray) {
    expectProportionalTo("", "<", 50'000);
    expectProportionalTo("", ">", 50'000);
    expectProportionalTo("", "<bold=", 50'000);
    expectProportionalTo("<", "=>", 50'000);
}

}  // namespace
}  // namespace quorvane
