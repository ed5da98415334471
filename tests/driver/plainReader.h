#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <list>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "quorvane/support/SourceLine.h"
#include "tests/driver/ParsedDescription.h"

// The reader as its rules are stated, step by step and level by level, with no regard to speed or
// stack: what tests and fuzzers compare the reader with.

namespace quorvane::plain {

// The codes of the kinds of nodes.
inline constexpr int rowKind = 0;
inline constexpr int cellKind = 1;
inline constexpr int paraKind = 2;
inline constexpr int docKind = 3;
inline constexpr int noNode = 4;

inline bool isBlank(char character) {
    return character == ' ' || character == '\t' || character == '\r' || character == '\n';
}

inline std::string withoutEnds(std::string text, bool (*goes)(char)) {
    while (!text.empty() && goes(text.front())) {
        text.erase(0, 1);
    }
    while (!text.empty() && goes(text.back())) {
        text.pop_back();
    }
    return text;
}

inline std::string trimmed(std::string text) {
    return withoutEnds(std::move(text), [](char character) { return character == ' '; });
}

inline bool isEmptyOrComment(const std::string& rest) {
    for (const char character : rest) {
        if (!isBlank(character)) {
            return character == ';';
        }
    }
    return true;
}

/// A line with its text.
struct Line {
    std::string text;
    int number = 0;
};

inline std::vector<Line> linesOf(const std::vector<SourceLine>& lines) {
    std::vector<Line> copies;
    for (const SourceLine& line : lines) {
        copies.push_back({std::string(line.text), line.number});
    }
    return copies;
}

/// The lines of a text, without those that are empty or only a comment.
inline std::vector<Line> linesOf(const std::string& text) {
    std::vector<Line> lines;
    std::string line;
    int number = 1;
    const auto take = [&] {
        if (!isEmptyOrComment(line)) {
            lines.push_back({withoutEnds(line, isBlank), number});
        }
        line.clear();
        ++number;
    };
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '\n' || text[at] == '\r') {
            take();
            at += text.compare(at, 2, "\r\n") == 0 ? 1 : 0;
        } else {
            line += text[at];
        }
    }
    take();
    return lines;
}

inline std::string lowered(std::string text) {
    for (char& character : text) {
        if (character >= 'A' && character <= 'Z') {
            character = static_cast<char>(character - 'A' + 'a');
        }
    }
    return text;
}

inline std::string expanded(const std::string& word) {
    static const std::map<std::string, std::string> longForms = {
        {"r", "row"},
        {"c", "cell"},
        {"p", "para"},
        {"rb", "row-backcolor"},
        {"rtb", "row-top-border"},
        {"rbb", "row-bottom-border"},
        {"rlb", "row-left-border"},
        {"rrb", "row-right-border"},
        {"cb", "cell-backcolor"},
        {"ctb", "cell-top-border"},
        {"cbb", "cell-bottom-border"},
        {"clb", "cell-left-border"},
        {"crb", "cell-right-border"},
        {"cw", "cell-width"},
        {"ca", "cell-alignment"},
        {"cs", "cell-style"},
        {"pt", "para-text"},
        {"ps", "para-style"},
        {"pa", "para-alignment"},
        {"pmf", "para-marked-field"},
        {"cmf", "cell-marked-field"},
    };
    const auto found = longForms.find(word);
    return found == longForms.end() ? word : found->second;
}

inline int kindOfName(const std::string& name) {
    const std::string word = expanded(lowered(name));
    return word == "row"    ? rowKind
           : word == "cell" ? cellKind
           : word == "para" ? paraKind
           : word == "doc"  ? docKind
                            : noNode;
}

inline std::string headOf(const std::string& line) {
    std::string head;
    for (const char character : line) {
        if (isBlank(character) || character == ';') {
            break;
        }
        head += character;
    }
    return head;
}

inline bool restIsFree(const std::string& line) {
    return isEmptyOrComment(line.substr(headOf(line).size()));
}

inline int openedBy(const std::string& line) {
    const std::string head = headOf(line);
    return head.empty() || head.front() != '(' || !restIsFree(line) ? noNode
                                                                    : kindOfName(head.substr(1));
}

inline int closedBy(const std::string& line) {
    const std::string head = headOf(line);
    return head.empty() || head.back() != ')' || !restIsFree(line)
               ? noNode
               : kindOfName(head.substr(0, head.size() - 1));
}

// "(", anything, "=", anything, ")", anything; after the first ")" only a comment.
inline bool isLeaf(const std::string& line) {
    const std::size_t equals = line.find('=');
    return line.substr(0, 1) == "(" && equals != std::string::npos &&
           line.find(')', equals) != std::string::npos &&
           isEmptyOrComment(line.substr(line.find(')') + 1));
}

inline bool mayStandIn(int parent, int child) {
    return (parent == docKind && child == rowKind) || (parent == rowKind && child == cellKind) ||
           (parent == cellKind && child == paraKind);
}

