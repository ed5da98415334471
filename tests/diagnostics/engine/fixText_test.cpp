#include "quorvane/diagnostics/engine/fixText.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstddef>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/diagnostics/description/DescriptionCheck.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/SourceText.h"
#include "quorvane/diagnostics/stylesheet/StyleSheetCheck.h"
#include "tests/diagnostics/randomDescriptions.h"

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

std::vector<Diagnostic> descriptionCheck(std::string_view bytes) {
    return checkDescription(utf8FromCodePage1252(bytes));
}

std::vector<Diagnostic> styleSheetCheck(std::string_view bytes) {
    return checkStyleSheet(utf8FromCodePage1252(bytes));
}

std::string inParagraph(const std::string& leaves) {
    return "(doc\n(r\n(c\n(p\n" + leaves + "p)\nc)\nr)\ndoc)\n";
}

std::string fixedParagraph(const std::string& leaves) {
    const FixedText fixed = fixText(inParagraph(leaves), descriptionCheck);
    EXPECT_TRUE(fixed.bytes.starts_with("(doc\n(r\n(c\n(p\n"));
    const std::string rest = fixed.bytes.substr(std::string("(doc\n(r\n(c\n(p\n").size());
    return rest.substr(0, rest.size() - std::string("p)\nc)\nr)\ndoc)\n").size());
}

TEST(FixText, EscapesStrayBracesAndBackslashes) {
    EXPECT_EQ(fixedParagraph("(pt=a } b)\n"), "(pt=a \\} b)\n");
    EXPECT_EQ(fixedParagraph("(pt=a { b { c)\n"), "(pt=a \\{ b \\{ c)\n");
    EXPECT_EQ(fixedParagraph("(pt={a} b})\n"), "(pt={a} b\\})\n");
    EXPECT_EQ(fixedParagraph("(pt=C:\\5 and \\)\n"), "(pt=C:\\\\5 and \\\\)\n");
}

TEST(FixText, LeavesBracesAndBackslashesThatMayBePartOfAControl) {
    for (const char* text : {"(pt={\\b Total)\n", "(pt=\\b Total} and)\n", "(pt=\\'zz)\n",
                             "(pt=say \\\"no\\\")\n", "(pt=C:\\budget)\n"}) {
        EXPECT_EQ(fixedParagraph(text), text);
    }
}

TEST(FixText, SpellsKeysAndValuesRight) {
    EXPECT_EQ(fixedParagraph("(para-txet=Total)\n(Para-Alignment=center)\n"),
              "(para-text=Total)\n(para-alignment=centered)\n");
    const FixedText fixed = fixText(
        "(doc\n(paper-hieght=297mm)\n(row\n(row-top-border=thck) ; top\n(row-backcolor=\"red\")\n"
        "(clel\n(cell-width = 50,5)\ncell)\n(cell\n(cw=49.5%)\ncell)\nrow)\ndoc)\n",
        descriptionCheck);
    EXPECT_EQ(
        fixed.bytes,
        "(doc\n(paper-height=16838)\n(row\n(row-top-border=thick) ; top\n(row-backcolor=red)\n"
        "(cell\n(cell-width = 50.5)\ncell)\n(cell\n(cw=49.5)\ncell)\nrow)\ndoc)\n");
    EXPECT_THAT(fixed.remaining, IsEmpty());
    // The value of a key is looked at when the key is right.
    EXPECT_THAT(fixed.rounds, SizeIs(2));
}

TEST(FixText, LeavesALengthThatIsCertainlyInAnotherUnit) {
    const std::string text = "(doc\n(left-margin=2,5)\n(r\n(c\nc)\nr)\ndoc)\n";
    EXPECT_EQ(fixText(text, descriptionCheck).bytes, text);
}

