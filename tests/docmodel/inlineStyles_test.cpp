#include "quorvane/docmodel/inline/inlineStyles.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <vector>

#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/docmodel/CRtfParagraph.h"
#include "quorvane/docmodel/CRtfParagraphs.h"
#include "quorvane/docmodel/CRtfTableCell.h"
#include "quorvane/docmodel/CRtfTableCells.h"
#include "quorvane/docmodel/CRtfTableRow.h"
#include "quorvane/docmodel/InnerDocument.h"
#include "tests/docmodel/withCharacterStyles.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/errorNumberOf.h"

namespace quorvane {
namespace {

class InlineStyles : public testing::Test {
protected:
    InlineStyles() {
        document->LoadStyleSheetFromMemmory(
            "{name: bold; style-def: cs; format: \\b}"
            "{name: b; style-def: cs; format: \\b}"
            "{name: bold-red; style-def: cs; format: \\b\\cf30}"
            "{name: _x; style-def: cs; format: \\i}"
            "{name: x; style-def: cs; format: \\i}"
            "{name: empty; style-def: cs}"
            "{name: opens; style-def: cs; format: <a=}"
            "{name: token; style-def: cs; format: <x=>}"
            "{name: title; style-def: s; format: \\fs28}");
    }

    std::string styled(std::string_view text) const {
        return withCharacterStyles(inner(*document), text);
    }

