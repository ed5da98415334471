// The reader compared with a model of it: the rules of the language as they are told, step by step
// and level by level, with no regard to speed or stack.

#include <gtest/gtest.h>

#include <cctype>
#include <cstddef>
#include <deque>
#include <list>
#include <map>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/driver/treeText.h"

namespace quorvane {
namespace {

constexpr int row = 0;
constexpr int cell = 1;
constexpr int para = 2;
constexpr int doc = 3;
constexpr int noNode = 4;

bool isBlank(char character) {
    return character == ' ' || character == '\t' || character == '\r' || character == '\n';
}

bool isEmptyOrComment(const std::string& rest) {
    for (const char character : rest) {
        if (!isBlank(character)) {
            return character == ';';
        }
    }
    return true;
}

std::string headOf(const std::string& line) {
    std::string head;
    for (const char character : line) {
        if (isBlank(character) || character == ';') {
            break;
        }
        head += character;
    }
    return head;
}

std::string expanded(const std::string& word) {
    static const std::map<std::string, std::string> longForms = {
        {"r", "row"},         {"c", "cell"},       {"p", "para"}, {"rb", "row-backcolor"},
        {"cw", "cell-width"}, {"pt", "para-text"},
    };
    const auto found = longForms.find(word);
    return found == longForms.end() ? word : found->second;
}

int kindOfName(std::string name) {
    for (char& character : name) {
        character = static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
    }
    name = expanded(name);
    return name == "row"    ? row
           : name == "cell" ? cell
           : name == "para" ? para
           : name == "doc"  ? doc
                            : noNode;
}

int openedBy(const std::string& line) {
    const std::string head = headOf(line);
    return head.empty() || head.front() != '(' ? noNode : kindOfName(head.substr(1));
}

int closedBy(const std::string& line) {
    const std::string head = headOf(line);
    return head.empty() || head.back() != ')' ? noNode
                                              : kindOfName(head.substr(0, head.size() - 1));
}

bool restIsFree(const std::string& line) {
    return isEmptyOrComment(line.substr(headOf(line).size()));
}

// "(", anything, "=", anything, ")", anything.
bool looksLikeLeaf(const std::string& line) {
    for (std::size_t equals = 1; equals < line.size(); ++equals) {
        for (std::size_t end = equals + 1; end < line.size(); ++end) {
            if (line[0] == '(' && line[equals] == '=' && line[end] == ')') {
                return true;
            }
        }
    }
    return false;
}

std::string trimmed(std::string text) {
    while (!text.empty() && text.front() == ' ') {
        text.erase(0, 1);
    }
    while (!text.empty() && text.back() == ' ') {
        text.pop_back();
    }
    return text;
}

bool mayStandIn(int parent, int child) {
    return (parent == doc && child == row) || (parent == row && child == cell) ||
           (parent == cell && child == para);
}

struct ModelNode {
    struct Entry {
        std::string key;
        bool isLeaf;
        std::string value;
        std::list<ModelNode> child;
    };

    std::list<Entry> entries;

    std::string text() const {
        std::string all = "{";
        for (const Entry& entry : entries) {
            all += all.size() > 1 ? " " : "";
            all += entry.isLeaf ? entry.key + "=" + entry.value
                                : entry.key + entry.child.front().text();
        }
        return all + "}";
    }
};

class ReaderModel {
public:
    explicit ReaderModel(std::vector<SourceLine> lines) : lines_(std::move(lines)) {
        try {
            treeWalkerBuild(root, doc);
        } catch (const ToldError& told) {
            error = told;
        }
    }

    ModelNode root;
    ToldError error;

private:
    [[noreturn]] void fail(tErrorLevel level, const std::string& message,
                           const std::string& source) const {
        throw driverErrorOf(level, message, source, lines_[current_].number);
    }

    void treeWalkerBuild(ModelNode& map, int parentKind) {
        openerCount_ = 0;
        bool isFinished = false;
        while (current_ < lines_.size() && !isFinished) {
            const std::string line(lines_[current_].text);
            if (looksLikeLeaf(line) && isEmptyOrComment(line.substr(line.find(')') + 1))) {
                addLeaf(map, line);
                ++current_;
            } else if (openedBy(line) != noNode && restIsFree(line)) {
                ++openerCount_;
                const int kind = openedBy(line);
                const int number = running_[kind] + openerCount_;
                checkLimit(kind, number);
                isFinished = kind != doc && !mayStandIn(parentKind, kind);
                if (!isFinished) {
                    running_[kind] = number;
                    map.entries.push_back({std::to_string(number), false, "", {{}}});
                    ++current_;
                    treeWalkerBuild(map.entries.back().child.front(), kind);
                }
            } else if (closedBy(line) != noNode && restIsFree(line)) {
                if (closedBy(line) != parentKind) {
                    fail(eWrongNodeType, "Wrong node type in " + line,
                         "CRtfDriver.treeWalkerBuild");
                }
                isFinished = true;
                ++current_;
            } else {
                fail(eSyntaxError, line + " has a wrong syntax",
                     "sLine is neither a recognized node nor a leaf\r\nsLeaf = " + line +
                         "\r\nCRtfDriver.treeWalkerBuild");
            }
        }
    }