TEST(FixText, SpellsStylesRight) {
    const std::string sheet =
        "{ name: normal; style-def: s }{ name: reserved; style-def: s }{ name: heading; style-def: "
        "s }{ name: strong; style-def: cs; format: \\b }{ name: shaded; style-def: cell; format: "
        "silver }";
    KnownStyles styles(sheet);
    const FixedText fixed =
        fixText("(doc\n(r\n(c\n(cs=shadde)\n(p\n(pt=<strnog=a>)\n(ps=haeding)\np)\nc)\nr)\ndoc)\n",
                [&](std::string_view bytes) {
                    return checkDescription(utf8FromCodePage1252(bytes), &styles);
                });
    EXPECT_EQ(fixed.bytes,
              "(doc\n(r\n(c\n(cs=shaded)\n(p\n(pt=<strong=a>)\n(ps=heading)\np)\nc)\nr)\ndoc)\n");
}

TEST(FixText, SpellsTheWordsOfStyleSheetsRight) {
    EXPECT_EQ(fixText("{ nmae: a; stlye-def: s; fromat: \\b; next: a }\n"
                      "{ name: b; style-def: clel; format: sliver }\n",
                      styleSheetCheck)
                  .bytes,
              "{ name: a; style-def: s; format: \\b; next: a }\n"
              "{ name: b; style-def: cell; format: silver }\n");
}

TEST(FixText, MakesNoGuess) {
    for (const char* value : {"crimson", "rde", "\xE9", ""}) {
        const std::string text = "(doc\n(r\n(rb=" + std::string(value) + ")\n(c\nc)\nr)\ndoc)\n";
        EXPECT_EQ(fixText(text, descriptionCheck).bytes, text);
    }
    const std::string thousands = "(doc\n(paper-width=11,906)\n(r\n(c\nc)\nr)\ndoc)\n";
    EXPECT_EQ(fixText(thousands, descriptionCheck).bytes, thousands);
}

TEST(FixText, LeavesAllOtherBytesAsTheyAre) {
    const std::string text =
        "; caf\xE9 \x81\r\n(doc \t\r\n(r\n\n(rb=gren)  ; \xFF\r(c\r\n(p\r\n(pt=\xE4\xF6 } \x80)\r\n"
        "p)\r\nc)\r\nr)\r\ndoc)";
    const FixedText fixed = fixText(text, descriptionCheck);
    EXPECT_EQ(fixed.bytes,
              "; caf\xE9 \x81\r\n(doc \t\r\n(r\n\n(rb=green)  ; \xFF\r(c\r\n(p\r\n(pt=\xE4\xF6 \\} "
              "\x80)\r\np)\r\nc)\r\nr)\r\ndoc)");
}

/// A diagnostic whose fix replaces bytes of a text of one line.
Diagnostic fixable(std::int64_t offset, std::int64_t length, std::string replacement,
                   Severity severity = Severity::Warning) {
    Diagnostic diagnostic;
    diagnostic.id = DiagnosticId::EmptyText;
    diagnostic.severity = severity;
    diagnostic.place = placeInBytes(1, {offset + 1, length, offset});
    diagnostic.fix = Fix{diagnostic.place, std::move(replacement)};
    return diagnostic;
}

Diagnostic error() {
    Diagnostic diagnostic;
    diagnostic.severity = Severity::Error;
    return diagnostic;
}

TEST(FixText, MakesOverlappingFixesOneAfterTheOther) {
    const FixedText fixed = fixText("abcd", [](std::string_view bytes) {
        return bytes == "abcd" ? std::vector<Diagnostic>{fixable(1, 2, "X"), fixable(0, 2, "Y"),
                                                         fixable(3, 1, "Z")}
                               : std::vector<Diagnostic>();
    });
    EXPECT_EQ(fixed.bytes, "YcZ");
    ASSERT_THAT(fixed.rounds, SizeIs(1));
    EXPECT_EQ(fixed.rounds[0].bytes, "abcd");
    EXPECT_THAT(fixed.rounds[0].fixed, SizeIs(2));
    EXPECT_TRUE(fixed.rounds[0].fixed[0].isFixed);
}

