// The parser compared with a plain model of it, on random lines.

#include <gtest/gtest.h>

#include <cstddef>
#include <deque>
#include <map>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/driver/plainReader.h"
#include "tests/driver/treeText.h"

namespace quorvane {
namespace {

using plain::cellKind;
using plain::docKind;
using plain::mayStandIn;
using plain::paraKind;
using plain::rowKind;

class Lines {
public:
    explicit Lines(std::uint32_t seed) : random_(seed) {}

    std::size_t below(std::size_t count) { return random_() % count; }

    template <std::size_t count>
    const char* oneOf(const char* const (&words)[count]) {
        return words[below(count)];
    }

    // Of a hundred lines, most are openers of what may come next or closers of what is open.
    std::vector<SourceLine> sequence(std::size_t count, std::size_t closersInHundred) {
        std::vector<SourceLine> lines{{"(doc", 1}};
        std::vector<int> open{docKind};
        while (lines.size() < count) {
            const std::string_view line = kept(next(open, closersInHundred));
            lines.push_back({line, lines.back().number + 1 + static_cast<int>(below(3))});
        }
        return lines;
    }

    std::string anyLine() {
        static const char* const words[] = {
            "(doc",        "(r",           "(row",         "(R",          "(c",      "(cell",
            "(p",          "(Para",        "doc)",         "r)",          "row)",    "c)",
            "CELL)",       "p)",           "para)",        "(r ; x",      "(c;x",    "p)\t;",
            "(pt=a)",      "(cw=5)",       "(rb=red) ; x", "(k=1)",       "(k=007)", "(a;=b)",
            "(a);=b)",     "(=)",          "(x=(y)",       "(r ; (cw=5)", "(PT=)",   "(p ; =)",
            "(c ;)=(r ;)", "(para-text=)", "(pt = q )",    "(l=m=n)"};
        return oneOf(words);
    }

    std::string badLine() {
        static const char* const words[] = {"x",    "(pt Total)", "(",   ")",
                                            "(r x", "(k=1) y",    "(r)", "(a)=b)"};
        return oneOf(words);
    }

    // A view of the text, good as long as this object.
    std::string_view kept(std::string text) { return texts_.emplace_back(std::move(text)); }

private:
    std::string next(std::vector<int>& open, std::size_t closersInHundred) {
        static const char* const openers[] = {"(r", "(c", "(p", "(doc"};
        static const char* const closers[] = {"r)", "c)", "p)", "doc)"};
        const std::size_t choice = below(1000);
        if (choice < 2) {
            return badLine();
        }
        if (choice < 12) {
            return anyLine();
        }
        if (choice < 200) {
            return "(k" + std::to_string(below(50)) + "=" + std::to_string(below(9)) + ")";
        }
        if (choice < 200 + 8 * closersInHundred && open.size() > 1) {
            const int kind = open.back();
            open.pop_back();
            return closers[kind];
        }
        const int kind = choice > 990 ? docKind : static_cast<int>(below(3));
        if (kind == docKind) {
            open.push_back(docKind);
            return openers[docKind];
        }
        while (open.size() > 1 && !mayStandIn(open.back(), kind)) {
            open.pop_back();
        }
        const int actual = mayStandIn(open.back(), kind) ? kind : rowKind;
        open.push_back(actual);
        return openers[actual];
    }

    std::mt19937 random_;
    std::deque<std::string> texts_;
};

template <class AnyLine>
std::string joined(const std::vector<AnyLine>& lines) {
    std::string all;
    for (const AnyLine& line : lines) {
        all += line.text;
        all += '\n';
    }
    return all;
}

// How often the compared readings ended in which way, and how many nodes they made.
struct Tally {
    int complete = 0;
    std::map<std::int32_t, int> errors;
    std::size_t nodes = 0;

