// Whatever a text is made of, its analysis ends, with errors or with a document.

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "tests/driver/ParsedDescription.h"

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string repeated(std::string_view text, std::size_t times) {
    std::string all;
    all.reserve(text.size() * times);
    for (std::size_t i = 0; i < times; ++i) {
        all += text;
    }
    return all;
}

std::size_t occurrences(std::string_view text, std::string_view part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string_view::npos;
         at = text.find(part, at + part.size())) {
        ++count;
    }
    return count;
}

const std::vector<std::string> words = {
    "(doc",        "doc)",        "(row",       "row)",  "(r",      "r)",       "(cell",
    "cell)",       "(c",          "c)",         "(para", "para)",   "(p",       "p)",
    "(R",          "Cell)",       "(",          ")",     "=",       ";",        " ",
    "\t",          "\n",          "\r",         "\r\n",  "x",       "Total",    "0012",
    "-1",          "1.5",         "1e3",        "1e999", "32",      "50",       "red",
    "navy-blue",   "none",        "crimson",    "thin",  "medium",  "right",    "Centered",
    "rb",          "rtb",         "rbb",        "rlb",   "rrb",     "cb",       "ctb",
    "cbb",         "clb",         "crb",        "cw",    "ca",      "cs",       "pt",
    "ps",          "pa",          "pmf",        "cmf",   "row-key", "cell-key", "para-key",
    "left-margin", "paper-width", "top-margin", "1001",  "2001",    "3001",     "1002",
    "<x=",         ">",           "\xC3\xA9",   "^a",
};

const std::vector<std::string> leafKeys = {"paper-height", "paper-width",  "page-number-start",
                                           "left-margin",  "right-margin", "bottom-margin",
                                           "top-margin",   "rb",           "rtb",
                                           "rbb",          "rlb",          "rrb",
                                           "row-key",      "cb",           "ctb",
                                           "cbb",          "clb",          "crb",
                                           "cw",           "ca",           "cs",
                                           "cmf",          "cell-key",     "pt",
                                           "ps",           "pa",           "pmf",
                                           "para-key",     "PT",           "title"};

const std::vector<std::string> leafValues = {
    "",     "x",     "Total", "0012",       "-1",       "0",         "1.5",   "10",     "32",
    "50",   "100",   "1e3",   "3000000000", "red",      "Navy-Blue", "black", "none",   "none",
    "thin", "thick", "hair",  "right",      "centered", "justified", "1001",  "1002",   "2001",
    "2002", "3001",  "7",     "8",          "<b=y>",    "<b=",       "a(b",   "crimson"};

class Random {
public:
    explicit Random(std::uint32_t seed) : engine_(seed) {}

    std::size_t below(std::size_t count) { return engine_() % count; }
    const std::string& oneOf(const std::vector<std::string>& list) {
        return list[below(list.size())];
    }

    std::string ofWords(std::size_t count) {
        std::string text;
        for (std::size_t i = 0; i < count; ++i) {
            text += oneOf(words);
        }
        return text;
    }

    std::string ofBytes(std::size_t count) {
        std::string text;
        for (std::size_t i = 0; i < count; ++i) {
            text += static_cast<char>(below(256));
        }
        return text;
    }

    /// A description in which a fault is rare, so that much of it is built.
    std::string description() {
        static const std::array<const char*, 3> openers{"(r", "(c", "(p"};
        static const std::array<const char*, 3> closers{"r)", "c)", "p)"};
        std::string text = "(doc\n";
        std::size_t depth = 0;
        std::set<std::string> keys;
        for (std::size_t i = below(60); i > 0; --i) {
            const std::size_t choice = below(100);
            if (choice < 1) {
                text += ofWords(3) + "\n";
            } else if (choice < 40 && depth > 0) {
                const std::string& key = leafKeys[7 + below(leafKeys.size() - 7)];
                if (keys.insert(key).second || choice < 2) {
                    text += "(" + key + "=" + oneOf(leafValues) + ")\n";
                }
            } else if (choice < 42 && depth == 0) {
                const std::string& key = leafKeys[below(7)];
                if (keys.insert(key).second) {
                    text += "(" + key + "=" + std::to_string(below(20000)) + ")\n";
                }
            } else if (choice < 75 && depth < 3) {
                text += std::string(openers[depth++]) + "\n";
                keys.clear();
            } else if (choice < 97 && depth > 0) {
                text += std::string(closers[--depth]) + "\n";
            } else if (depth > 0) {
                depth = below(depth) + 1;
                text += std::string(openers[depth - 1]) + "\n";
                keys.clear();
            }
        }
        while (depth > 0) {
            text += std::string(closers[--depth]) + "\n";
        }
        return text + "doc)";
    }

private:
    std::mt19937 engine_;
};