    FakePlatform platform;
    Ref<CRtfDoc> document = CRtfDoc::create(platform);
};

TEST_F(InlineStyles, LeaveATextWithoutTokens) {
    EXPECT_EQ(styled(""), "");
    EXPECT_EQ(styled("Total = 5"), "Total = 5");
    EXPECT_EQ(styled("a > b = c"), "a > b = c");
}

TEST_F(InlineStyles, MakeATokenAGroup) {
    EXPECT_EQ(styled("<bold-red=Total>"), "{\\cs102\\b\\cf30 Total}");
    EXPECT_EQ(styled("Sum: <bold=5>."), "Sum: {\\cs100\\b 5}.");
}

TEST_F(InlineStyles, TrimTheWordsOfATokenWithoutText) {
    EXPECT_EQ(styled("<x=>"), "{\\cs104\\i}");
    EXPECT_EQ(styled("<empty=>"), "{\\cs105}");
    EXPECT_EQ(styled("<nosuch=>"), "{}");
}

TEST_F(InlineStyles, LeaveNoWordsForAnUnknownStyle) {
    EXPECT_EQ(styled("<nosuch=Total>"), "{Total}");
    EXPECT_EQ(styled("<title=Total>"), "{Total}");
}

TEST_F(InlineStyles, LookNamesUpWithoutRegardToCase) {
    EXPECT_EQ(styled("<BOLD=x>"), "{\\cs100\\b x}");
}

TEST_F(InlineStyles, DoNotTrimNames) {
    EXPECT_EQ(styled("<bold =x>"), "{x}");
}

TEST_F(InlineStyles, SplitATokenAtItsFirstEqualsSign) {
    EXPECT_EQ(styled("<bold=a=b>"), "{\\cs100\\b a=b}");
    EXPECT_EQ(styled("<bold==>"), "{\\cs100\\b =}");
}

TEST_F(InlineStyles, KeepTheBlanksOfATokensText) {
    EXPECT_EQ(styled("<bold= a >"), "{\\cs100\\b  a }");
    EXPECT_EQ(styled("<bold= >"), "{\\cs100\\b  }");
}

TEST_F(InlineStyles, TakeTokensThatBeginWithAnyCharacterFromCapitalAToSmallZ) {
    for (const char* first : {"A", "Z", "[", "\\", "]", "^", "_", "`", "a", "z"}) {
        EXPECT_EQ(styled("<" + std::string(first) + "nosuch=t>"), "{t}") << first;
    }
    EXPECT_EQ(styled("<_x=t>"), "{\\cs103\\i t}");
}

TEST_F(InlineStyles, LeaveTokensThatBeginWithAnotherCharacter) {
    for (const char* first : {"1", "@", "{", "=", " ", "-", "\xC3\xA9", "\xF0\x9F\x98\x80", ""}) {
        const std::string text = "<" + std::string(first) + "=t>";
        EXPECT_EQ(styled(text), text);
    }
}

TEST_F(InlineStyles, LeaveTokensWithoutEqualsSign) {
    EXPECT_EQ(styled("<bold>"), "<bold>");
    EXPECT_EQ(styled("a <b> c"), "a <b> c");
    EXPECT_EQ(styled("<>"), "<>");
}

TEST_F(InlineStyles, LeaveATokenThatIsNotClosed) {
    EXPECT_EQ(styled("<bold=x"), "<bold=x");
    EXPECT_EQ(styled("<bold=x> <bold=y"), "{\\cs100\\b x} <bold=y");
}

TEST_F(InlineStyles, ReplaceEqualTokensAllAtOnce) {
    EXPECT_EQ(styled("<bold=x> and <bold=x>"), "{\\cs100\\b x} and {\\cs100\\b x}");
}

TEST_F(InlineStyles, ReplaceManyTokens) {
    EXPECT_EQ(styled("<bold=x><b=y><bold-red=z>"),
              "{\\cs100\\b x}{\\cs101\\b y}{\\cs102\\b\\cf30 z}");
}

TEST_F(InlineStyles, PassOverWhatIsNotAToken) {
    EXPECT_EQ(styled("<1=a> <bold=x>"), "<1=a> {\\cs100\\b x}");
    EXPECT_EQ(styled("<> <bold=x>"), "<> {\\cs100\\b x}");
}

TEST_F(InlineStyles, ReadNestedTokensFromTheFirstOpeningToTheFirstClosing) {
    EXPECT_EQ(styled("<bold=a<b=c>d>"), "{\\cs100\\b a{\\cs101\\b c}d}");
}

TEST_F(InlineStyles, IgnoreAClosingBracketBeforeAToken) {
    EXPECT_EQ(styled("> <bold=x>"), "> {\\cs100\\b x}");
}

TEST_F(InlineStyles, StopAtAClosingBracketBetweenTwoTokens) {
    EXPECT_EQ(styled("<bold=x> 5 > 3 <b=y>"), "{\\cs100\\b x} 5 > 3 <b=y>");
}

TEST_F(InlineStyles, ReadTokensAsOneWhenTheFirstShrinks) {
    // The first token loses twelve characters, so that the search for the end of the second one
    // begins after it and finds that of the third.
    EXPECT_EQ(styled("<nosuchstyle=x><b=y>, the others and <b=z>"),
              "{x}{\\cs101\\b y>, the others and <b=z}");
}

TEST_F(InlineStyles, LeaveATokenWhoseEndIsOverlookedBecauseTheFirstShrank) {
    EXPECT_EQ(styled("<nosuchstyle=x><b=y>"), "{x}<b=y>");
}

TEST_F(InlineStyles, FindTheEndOfATokenThatComesRightAfterTheOldPlace) {
    EXPECT_EQ(styled("<No=1><b=>"), "{1}{\\cs101\\b}");
    EXPECT_EQ(styled("<Nos=1><b=>"), "{1}<b=>");
}

TEST_F(InlineStyles, CountACharacterOfTheBasicPlaneOnce) {
    EXPECT_EQ(styled("<N\xC3\xA9=1><b=>"), "{1}{\\cs101\\b}");
    EXPECT_EQ(styled("<N\xE2\x82\xAC=1><b=>"), "{1}{\\cs101\\b}");
}

TEST_F(InlineStyles, CountACharacterBeyondTheBasicPlaneTwice) {
    EXPECT_EQ(styled("<N\xF0\x9F\x98\x80=1><b=>"), "{1}<b=>");
}

TEST_F(InlineStyles, CountTheCharactersOfAStylesWordsTheSameWay) {
    // Thirteen characters become nine: the end of the second token is just overlooked.
    document->LoadStyleSheetFromMemmory("{name: abcdefghij; style-def: cs; format: \xE2\x82\xAC}");

    EXPECT_EQ(styled("<abcdefghij=><b=>"), "{\\cs100\xE2\x82\xAC}<b=>");
}

// Counted in bytes, each step would find another token.
TEST_F(InlineStyles, EndWhenTheWordsOfAStyleCountedInCharactersMakeThemEnd) {
    document->LoadStyleSheetFromMemmory("{name: a; style-def: cs; format: \xC3\xA9<<a=\xC3\xA9>}");

    EXPECT_EQ(styled("<a=a<a=1=>>"),
              "{\\cs100\xC3\xA9<{\\cs100\xC3\xA9<<a=\xC3\xA9> \xC3\xA9> a<a=1=}}");
}

TEST_F(InlineStyles, ContinueInWhatAStylePutsIn) {
    EXPECT_EQ(styled("<opens=1> x>"), "{\\cs106{ 1} x}");
}

TEST_F(InlineStyles, OverflowWhenAStylePutsItsOwnTokenIn) {
    document->LoadStyleSheetFromMemmory(
        "{name: once; style-def: cs; format: <once=>}"
        "{name: twice; style-def: cs; format: <twice=><twice=>}"
        "{name: a; style-def: cs; format: <b=1>}{name: b; style-def: cs; format: <a=1>}");

    EXPECT_EQ(errorNumberOf([this] { styled("<once=>"); }), 6);
    EXPECT_EQ(errorNumberOf([this] { styled("<twice=>"); }), 6);
    EXPECT_EQ(errorNumberOf([this] { styled("<a=\xC3\xA9>"); }), 6);
}

// Their brackets end the walk long before their length does.
TEST_F(InlineStyles, OverflowInALongTextBeforeTheyTakeMuchMemory) {
    document->LoadStyleSheetFromMemmory("{name: twice; style-def: cs; format: <twice=><twice=>}");
    const std::string text = std::string(100'000, 'x') + "<twice=>";

    EXPECT_EQ(errorNumberOf([&] { styled(text); }), 6);
}

/// A document whose text would be endless, and the errors that its error module takes.
class EndlessText : public InlineStyles {
protected:
    EndlessText() {
        document->LoadStyleSheetFromMemmory(
            "{name: once; style-def: cs; format: <once=>}{name: p; style-def: s}");
        cells->AddTail();
        cells->PeekTail()->Paragraphs()->AddTail();
        paragraph()->setText("fine");
        before = document->Contents();
        document->setAbsorbedErrorObserver([this](const AbsorbedError& error) {
            absorbed += std::to_string(error.error.number) + " " + error.moduleName + " " +
                        error.procedureName + "\n";
        });
        paragraph()->setText("<once=>");
    }

    Ref<CRtfParagraph> paragraph() { return cells->PeekTail()->Paragraphs()->PeekTail(); }

    Ref<CRtfTableCells> cells =
        (document->TableRows()->AddTail(), document->TableRows()->PeekTail()->TableCells());
    std::string before;
    std::string absorbed;
};

TEST_F(EndlessText, EndsInTheErrorModule) {
    document->Contents();
    document->Refresh();
    document->Commit("a.rtf");

    EXPECT_EQ(absorbed, "6 CRtfDoc.cls Contents\n6 CRtfDoc.cls Refresh\n6 CRtfDoc.cls Commit\n");
}

TEST_F(EndlessText, LeavesTheTextThatTheDocumentHadBefore) {
    EXPECT_EQ(document->Contents(), before);
    document->Refresh();
    EXPECT_TRUE(document->Changed());
    EXPECT_EQ(document->Contents(), before);
}

TEST_F(EndlessText, LeavesTheFileThatIsThere) {
    platform.files["a.rtf"] = "kept";

    document->Commit("a.rtf");

    EXPECT_EQ(platform.files["a.rtf"], "kept");
    EXPECT_TRUE(document->Changed());
}

TEST_F(EndlessText, CanBeReplacedAndRendered) {
    document->Contents();
    paragraph()->setText("fine");

    EXPECT_EQ(document->Contents(), before);
    EXPECT_FALSE(document->Changed());
}

TEST_F(InlineStyles, ReplaceNothingWithoutAStylesheet) {
    document->setStyleSheetFile("nosuch");

    EXPECT_EQ(styled("<bold=x> <bold=>"), "{x} {}");
}

TEST_F(InlineStyles, KeepCharactersThatAreNotText) {
    EXPECT_EQ(styled("\xFF<bold=\xED\xA0\xBD>\x80"), "\xFF{\\cs100\\b \xED\xA0\xBD}\x80");
}

// The walk as it is defined, step by step on UTF-16 units, with positions that begin with 1.
class PlainWalk {
public:
    using Text = std::u16string;

    // Control words by the style's name in lower case.
    std::map<Text, Text> styles;

    Text apply(Text body) const {
        std::size_t open = firstFrom(body, u'<', 1);
        std::size_t close = open;
        for (;;) {
            close = firstFrom(body, u'>', close + 1);
            if (open < 1 || close <= open) {
                return body;
            }
            const Text inner = body.substr(open, close - open - 1);
            if (isToken(inner)) {
                replaceAll(body, u"<" + inner + u">", charStyleToRtf(inner));
            }
            open = firstFrom(body, u'<', open + 1);
        }
    }

private:
    // 0 when there is no such unit.
    static std::size_t firstFrom(const Text& body, char16_t unit, std::size_t position) {
        for (; position >= 1 && position <= body.size(); ++position) {
            if (body[position - 1] == unit) {
                return position;
            }
        }
        return 0;
    }

    static bool isToken(const Text& inner) {
        return !inner.empty() && inner[0] >= u'A' && inner[0] <= u'z' &&
               inner.find(u'=', 1) != Text::npos;
    }

    static void replaceAll(Text& body, const Text& search, const Text& replacement) {
        Text result;
        for (std::size_t at = 0; at < body.size();) {
            if (body.compare(at, search.size(), search) == 0) {
                result += replacement;
                at += search.size();
            } else {
                result += body[at++];
            }
        }
        body = result;
    }

    static Text trimmed(Text text) {
        while (text.starts_with(u' ')) {
            text.erase(0, 1);
        }
        while (text.ends_with(u' ')) {
            text.pop_back();
        }
        return text;
    }

    Text charStyleToRtf(const Text& inner) const {
        const std::size_t equals = inner.find(u'=');
        Text name = inner.substr(0, equals);
        for (char16_t& unit : name) {
            if (unit >= u'A' && unit <= u'Z') {
                unit = static_cast<char16_t>(unit + 32);
            } else if (unit == u'\u00C9') {
                unit = u'\u00E9';
            }
        }
        const Text value = inner.substr(equals + 1);
        const auto style = styles.find(name);
        const Text words = style == styles.end() ? Text() : style->second;
        return u"{" + (value.empty() ? trimmed(words) : words + value) + u"}";
    }
};

std::string utf8(const std::u16string& text) {
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t code = text[i];
        if (code >= 0xD800 && code < 0xDC00 && i + 1 < text.size() && text[i + 1] >= 0xDC00 &&
            text[i + 1] < 0xE000) {
            code = 0x10000 + (code - 0xD800) * 0x400 + (text[++i] - char32_t{0xDC00});
        }
        const auto append = [&bytes](char32_t byte) { bytes += static_cast<char>(byte); };
        if (code < 0x80) {
            append(code);
        } else if (code < 0x800) {
            append(0xC0 + code / 64);
            append(0x80 + code % 64);
        } else if (code < 0x10000) {
            append(0xE0 + code / 4096);
            append(0x80 + code / 64 % 64);
            append(0x80 + code % 64);
        } else {
            append(0xF0 + code / 262144);
            append(0x80 + code / 4096 % 64);
            append(0x80 + code / 64 % 64);
            append(0x80 + code % 64);
        }
    }
    return bytes;
}

struct Sheet {
    // Names and formats of character styles, in order.
    std::vector<std::pair<std::u16string, std::u16string>> styles;
};

const std::vector<Sheet>& sheets() {
    static const std::vector<Sheet> all{
        {{{u"a", u"\\b"}, {u"b", u"\\i\\cf3"}, {u"ab", u""}, {u"a\u00E9", u"\\ul"}}},
        {{{u"a", u"\\b\u20AC"}, {u"b", u"\U0001F600"}, {u"aaaaaaaaaaaaaaaa", u""}}},
        {{{u"a", u"<b=1>"}, {u"b", u"<a="}, {u"ab", u">"}}},
        {{{u"a", u"<"}, {u"b", u"x<c=\u20AC>"}, {u"[", u">b=<"}, {u"a<b", u"="}}},
        {{}},
    };
    return all;
}

// One text of parts taken at random: single characters, or tokens among other things.
class RandomTexts {
public:
    explicit RandomTexts(unsigned seed) : random_(seed) {}