TEST(FixText, WritesTheReplacementInTheEncodingOfTheFile) {
    const FixedText fixed = fixText("x", [](std::string_view bytes) {
        return bytes == "x" ? std::vector<Diagnostic>{fixable(0, 1, "\xC3\xA9\xE2\x82\xAC")}
                            : std::vector<Diagnostic>();
    });
    EXPECT_EQ(fixed.bytes, "\xE9\x80");
}

TEST(FixText, ReplacesBytesOfAFileInUtf8) {
    const std::string text = "\u0159\U0001F600(doc\n";
    const auto check = [](std::string_view bytes) {
        const std::size_t at = bytes.find("\U0001F600");
        if (at == std::string_view::npos) {
            return std::vector<Diagnostic>();
        }
        Diagnostic diagnostic = fixable(0, 0, "\u4E2D");
        const SourceText source(bytes, TextEncoding::Utf8);
        diagnostic.fix->place = source.placeOf(bytes.substr(at, 4));
        return std::vector<Diagnostic>{diagnostic};
    };
    EXPECT_EQ(fixText(text, check, TextEncoding::Utf8).bytes, "\u0159\u4E2D(doc\n");
}

TEST(FixText, LeavesATextThatWouldHaveMoreErrors) {
    const FixedText fixed = fixText("abc", [](std::string_view bytes) {
        return bytes == "abc" ? std::vector<Diagnostic>{fixable(0, 1, "X", Severity::Error)}
                              : std::vector<Diagnostic>{error(), error()};
    });
    EXPECT_TRUE(fixed.wasRefused);
    EXPECT_EQ(fixed.bytes, "abc");
    EXPECT_THAT(fixed.rounds, IsEmpty());
    EXPECT_THAT(fixed.remaining, SizeIs(1));
}

TEST(FixText, MakesNoFixesThatUndoEachOther) {
    const FixedText fixed = fixText("a", [](std::string_view bytes) {
        return std::vector<Diagnostic>{fixable(0, 1, bytes == "a" ? "b" : "a")};
    });
    EXPECT_EQ(fixed.bytes, "a");
    EXPECT_THAT(fixed.rounds, IsEmpty());
    EXPECT_THAT(fixed.remaining, SizeIs(1));
}

TEST(FixText, PassesOverAFixBeyondTheEnd) {
    const FixedText fixed =
        fixText("ab", [](std::string_view) { return std::vector<Diagnostic>{fixable(1, 5, "X")}; });
    EXPECT_EQ(fixed.bytes, "ab");
    EXPECT_FALSE(fixed.wasRefused);
}

/// Descriptions and stylesheets with mistakes in spelling and other ones.
class FixesOfGeneratedTexts : public testing::Test {
protected:
    static std::ptrdiff_t errorsIn(const std::vector<Diagnostic>& diagnostics) {
        return std::count_if(diagnostics.begin(), diagnostics.end(), [](const Diagnostic& found) {
            return found.severity == Severity::Error;
        });
    }

    /// The text with some of its words mistyped.
    std::string mistyped(std::string text) {
        static const std::vector<std::pair<std::string, std::string>> words{
            {"backcolor", "backcolro"},
            {"paper-width=", "paper-width=1.5cm"},
            {"margin", "margni"},
            {"silver", "slivre"},
            {"Navy-Blue", "navyblue"},
            {"black", "blakc"},
            {"thick", "thcik"},
            {"centered", "center"},
            {"(cw=", "(cw=1,5"},
            {"Total", "To}tal {"},
            {"Total", "C:\\5 \\"},
            {"(Cell", "(clel"},
            {"(para", "(paar"},
            {"row)", "rwo)"},
            {"cell)", "celll)"},
            {"left-margin", "Left-Margin"},
            {"style-def", "sytle-def"},
            {"format", "fromat"},
            {"yes", "yse"},
            {"next: n1", "next: n11"}};
        for (std::size_t times = random.below(6); times > 0; --times) {
            const auto& [right, wrong] = words[random.below(words.size())];
            const std::size_t at = text.find(right, random.below(text.size() + 1));
            if (at != std::string::npos) {
                text.replace(at, right.size(), wrong);
            }
        }
        return text;
    }