/// The number that a text reads as.
inline std::optional<double> numberOf(const std::string& text) {
    std::size_t at = 0;
    const auto isAt = [&](const char* characters) {
        return at < text.size() && std::string(characters).find(text[at]) != std::string::npos;
    };
    const auto passDigits = [&] {
        std::size_t count = 0;
        for (; isAt("0123456789"); ++at) {
            ++count;
        }
        return count;
    };
    at += isAt("+-") ? 1 : 0;
    std::size_t digits = passDigits();
    if (isAt(".")) {
        ++at;
        digits += passDigits();
    }
    if (digits == 0) {
        return std::nullopt;
    }
    if (isAt("eE")) {
        ++at;
        at += isAt("+-") ? 1 : 0;
        if (passDigits() == 0) {
            return std::nullopt;
        }
    }
    const double number = std::strtod(text.c_str(), nullptr);
    return at == text.size() && number - number == 0 ? std::optional(number) : std::nullopt;
}

/// A number in the fewest digits that read back.
inline std::string textOf(double number) {
    if (number == 0) {
        return "0";
    }
    char digits[64];
    int precision = 0;
    do {
        std::snprintf(digits, sizeof digits, "%.*e", precision++, number);
    } while (std::strtod(digits, nullptr) != number);
    const int exponent =
        std::atoi(std::string(digits).substr(std::string(digits).find('e') + 1).c_str());
    if (exponent >= -5 && exponent < 15) {
        std::snprintf(digits, sizeof digits, "%.*f", std::max(0, precision - 1 - exponent), number);
    }
    return digits;
}

struct Leaf {
    /// As it is read; a number as it is written.
    std::string text;
    std::optional<double> number;
    int line = 0;

    std::string value() const { return number ? textOf(*number) : text; }
};

struct Node {
    /// A leaf under its key, or a child under its number.
    struct Entry {
        std::string key;
        Leaf leaf;
        int kind = noNode;
        std::list<Node> child;

        bool isLeaf() const { return child.empty(); }
    };

    int line = 0;
    std::list<Entry> entries;

    std::string text() const {
        std::string all = "{";
        for (const Entry& entry : entries) {
            all += all.size() > 1 ? " " : "";
            all += entry.key;
            all += !entry.isLeaf()     ? entry.child.front().text()
                   : entry.leaf.number ? "=" + entry.leaf.value()
                                       : "=\"" + entry.leaf.text + '"';
        }
        return all + "}";
    }
};

/// The lines of a description as a tree, up to their end or the first error.
class Reader {
public:
    explicit Reader(std::vector<Line> lines) : lines_(std::move(lines)) {
        try {
            treeWalkerBuild(root, docKind);
        } catch (const ErrorFacts& raised) {
            error = raised;
        }
    }

    Node root;
    ErrorFacts error;

private:
    [[noreturn]] void fail(tErrorLevel level, const std::string& message,
                           const std::string& source) const {
        throw driverErrorOf(level, message, source, lines_[current_].number);
    }

    void treeWalkerBuild(Node& map, int parentKind) {
        openerCount_ = 0;
        bool isFinished = false;
        while (current_ < lines_.size() && !isFinished) {
            const std::string& line = lines_[current_].text;
            if (isLeaf(line)) {
                addLeaf(map, line);
                ++current_;
            } else if (openedBy(line) != noNode) {
                ++openerCount_;
                const int kind = openedBy(line);
                const int number = running_[kind] + openerCount_;
                checkLimit(kind, number);
                isFinished = kind != docKind && !mayStandIn(parentKind, kind);
                if (!isFinished) {
                    running_[kind] = number;
                    map.entries.push_back(
                        {std::to_string(number), {}, kind, {{lines_[current_].number, {}}}});
                    ++current_;
                    treeWalkerBuild(map.entries.back().child.front(), kind);
                }
            } else if (closedBy(line) != noNode) {
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

    void addLeaf(Node& map, const std::string& line) const {
        const std::size_t equals = line.find('=');
        const std::string key = expanded(trimmed(line.substr(1, equals - 1)));
        std::string value = line.substr(equals + 1);
        value = trimmed(value.substr(0, value.find(')')));
        for (const Node::Entry& entry : map.entries) {
            if (entry.isLeaf() && entry.key == key) {
                throw duplicateKey(lines_[current_].number);
            }
        }
        map.entries.push_back({key, {value, numberOf(value), lines_[current_].number}, noNode, {}});
    }

    std::vector<Line> lines_;
    std::size_t current_ = 0;
    int running_[4] = {1000, 2000, 3000, 0};
    int openerCount_ = 0;
};

/// From the last line to the first, each with the one that was visited before it.
inline std::vector<Line> repaired(const std::vector<Line>& given) {
    std::list<Line> lines(given.begin(), given.end());
    auto following = lines.end();
    for (auto line = lines.end(); line != lines.begin();) {
        --line;
        if (following != lines.end() && following->text == "(r") {
            if (line->text == "(r") {
                line = lines.erase(line);
                continue;
            }
            if (line->text == "c)") {
                lines.insert(following, {"r)", following->number});
            }
        }
        following = line;
    }
    return {lines.begin(), lines.end()};
}

}  // namespace quorvane::plain