    std::u16string anyCharacters(std::size_t longest) {
        static const std::vector<std::u16string> parts{
            u"<", u"<", u">", u">", u"=", u"=",      u"a",      u"b",      u"B",
            u"[", u"1", u" ", u"{", u"x", u"\u00E9", u"\u00C9", u"\u20AC", u"\U0001F600"};
        return joined(parts, longest);
    }

    std::u16string anyTokens(std::size_t longest) {
        static const std::vector<std::u16string> parts{u"<a=x>",
                                                       u"<a=x>",
                                                       u"<b=>",
                                                       u"<ab=long text>",
                                                       u"<A =y>",
                                                       u"<nosuchstyle=t>",
                                                       u"<b=\U0001F600>",
                                                       u"<a\u00E9=e>",
                                                       u"<1=x>",
                                                       u"<a>",
                                                       u" text ",
                                                       u"\u20AC",
                                                       u"\U0001F600",
                                                       u"<a=",
                                                       u">",
                                                       u"<"};
        return joined(parts, longest);
    }

    std::u16string tokensOnly(std::size_t longest) {
        static const std::vector<std::u16string> parts{u"<a=x>",
                                                       u"<b=>",
                                                       u"<ab=long text>",
                                                       u"<nosuch=t>",
                                                       u"<nosuchatall=tt>",
                                                       u"<b=\U0001F600>",
                                                       u"<a\u00C9=e>",
                                                       u"<b=\u20AC>",
                                                       u" ",
                                                       u"text",
                                                       u"<1=x>"};
        return joined(parts, longest);
    }