    void compare(const std::vector<SourceLine>& lines) {
        const plain::Reader model(plain::linesOf(lines));
        const ReadDescription read(lines);
        ASSERT_EQ(read.error, model.error) << joined(lines);
        ASSERT_EQ(read.tree, model.root.text()) << joined(lines);
        ++(model.error == ErrorFacts() ? complete : errors[model.error.number]);
        nodes += static_cast<std::size_t>(std::count(read.tree.begin(), read.tree.end(), '{'));
    }
};

constexpr std::int32_t duplicate = 457;
constexpr std::int32_t wrongNode = -2147221504 + eWrongNodeType;
constexpr std::int32_t wrongSyntax = -2147221504 + eSyntaxError;

TEST(parserModel, ReadsAnyLinesAsTheParserDoes) {
    Lines random(1);
    Tally tally;
    for (int i = 0; i < 20000; ++i) {
        std::vector<SourceLine> lines{{"(doc", 1}};
        const std::size_t count = 2 + random.below(12);
        while (lines.size() < count) {
            lines.push_back({random.kept(random.anyLine()), static_cast<int>(lines.size()) + 1});
        }
        ASSERT_NO_FATAL_FAILURE(tally.compare(lines));
    }
    EXPECT_GT(tally.complete, 2000);
    EXPECT_GT(tally.errors[duplicate], 100);
    EXPECT_GT(tally.errors[wrongNode], 2000);
    EXPECT_GT(tally.nodes, 40000u);
}

TEST(parserModel, ReadsDescriptionsWithFaultsAsTheParserDoes) {
    Lines random(2);
    Tally tally;
    for (int i = 0; i < 3000; ++i) {
        const std::size_t count = 2 + random.below(100);
        ASSERT_NO_FATAL_FAILURE(tally.compare(random.sequence(count, 10 * random.below(10))));
    }
    EXPECT_GT(tally.complete, 500);
    EXPECT_GT(tally.errors[duplicate], 100);
    EXPECT_GT(tally.errors[wrongNode], 100);
    EXPECT_GT(tally.errors[wrongSyntax], 100);
    EXPECT_GT(tally.nodes, 30000u);
}

// A row, a cell or a paragraph after the other, not every one closed, and now and then a doc.
std::vector<SourceLine> manyNodes(Lines& random, std::size_t kind) {
    static const char* const openers[] = {"(r", "(c", "(p"};
    static const char* const closers[] = {"r)", "c)", "p)"};
    std::vector<std::string> texts{"(doc"};
    texts.insert(texts.end(), openers, openers + kind);
    while (texts.size() < 3500) {
        if (random.below(40) == 0) {
            texts.push_back("(doc");
        } else {
            texts.push_back(openers[kind]);
            if (random.below(5) > 0) {
                texts.push_back(closers[kind]);
            }
        }
    }
    std::vector<SourceLine> lines;
    for (const std::string& text : texts) {
        lines.push_back({random.kept(text), static_cast<int>(lines.size()) + 1});
    }
    return lines;
}

TEST(parserModel, ReachesTheLimitsWhereTheParserDoes) {
    static const char* const messages[] = {"Too many row nodes.", "Too many cell nodes.",
                                           "Too many para nodes."};
    Lines random(3);
    for (std::size_t kind = rowKind; kind <= paraKind; ++kind) {
        for (int i = 0; i < 10; ++i) {
            const std::vector<SourceLine> lines = manyNodes(random, kind);
            Tally tally;
            ASSERT_NO_FATAL_FAILURE(tally.compare(lines));
            EXPECT_EQ(ReadDescription(lines).error.description, messages[kind]);
        }
    }
}

TEST(parserModel, RepairsAnyLinesAsTheParserDoes) {
    static const char* const words[] = {"(r", "(r", "(r", "c)", "c)", "r)", "(c", "(row", "(r ;"};
    Lines random(4);
    int repairs = 0;
    for (int i = 0; i < 20000; ++i) {
        std::vector<SourceLine> lines;
        for (std::size_t count = random.below(12); count > 0; --count) {
            lines.push_back({random.oneOf(words), static_cast<int>(lines.size()) + 1});
        }
        const std::string expected = joined(plain::repaired(plain::linesOf(lines)));
        ASSERT_EQ(joined(repairLines(lines)), expected) << joined(lines);
        repairs += expected != joined(lines) ? 1 : 0;
    }
    EXPECT_GT(repairs, 5000);
}

}  // namespace
}  // namespace quorvane