/// A driver that one text after the other is given to.
class AnyText : public testing::Test {
protected:
    AnyText() {
        driver->setNotifyErrorHandler(
            [this](CRtfDriver&, const RtfError& error) { errors.push_back(factsOf(error)); });
    }
    ~AnyText() override { driver->setNotifyErrorHandler({}); }

    std::string renderedAnew() {
        driver->RtfObject()->Refresh();
        return driver->Contents();
    }

    void parse(const std::string& text, Checks checks) {
        errors.clear();
        platform.operations.clear();
        platform.clipboardTexts.clear();
        driver->setErroneousInput(checks == Checks::On);
        driver->ParseFromMemmory(text);
    }

    void expectSameAgain(const std::string& text, Checks checks) {
        parse(text, checks);
        const std::vector<ErrorFacts> firstErrors = errors;
        const std::string first = renderedAnew();
        ASSERT_EQ(renderedAnew(), first) << text;
        parse(text, checks);
        ASSERT_EQ(errors, firstErrors) << text;
        ASSERT_EQ(renderedAnew(), first) << text;
    }

    /// The text must hold no backslash.
    void expectWellFormedRows(const std::string& text) {
        const std::string rtf = renderedAnew();
        constexpr std::string_view rowStart = "{\\intbl\\trowd";
        const Ref<CRtfTableRows> rows = driver->RtfObject()->TableRows();
        std::size_t at = rtf.find(rowStart);
        for (std::int32_t position = 1; position <= rows->Count(); ++position) {
            ASSERT_NE(at, std::string::npos) << text;
            const std::size_t next = rtf.find(rowStart, at + 1);
            const std::string_view row = std::string_view(rtf).substr(at, next - at);
            const auto cells =
                static_cast<std::size_t>(rows->Item(position)->TableCells()->Count());
            ASSERT_EQ(occurrences(row, "\\cellx"), cells) << text;
            ASSERT_EQ(occurrences(row, "\\cell"), 2 * cells) << text;
            ASSERT_EQ(occurrences(row, "\\row}"), 1u) << text;
            at = next;
        }
        ASSERT_EQ(at, std::string::npos) << text;
    }

    void expectKnownErrors(const std::string& text) const {
        static const std::set<std::int32_t> numbers = {
            5,           6,           13,          457,         -2147221502, -2147221500,
            -2147221499, -2147221498, -2147221497, -2147221496, -2147221494, -2147221493};
        ASSERT_LE(errors.size(), 7u) << text;
        for (const ErrorFacts& error : errors) {
            ASSERT_TRUE(numbers.contains(error.number)) << error << "\n" << text;
            ASSERT_FALSE(error.description.starts_with("Syntax error in ")) << text;
            ASSERT_FALSE(error.description.starts_with("Can't add this type")) << text;
            ASSERT_FALSE(error.description.ends_with("isn't a valid key value.")) << text;
            ASSERT_FALSE(error.description.ends_with("should be numeric or string.")) << text;
        }
    }

    void expectGoodEnd(const std::string& text) {
        for (const Checks checks : {Checks::Off, Checks::On}) {
            ASSERT_NO_FATAL_FAILURE(expectSameAgain(text, checks));
            ASSERT_NO_FATAL_FAILURE(expectWellFormedRows(text));
            ASSERT_NO_FATAL_FAILURE(expectKnownErrors(text));
        }
    }

    std::string textOfFirstParagraph() {
        return driver->RtfObject()
            ->TableRows()
            ->Item(1)
            ->TableCells()
            ->Item(1)
            ->Paragraphs()
            ->Item(1)
            ->Text();
    }

    FakePlatform platform;
    Ref<CRtfDriver> driver = CRtfDriver::create(platform);
    std::vector<ErrorFacts> errors;
};

TEST_F(AnyText, OfTheWordsOfTheLanguageEndsWell) {
    Random random(1);
    for (int i = 0; i < 2000; ++i) {
        const std::string text = random.ofWords(random.below(40));
        ASSERT_NO_FATAL_FAILURE(expectGoodEnd(text));
        ASSERT_NO_FATAL_FAILURE(expectGoodEnd("(doc\n(r\n" + text + "\ndoc)"));
    }
}