    std::u16string fewDifferentParts(std::size_t longest) {
        static const std::vector<std::u16string> parts{u"<",       u"<a=", u"<a=x>",
                                                       u"<a=1<b=", u">",   u"> "};
        return joined(parts, longest);
    }

private:
    std::u16string joined(const std::vector<std::u16string>& parts, std::size_t longest) {
        std::u16string text;
        for (auto count = random_() % (longest + 1); count > 0; --count) {
            text += parts[random_() % parts.size()];
        }
        return text;
    }

    std::mt19937 random_;
};

class InlineStylesLikeThePlainWalk : public testing::TestWithParam<std::size_t> {
protected:
    InlineStylesLikeThePlainWalk() {
        const Sheet& sheet = sheets()[GetParam()];
        std::string text;
        int number = 100;
        for (const auto& [name, format] : sheet.styles) {
            text += "{name:" + utf8(name) + "; style-def: cs; format:" + utf8(format) + "}";
            const std::string digits = std::to_string(number++);
            walk.styles[name] =
                u"\\cs" + std::u16string(digits.begin(), digits.end()) + format + u" ";
        }
        document->LoadStyleSheetFromMemmory(text);
    }

    void expectSame(const std::u16string& text) const {
        ASSERT_EQ(withCharacterStyles(inner(*document), utf8(text)), utf8(walk.apply(text)))
            << utf8(text);
    }