    void checkLimit(int kind, int number) const {
        static const char* const names[] = {"row", "cell", "para", "doc"};
        static const int highest[] = {1999, 2999, 3999, 999};
        if (number > highest[kind]) {
            fail(eWrongNumberOfNodes, std::string("Too many ") + names[kind] + " nodes.",
                 "CRtfDriver.treeWakerBuild");
        }
    }

    void addLeaf(ModelNode& map, const std::string& line) const {
        const std::size_t equals = line.find('=');
        const std::string key = expanded(trimmed(line.substr(1, equals - 1)));
        std::string value = line.substr(equals + 1);
        value = trimmed(value.substr(0, value.find(')')));
        for (const ModelNode::Entry& entry : map.entries) {
            if (entry.isLeaf && entry.key == key) {
                throw duplicateKey(lines_[current_].number);
            }
        }
        const bool isNumber =
            !value.empty() && value.find_first_not_of("0123456789") == std::string::npos;
        map.entries.push_back(
            {key, true, isNumber ? std::to_string(std::stoi(value)) : '"' + value + '"', {}});
    }

    std::vector<SourceLine> lines_;
    std::size_t current_ = 0;
    int running_[4] = {1000, 2000, 3000, 0};
    int openerCount_ = 0;
};

// From the last line to the first, each with the one that was visited before it.
std::vector<std::string> repairedByModel(std::list<std::string> lines) {
    auto following = lines.end();
    for (auto line = lines.end(); line != lines.begin();) {
        --line;
        if (following != lines.end() && *following == "(r") {
            if (*line == "(r") {
                line = lines.erase(line);
                continue;
            }
            if (*line == "c)") {
                lines.insert(following, "r)");
            }
        }
        following = line;
    }
    return {lines.begin(), lines.end()};
}

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
        std::vector<int> open{doc};
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
        const int kind = choice > 990 ? doc : static_cast<int>(below(3));
        if (kind == doc) {
            open.push_back(doc);
            return openers[doc];
        }
        while (open.size() > 1 && !mayStandIn(open.back(), kind)) {
            open.pop_back();
        }
        const int actual = mayStandIn(open.back(), kind) ? kind : row;
        open.push_back(actual);
        return openers[actual];
    }

    std::mt19937 random_;
    std::deque<std::string> texts_;
};

std::string joined(const std::vector<SourceLine>& lines) {
    std::string all;
    for (const SourceLine& line : lines) {
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
        const ReaderModel model(lines);
        const ReadDescription read(lines);
        ASSERT_EQ(read.error, model.error) << joined(lines);
        ASSERT_EQ(read.tree, model.root.text()) << joined(lines);
        ++(model.error == ToldError() ? complete : errors[model.error.number]);
        nodes += static_cast<std::size_t>(std::count(read.tree.begin(), read.tree.end(), '{'));
    }
};

constexpr std::int32_t duplicate = 457;
constexpr std::int32_t wrongNode = -2147221504 + eWrongNodeType;
constexpr std::int32_t wrongSyntax = -2147221504 + eSyntaxError;

TEST(readerModel, ReadsAnyLinesAsTheReaderDoes) {
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

TEST(readerModel, ReadsDescriptionsWithFaultsAsTheReaderDoes) {
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

TEST(readerModel, ReachesTheLimitsWhereTheReaderDoes) {
    static const char* const messages[] = {"Too many row nodes.", "Too many cell nodes.",
                                           "Too many para nodes."};
    Lines random(3);
    for (std::size_t kind = row; kind <= para; ++kind) {
        for (int i = 0; i < 10; ++i) {
            const std::vector<SourceLine> lines = manyNodes(random, kind);
            Tally tally;
            ASSERT_NO_FATAL_FAILURE(tally.compare(lines));
            EXPECT_EQ(ReadDescription(lines).error.description, messages[kind]);
        }
    }
}

TEST(readerModel, RepairsAnyLinesAsTheReaderDoes) {
    static const char* const words[] = {"(r", "(r", "(r", "c)", "c)", "r)", "(c", "(row", "(r ;"};
    Lines random(4);
    int repairs = 0;
    for (int i = 0; i < 20000; ++i) {
        std::vector<SourceLine> lines;
        std::list<std::string> texts;
        for (std::size_t count = random.below(12); count > 0; --count) {
            texts.push_back(random.oneOf(words));
            lines.push_back({texts.back(), static_cast<int>(lines.size()) + 1});
        }
        std::vector<std::string> repaired;
        for (const SourceLine& line : repairLines(lines)) {
            repaired.emplace_back(line.text);
        }
        ASSERT_EQ(repaired, repairedByModel(texts)) << joined(lines);
        repairs += repaired != std::vector<std::string>(texts.begin(), texts.end()) ? 1 : 0;
    }
    EXPECT_GT(repairs, 5000);
}

}  // namespace
}  // namespace quorvane