TEST_F(AnyText, OfLinesWithFewFaultsEndsWell) {
    Random random(2);
    std::set<std::int32_t> numbers;
    std::size_t cells = 0;
    int flawless = 0;
    for (int i = 0; i < 2000; ++i) {
        ASSERT_NO_FATAL_FAILURE(expectGoodEnd(random.description()));
        for (const ErrorFacts& error : errors) {
            numbers.insert(error.number);
        }
        flawless += errors.empty() ? 1 : 0;
        cells += occurrences(driver->Contents(), "\\cellx");
    }
    EXPECT_THAT(numbers, testing::IsSupersetOf({6, 13, 457, -2147221500, -2147221498, -2147221496,
                                                -2147221494, -2147221493}));
    EXPECT_GT(flawless, 10);
    EXPECT_GT(cells, 1000u);
}

TEST_F(AnyText, OfAnyBytesEndsWell) {
    Random random(3);
    for (int i = 0; i < 1500; ++i) {
        const std::string bytes = random.ofBytes(random.below(60));
        for (const Checks checks : {Checks::Off, Checks::On}) {
            ASSERT_NO_FATAL_FAILURE(expectSameAgain(bytes, checks));
            ASSERT_NO_FATAL_FAILURE(
                expectSameAgain("(doc\n(r\n(c\n(p\n(pt=" + bytes + ")\np)\nc)\nr)\ndoc)", checks));
            ASSERT_NO_FATAL_FAILURE(expectSameAgain("(doc\n(r\n" + bytes + "\ndoc)", checks));
        }
    }
}

TEST_F(AnyText, OfMixedWordsAndBytesEndsWell) {
    Random random(4);
    for (int i = 0; i < 2000; ++i) {
        std::string text = random.description();
        for (std::size_t changes = random.below(4); changes > 0; --changes) {
            text.insert(random.below(text.size()), random.ofBytes(1 + random.below(3)));
        }
        for (const Checks checks : {Checks::Off, Checks::On}) {
            ASSERT_NO_FATAL_FAILURE(expectSameAgain(text, checks));
            ASSERT_NO_FATAL_FAILURE(expectKnownErrors(text));
        }
    }
}

TEST_F(AnyText, CutOffAnywhereEndsWell) {
    const std::string text = lines(
        "(doc|(paper-width=9000)|(r ; x|(rb=navy-blue)|(row-key=7)|(c|(cw=50)|(p|(pt=a<b=c>)|"
        "(pmf=x)|p)|c)|(c|c)|r)|doc)");
    for (std::size_t length = 0; length <= text.size(); ++length) {
        ASSERT_NO_FATAL_FAILURE(expectGoodEnd(text.substr(0, length)));
        ASSERT_NO_FATAL_FAILURE(expectGoodEnd(text.substr(length)));
    }
}

TEST_F(AnyText, WithNulCharactersKeepsThem) {
    parse(paraWithText(std::string("a\0b", 3)), Checks::On);
    EXPECT_THAT(errors, IsEmpty());
    EXPECT_EQ(textOfFirstParagraph(), std::string("a\0b", 3));
}

constexpr std::size_t megabytes = 2000000;

TEST_F(AnyText, MayBeOneEndlessText) {
    const std::string endless(megabytes, 'x');
    parse(paraWithText(endless), Checks::On);
    EXPECT_THAT(errors, IsEmpty());
    EXPECT_EQ(textOfFirstParagraph(), endless);
    EXPECT_GT(driver->Contents().size(), megabytes);
}

TEST_F(AnyText, MayBeOneEndlessUnreadableLine) {
    for (const char* part :
         {"x", "(", ")", "=", "=)", "(=", "()", "r)", "(r", "\xC3\xA9", "a b "}) {
        const std::string line =
            "." + repeated(part, megabytes / 2 / std::string_view(part).size()) + ".";
        parse("(doc\n(r\n" + line + "\ndoc)", Checks::Off);
        ASSERT_EQ(errors.size(), 1u);
        EXPECT_EQ(errors[0].description.size(), line.size() + 19);
        EXPECT_TRUE(errors[0].description == line + " has a wrong syntax");
        EXPECT_EQ(errors[0].line, 3);
    }
}