    Ref<CRtfDoc> document = CRtfDoc::create();
    PlainWalk walk;
    RandomTexts random{static_cast<unsigned>(GetParam()) + 1};
};

TEST_P(InlineStylesLikeThePlainWalk, TreatAnyCharacters) {
    for (int i = 0; i < 3000; ++i) {
        expectSame(random.anyCharacters(14));
        expectSame(random.anyCharacters(60));
    }
}

TEST_P(InlineStylesLikeThePlainWalk, TreatTokensAmongOtherThings) {
    for (int i = 0; i < 2500; ++i) {
        expectSame(random.anyTokens(20));
    }
}

TEST_P(InlineStylesLikeThePlainWalk, TreatTokensInARow) {
    for (int i = 0; i < 2500; ++i) {
        expectSame(random.tokensOnly(20));
    }
}

TEST_P(InlineStylesLikeThePlainWalk, TreatTokensThatReachOverMany) {
    for (int i = 0; i < 200; ++i) {
        expectSame(random.fewDifferentParts(250));
    }
}

// Tokens that reach over hundreds of brackets, among many that begin alike.
TEST(InlineStylesWithinOneAnother, AreLikeThePlainWalk) {
    const auto times = [](std::size_t count, const std::u16string& part) {
        std::u16string text;
        for (std::size_t i = 0; i < count; ++i) {
            text += part;
        }
        return text;
    };
    PlainWalk walk;
    walk.styles = {{u"b", u"\\cs100\\b "}};
    const Ref<CRtfDoc> document = CRtfDoc::create();
    document->LoadStyleSheetFromMemmory("{name: b; style-def: cs; format: \\b}");
    const auto expectSame = [&](const std::u16string& text) {
        ASSERT_EQ(withCharacterStyles(inner(*document), utf8(text)), utf8(walk.apply(text)))
            << utf8(text);
    };
    for (const char16_t* part : {u"<b=", u"<b<b="}) {
        std::u16string deeperAndDeeper;
        for (std::size_t deep = 10; deep < 60; ++deep) {
            deeperAndDeeper += times(deep, part) + u">";
        }
        expectSame(deeperAndDeeper);
    }
    constexpr std::size_t deep = 150;
    const std::u16string nest = times(deep, u"<b=") + times(deep + 40, u">");
    for (const std::u16string& text :
         {times(deep, u"< ") + nest + times(deep, u"<b=") + u"!", nest + nest, nest + u"x" + nest,
          times(70, u"<b=") + nest + times(deep, u"<b=>") + nest,
          times(deep, u"< ") + times(4 * deep, u"<b=1>")}) {
        expectSame(text);
    }
}

TEST(InlineStylesOfManyBrackets, AreLikeThePlainWalk) {
    std::u16string brackets;
    for (int i = 0; i < 3000; ++i) {
        brackets += i % 5 == 0 ? u"<b=2>" : u"<1>";
    }
    PlainWalk walk;
    walk.styles = {{u"a", u"\\cs100" + brackets + u" "}, {u"b", u"\\cs101\\b "}};
    const Ref<CRtfDoc> document = CRtfDoc::create();
    document->LoadStyleSheetFromMemmory("{name: a; style-def: cs; format: " + utf8(brackets) +
                                        "}{name: b; style-def: cs; format: \\b}");
    const std::u16string text = u"<b=1> <<a=x> <b=1> <a=y> <b=2>";

    EXPECT_EQ(withCharacterStyles(inner(*document), utf8(text)), utf8(walk.apply(text)));
}

INSTANTIATE_TEST_SUITE_P(Sheets, InlineStylesLikeThePlainWalk,
                         testing::Range(std::size_t{0}, sheets().size()));

// The following finish in time only because the text is gone over once.

TEST_F(InlineStyles, ReplaceManyEqualTokensInOneText) {
    std::string text;
    std::string expected;
    for (int i = 0; i < 50'000; ++i) {
        text += "<bold=x> ";
        expected += "{\\cs100\\b x} ";
    }

    EXPECT_EQ(styled(text), expected);
}

TEST_F(InlineStyles, ReplaceManyDifferentTokensInOneText) {
    std::string text;
    std::string expected;
    for (int i = 0; i < 50'000; ++i) {
        const std::string number = std::to_string(i);
        text += "<b=" + number + "> ";
        expected += "{\\cs101\\b " + number + "} ";
    }

    EXPECT_EQ(styled(text), expected);
}

TEST_F(InlineStyles, ReplaceManyTokensOfUnknownStylesInOneText) {
    std::string text;
    std::string expected;
    for (int i = 100'000; i < 150'000; ++i) {
        const std::string number = std::to_string(i);
        text += "<nosuch=" + number + "> ";
        expected += "{" + number + "} ";
    }

    EXPECT_EQ(styled(text), expected);
}

TEST_F(InlineStyles, LeaveManyBracketsThatAreNotTokens) {
    std::string text;
    for (int i = 0; i < 50'000; ++i) {
        text += "<1> ";
    }
    EXPECT_EQ(styled(text), text);

    text = std::string(50'000, '>');
    EXPECT_EQ(styled(text), text);
    text = std::string(50'000, '<');
    EXPECT_EQ(styled(text), text);
}

TEST_F(InlineStyles, ReplaceManyTokensAmongCharactersBeyondTheBasicPlane) {
    std::string text;
    std::string expected;
    for (int i = 0; i < 50'000; ++i) {
        text += "<bold=\xF0\x9F\x98\x80>";
        expected += "{\\cs100\\b \xF0\x9F\x98\x80}";
    }

    EXPECT_EQ(styled(text), expected);
}

}  // namespace
}  // namespace quorvane