    static std::vector<std::string> linesWithEnds(const std::string& text) {
        std::vector<std::string> lines(1);
        for (std::size_t at = 0; at < text.size(); ++at) {
            lines.back() += text[at];
            const bool isCrLf = text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n';
            if (text[at] == '\n' || (text[at] == '\r' && !isCrLf)) {
                lines.emplace_back();
            }
        }
        return lines;
    }

    void expectSoundFixes(const std::string& text, const TextCheck& check) {
        const FixedText fixed = fixText(text, check);
        ASSERT_LE(errorsIn(check(fixed.bytes)), errorsIn(check(text))) << text;
        ASSERT_EQ(fixText(fixed.bytes, check).bytes, fixed.bytes) << text;
        std::set<std::int64_t> changed;
        for (const FixedText::Round& round : fixed.rounds) {
            for (const Diagnostic& diagnostic : round.fixed) {
                changed.insert(diagnostic.fix->place.line);
                ++fixes;
            }
        }
        const std::vector<std::string> before = linesWithEnds(text);
        const std::vector<std::string> after = linesWithEnds(fixed.bytes);
        ASSERT_EQ(before.size(), after.size()) << text;
        for (std::size_t i = 0; i < before.size(); ++i) {
            const bool isChanged = changed.contains(static_cast<std::int64_t>(i) + 1);
            ASSERT_TRUE(isChanged || before[i] == after[i]) << text;
        }
        for (const FixedText::Round& round : fixed.rounds) {
            expectOnlyFixedRangesDiffer(
                round, &round == &fixed.rounds.back() ? fixed.bytes : (&round + 1)->bytes);
        }
        refused += fixed.wasRefused ? 1 : 0;
    }

    /// Walks backwards through a round: what is after the last fix is the end of both texts.
    static void expectOnlyFixedRangesDiffer(const FixedText::Round& round, std::string after) {
        std::string before = round.bytes;
        for (auto found = round.fixed.rbegin(); found != round.fixed.rend(); ++found) {
            const auto end = static_cast<std::size_t>(found->fix->place.bytes.offset +
                                                      found->fix->place.bytes.length);
            const std::string tail =
                codePage1252FromUtf8(found->fix->replacement) + before.substr(end);
            ASSERT_TRUE(after.ends_with(tail)) << round.bytes;
            after.resize(after.size() - tail.size());
            before.resize(static_cast<std::size_t>(found->fix->place.bytes.offset));
        }
        ASSERT_EQ(before, after);
    }

    RandomDescriptions random{11};
    int fixes = 0;
    int refused = 0;
};

TEST_F(FixesOfGeneratedTexts, BringNoErrorsAndAreWholeAndChangeNothingElse) {
    for (int i = 0; i < 600; ++i) {
        std::string text = mistyped(random.description());
        if (random.below(3) == 0) {
            text = random.mutated(std::move(text), 1 + random.below(3));
        }
        ASSERT_NO_FATAL_FAILURE(expectSoundFixes(codePage1252FromUtf8(text), descriptionCheck));
    }
    EXPECT_GT(fixes, 200);
    RecordProperty("fixes", fixes);
    RecordProperty("refused", refused);
}

TEST_F(FixesOfGeneratedTexts, OfStyleSheetsAreSoundToo) {
    for (int i = 0; i < 600; ++i) {
        std::string text;
        for (std::size_t count = 1 + random.below(4); count > 0; --count) {
            text += "note { name: n" + std::to_string(count) +
                    "; style-def: s; format: \\b; additive: yes; next: n1 }\r\n"
                    "{ name: c" +
                    std::to_string(count) + "; style-def: cell; format: silver }\n";
        }
        text = mistyped(std::move(text));
        if (random.below(3) == 0) {
            text = random.mutated(std::move(text), 1 + random.below(3));
        }
        ASSERT_NO_FATAL_FAILURE(expectSoundFixes(codePage1252FromUtf8(text), styleSheetCheck));
    }
    EXPECT_GT(fixes, 200);
}

}  // namespace
}  // namespace quorvane