TEST_F(AnyText, MayBeAnEndlessHead) {
    const std::string heads[] = {"(" + std::string(megabytes, 'r'),
                                 std::string(megabytes, 'R') + ")"};
    for (const std::string& line : heads) {
        parse("(doc\n(r\n" + line + "\ndoc)", Checks::Off);
        ASSERT_EQ(errors.size(), 1u);
        EXPECT_TRUE(errors[0].description == line + " has a wrong syntax");
    }
}

TEST_F(AnyText, MayHaveAnEndlessKey) {
    const std::string key(megabytes, 'k');
    parse(rowWith("(" + key + "=1)"), Checks::On);
    ASSERT_EQ(errors.size(), 1u);
    EXPECT_TRUE(errors[0].description == key + " isn't a valid keyword.");
}

TEST_F(AnyText, MayHaveEndlessNumbers) {
    parse(docWith("(paper-width=" + std::string(megabytes, '9') + ")"), Checks::Off);
    EXPECT_THAT(errors, ElementsAre(typeMismatch(2)));
    parse(docWith("(paper-width=" + std::string(megabytes, '0') + "9)"), Checks::Off);
    EXPECT_THAT(errors, IsEmpty());
    EXPECT_EQ(driver->RtfObject()->PageWidth(), 9);
    parse(docWith("(paper-width=7." + std::string(megabytes, '1') + ")"), Checks::Off);
    EXPECT_EQ(driver->RtfObject()->PageWidth(), 7);
    parse(docWith("(paper-width=1e" + std::string(megabytes, '9') + ")"), Checks::Off);
    EXPECT_THAT(errors, ElementsAre(typeMismatch(2)));
}

TEST_F(AnyText, MayHaveAnEndlessComment) {
    const std::string comment = "; " + repeated("(r=x ", megabytes / 5);
    parse("(doc\n" + comment + "\n(r " + comment + "\n(c\nc)\nr)\ndoc)", Checks::On);
    EXPECT_THAT(errors, IsEmpty());
    EXPECT_EQ(driver->RtfObject()->TableRows()->Count(), 1);
}

TEST_F(AnyText, MayHaveBlankLinesAndCommentsWithoutEnd) {
    for (const char* part : {"\n", "\r", "\r\n", " ", "\t\n", ";\n", "; comment\r\n"}) {
        const std::string nothing = repeated(part, megabytes / std::string_view(part).size());
        parse("(doc\n" + nothing + "\n(r\n(c\n(cw=wide)\nc)\nr)\ndoc)\n" + nothing, Checks::Off);
        ASSERT_EQ(errors.size(), 1u);
        EXPECT_EQ(errors[0].number, 13);
    }
}

TEST_F(AnyText, MayHaveClosersWithoutEnd) {
    for (const Checks checks : {Checks::Off, Checks::On}) {
        parse(lines("(doc|(r|(c|c)|r)|doc)|") + repeated("doc)\n", megabytes / 5), checks);
        EXPECT_THAT(errors, IsEmpty());
        parse(lines("(doc|(r|(c|c)|") + repeated("r)\n", megabytes / 3) + "doc)", checks);
        EXPECT_THAT(errors, ElementsAre(driverErrorOf(eWrongNodeType, "Wrong node type in r)",
                                                      "CRtfDriver.treeWalkerBuild", 6)));
        parse("(doc\n" + repeated("c)\n(r\n", megabytes / 6) + "doc)", checks);
        EXPECT_EQ(errors.front().description, "Wrong node type in c)");
    }
}

TEST_F(AnyText, MayHaveLeavesWithoutEnd) {
    std::string leaves;
    for (std::uint32_t i = 0; leaves.size() < megabytes; ++i) {
        leaves += "(k" + std::to_string(i * 7919 % 1000003) + "=v)\n";
    }
    parse("(doc\n" + leaves + "(r\n(c\nc)\nr)\ndoc)", Checks::Off);
    EXPECT_THAT(errors, IsEmpty());
    EXPECT_EQ(driver->RtfObject()->TableRows()->Count(), 1);
    parse("(doc\n" + leaves + "(r\n(c\nc)\nr)\ndoc)", Checks::On);
    ASSERT_EQ(errors.size(), 2u);
    EXPECT_EQ(errors[0].description, "k0 isn't a valid keyword.");
    EXPECT_EQ(errors[1].description, "Value for k0 should be numeric.");
}

TEST_F(AnyText, MayRepeatALeafWithoutEnd) {
    parse("(doc\n(r\n" + repeated("(rb=red)\n", megabytes / 9) + "doc)", Checks::Off);
    EXPECT_THAT(errors, ElementsAre(duplicateKey(4)));
}

TEST_F(AnyText, MayOpenRowsWithoutEnd) {
    const std::string rows = "(doc\n" + repeated("(r\n", megabytes / 3);
    parse(rows + "doc)", Checks::Off);
    ASSERT_EQ(errors.size(), 1u);
    EXPECT_EQ(errors[0].description, "Too many row nodes.");
    EXPECT_EQ(driver->RtfObject()->TableRows()->Count(), 500);
    parse(rows + "(c\nc)\nr)\ndoc)", Checks::On);
    EXPECT_THAT(errors, IsEmpty());
    EXPECT_EQ(driver->RtfObject()->TableRows()->Count(), 1);
}

TEST_F(AnyText, MayLeaveThousandsOfRowsOpen) {
    parse("(doc\n" + repeated("(r\n(c\n(p\n(pt=x)\n", 5000) + "doc)", Checks::Off);
    ASSERT_EQ(errors.size(), 1u);
    EXPECT_EQ(errors[0].description, "Too many row nodes.");
    EXPECT_EQ(driver->RtfObject()->TableRows()->Count(), 250);
    EXPECT_EQ(driver->RtfObject()->TableRows()->PeekTail()->TableCells()->Count(), 1);
}

TEST_F(AnyText, MayNestDocsAsDeepAsTheyGo) {
    parse(repeated("(doc\n", 999) + "(r\n(c\nc)\nr)\n" + repeated("doc)\n", 999), Checks::On);
    EXPECT_THAT(
        errors,
        ElementsAre(driverErrorOf(eSyntaxError, "In a para group para-text is mandatory.",
                                  "CRtfDriver.paraWalkerSyntax", 4),
                    driverErrorOf(eSyntaxError, "Invalid node declaration in this context\r\n",
                                  "CRtDriver.treeWalkerSemantic", 2)));
    EXPECT_EQ(driver->RtfObject()->TableRows()->Count(), 0);

    parse(repeated("(doc\n", 1000) + "(r\n" + repeated("doc)\n", 1000), Checks::Off);
    EXPECT_THAT(errors, ElementsAre(driverErrorOf(eWrongNumberOfNodes, "Too many doc nodes.",
                                                  "CRtfDriver.treeWakerBuild", 1000)));
}

TEST_F(AnyText, MayNestNodesOfAllKindsAsDeepAsTheyGo) {
    const std::string openers = repeated("(doc\n(r\n(c\n(p\n(pt=x)\n", 999);
    const std::string closers = repeated("p)\nc)\nr)\ndoc)\n", 999);
    parse(openers + closers, Checks::Off);
    EXPECT_THAT(errors, IsEmpty());
    EXPECT_EQ(driver->RtfObject()->TableRows()->Count(), 1);
    EXPECT_EQ(textOfFirstParagraph(), "x");

    parse(openers + "doc)", Checks::On);
    EXPECT_EQ(errors.size(), 3u);
    EXPECT_EQ(errors.front().description, "Wrong node type in doc)");
}

TEST_F(AnyText, MayHaveAsManyNodesOfEveryKindAsThereCanBe) {
    const std::string row =
        "(row\n(rb=silver)\n(rtb=thin)\n(rbb=thin)\n(rlb=thin)\n(rrb=thin)\n(cell\n(cw=50)\n"
        "(ca=right)\n(cs=a)\n(cmf=b)\n(para\n(pt=c)\n(ps=d)\n(pa=left)\n(pmf=e)\npara)\ncell)\n"
        "row)\n";
    parse("(doc\n" + repeated(row, 999) + "doc)", Checks::On);
    EXPECT_THAT(errors, IsEmpty());
    EXPECT_EQ(driver->RtfObject()->TableRows()->Count(), 999);
    ASSERT_NO_FATAL_FAILURE(expectWellFormedRows("999 rows"));
}

TEST_F(AnyText, MayHaveAllCellsInOneRowAndAllParagraphsInOneCell) {
    parse("(doc\n(r\n" + repeated("(c\n(cw=1)\nc)\n", 998) + "(c\n" +
              repeated("(p\n(pt=x)\np)\n", 999) + "c)\nr)\ndoc)",
          Checks::On);
    EXPECT_THAT(errors, IsEmpty());
    EXPECT_EQ(driver->RtfObject()->TableRows()->Item(1)->TableCells()->Count(), 999);
    ASSERT_NO_FATAL_FAILURE(expectWellFormedRows("999 cells"));
}

}  // namespace
}  // namespace quorvane
