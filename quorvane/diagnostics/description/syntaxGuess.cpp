#include "quorvane/diagnostics/description/syntaxGuess.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <vector>

#include "quorvane/base/text/nowhere.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/diagnostics/engine/nearestWord.h"

namespace quorvane {

namespace {

constexpr std::string_view nodeNames[] = {nodeName(NodeKind::Doc), nodeName(NodeKind::Row),
                                          nodeName(NodeKind::Cell), nodeName(NodeKind::Para)};

/// The node that a name stands for, or nearly stands for.
NodeKind nodeNearly(std::string_view name, const Vocabulary& vocabulary) {
    if (lowerCase(name) == "document") {
        return NodeKind::Doc;
    }
    if (lowerCase(name) == "paragraph") {
        return NodeKind::Para;
    }
    const NodeKind kind = vocabulary.nodeKind(name);
    return kind != NodeKind::None || name.size() < 3
               ? kind
               : vocabulary.nodeKind(nearestWord(name, nodeNames));
}

/// True when a name is certainly meant to be that of a node.
bool isCertainNode(std::string_view name, const Vocabulary& vocabulary) {
    const std::string lower = lowerCase(name);
    return lower == "document" || lower == "paragraph" ||
           vocabulary.nodeKind(name) != NodeKind::None || !certainWord(name, nodeNames).empty();
}

/// The name that a text begins with, up to one of the characters, a blank or a comment.
std::string_view nameBefore(std::string_view ends, std::string_view text, const Dialect& dialect) {
    const std::string_view head = headOf(text, dialect);
    return head.substr(0, head.find_first_of(ends));
}

/// The node's name as it is written here: in its long form, unless the line has the short one.
std::string nameFor(NodeKind kind, std::string_view written) {
    return written.size() == 1 && kind != NodeKind::Doc ? lowerCase(written)
                                                        : std::string(nodeName(kind));
}

/// True when a line goes on after a leaf with another one.
bool beginsLeaf(std::string_view rest, const Vocabulary& vocabulary) {
    const std::size_t equals = rest.find('=');
    return rest.starts_with('(') && equals != nowhere &&
           vocabulary.isKey(trimBlanks(rest.substr(1, equals - 1)));
}

/// What to do about a text that goes on after its first ")". Where the line ends with one more and
/// each has its "(", it is certain which of them are text.
Hint parenthesisHint(std::string_view line, std::size_t equals, const Dialect& dialect) {
    const std::string words = "the value ends at the first ); write \\'29 for a literal )";
    const std::string_view key = trimBlanks(line.substr(1, equals - 1));
    const std::string_view text = line.substr(equals + 1, line.size() - equals - 2);
    std::ptrdiff_t open = 0;
    std::string escaped;
    for (const char character : text) {
        open += character == '(' ? 1 : (character == ')' ? -1 : 0);
        escaped += character == ')' ? "\\'29" : std::string(1, character);
        if (open < 0) {
            return words;
        }
    }
    if (line.back() != ')' || open != 0 || text.find(dialect.marks.comment) != nowhere ||
        dialect.vocabulary.expand(key) != "para-text") {
        return words;
    }
    return {words, "(" + std::string(key) + "=" + escaped + ")"};
}

SyntaxGuess guessLeaf(std::string_view line, std::size_t equals, const Dialect& dialect) {
    SyntaxGuess guess;
    const bool isOpened = line.front() == '(';
    guess.meant.line.key = trimBlanks(line.substr(isOpened ? 1 : 0, equals - (isOpened ? 1 : 0)));
    const std::size_t close = line.find(')', equals);
    guess.meant.line.value =
        trimBlanks(line.substr(equals + 1, close == nowhere ? close : close - equals - 1));
    guess.meant.line.type = LineType::Leaf;
    if (guess.meant.line.key.find('(') != nowhere) {
        guess.meant.line.type = LineType::Unreadable;
        guess.hint = "write each node and each key on its own line";
    } else if (!isOpened) {
        guess.hint = "did you mean (" + std::string(line) + (close == nowhere ? ")?" : "?");
    } else if (close == nowhere) {
        guess.meant.goesOn = true;
        guess.hint =
            "the ) is missing; a value ends on its own line, so write \\line for a line break";
    } else if (line.find(')') < equals) {
        guess.hint = "the key contains a )";
    } else if (beginsLeaf(trimWhitespace(line.substr(close + 1)), dialect.vocabulary)) {
        guess.hint = "write each node and each key on its own line";
    } else {
        guess.hint = parenthesisHint(line, equals, dialect);
    }
    return guess;
}

SyntaxGuess guessOpener(std::string_view line, const Dialect& dialect) {
    const std::string_view head = nameBefore(")=", line.substr(1), dialect);
    const std::string_view rest = trimWhitespace(line.substr(head.size() + 1));
    const std::size_t colon = std::min(line.find(':'), line.size());
    if (const std::string_view key = trimBlanks(line.substr(1, colon - 1));
        colon < line.size() && dialect.vocabulary.isKey(key)) {
        SyntaxGuess guess;
        guess.meant.line.type = LineType::Leaf;
        guess.meant.line.key = key;
        const std::size_t end = std::min(line.find(')', colon), line.size());
        guess.meant.line.value = trimBlanks(line.substr(colon + 1, end - colon - 1));
        guess.hint =
            "did you mean (" + std::string(key) + "=" + std::string(guess.meant.line.value) + ")?";
        return guess;
    }
    if (dialect.vocabulary.isKey(head) && dialect.vocabulary.nodeKind(head) == NodeKind::None) {
        SyntaxGuess guess;
        guess.meant.line.type = LineType::Leaf;
        guess.meant.line.key = head;
        const bool isEnded = !rest.empty() && rest.back() == ')';
        guess.hint = "did you mean (" + std::string(head) + "=" +
                     std::string(rest.substr(0, rest.size() - (isEnded ? 1 : 0))) + ")?";
        return guess;
    }
    SyntaxGuess guess;
    guess.meant.line.kind = nodeNearly(head, dialect.vocabulary);
    if (guess.meant.line.kind == NodeKind::None) {
        return guess;
    }
    const std::string name = nameFor(guess.meant.line.kind, head);
    guess.meant.line.type = LineType::Opener;
    if (rest == ")") {
        guess.hint = "(" + name + " opens the node and " + name + ") closes it";
    } else if (!isEmptyOrComment(rest, dialect)) {
        guess.hint = dialect.marks.commentsFollow
                         ? "only a comment, which begins with ;, can follow (" + name
                         : "nothing can follow (" + name;
    } else {
        guess.hint = "did you mean (" + name + "?";
        if (isCertainNode(head, dialect.vocabulary)) {
            guess.hint.replacement = "(" + name + std::string(line.substr(head.size() + 1));
        }
    }
    return guess;
}

/// A closer as other languages write it: "(/row)" or "</row>".
SyntaxGuess guessSlashedCloser(std::string_view line, std::size_t slash, const Dialect& dialect) {
    SyntaxGuess guess;
    const std::string_view name = nameBefore(")>", line.substr(slash + 1), dialect);
    guess.meant.line.kind = nodeNearly(name, dialect.vocabulary);
    if (guess.meant.line.kind != NodeKind::None) {
        guess.meant.line.type = LineType::Closer;
        guess.hint = "did you mean " + nameFor(guess.meant.line.kind, name) + ")?";
    }
    return guess;
}

SyntaxGuess guessCloser(std::string_view line, const Dialect& dialect) {
    SyntaxGuess guess;
    const std::string_view head = nameBefore(")", line, dialect);
    guess.meant.line.kind = nodeNearly(head, dialect.vocabulary);
    if (guess.meant.line.kind == NodeKind::None) {
        return guess;
    }
    const std::string name = nameFor(guess.meant.line.kind, head);
    if (line.find(')') == nowhere) {
        guess.hint = "did you mean (" + name + " or " + name + ")?";
        guess.meant.line.kind = NodeKind::None;
        return guess;
    }
    guess.meant.line.type = LineType::Closer;
    guess.hint = dialect.vocabulary.nodeKind(head) == NodeKind::None || line[head.size()] != ')'
                     ? "did you mean " + name + ")?"
                 : dialect.marks.commentsFollow
                     ? "only a comment, which begins with ;, can follow " + name + ")"
                     : "nothing can follow " + name + ")";
    const std::string_view rest = trimWhitespace(line.substr(head.size()));
    const std::string_view after =
        trimWhitespace(rest.substr(std::min<std::size_t>(1, rest.size())));
    if (rest.starts_with(')') && isEmptyOrComment(after, dialect) &&
        isCertainNode(head, dialect.vocabulary)) {
        guess.hint.replacement = name + std::string(rest);
    }
    return guess;
}

// A line of many ";" is not taken apart at each.
constexpr int maxComments = 64;

/// A line with a comment after it, in a language in which comments stand on lines of their own.
std::optional<SyntaxGuess> guessBeforeComment(std::string_view line, const Dialect& dialect) {
    std::size_t at = line.find(dialect.marks.comment);
    for (int i = 0; i < maxComments && at != nowhere;
         ++i, at = line.find(dialect.marks.comment, at + 1)) {
        const std::string_view before = trimWhitespace(line.substr(0, at));
        if (before.empty()) {
            return std::nullopt;
        }
        if (const DescriptionLine parts = descriptionLine(before, dialect); parts.isReadable()) {
            SyntaxGuess guess;
            guess.meant.line = parts;
            guess.hint = "a comment stands on a line of its own";
            return guess;
        }
    }
    return std::nullopt;
}

/// A leaf whose value ends at the last ")" of its line.
SyntaxGuess guessLiteralLeaf(std::string_view line, std::size_t equals, const Dialect& dialect) {
    SyntaxGuess guess = guessLeaf(line, equals, dialect);
    if (line.starts_with(dialect.marks.open)) {
        const std::size_t close = line.rfind(dialect.marks.close);
        const bool isClosed = close != nowhere && close > equals;
        guess.meant.goesOn = false;
        guess.meant.line.value =
            trimBlanks(line.substr(equals + 1, isClosed ? close - equals - 1 : nowhere));
        guess.hint = isClosed ? "nothing can follow the ) that ends the value"
                              : "the ) is missing at the end of the line; put a value of several "
                                "lines between \"\"\" and \"\"\"";
    }
    return guess;
}

}  // namespace

SyntaxGuess guessLine(std::string_view line, const Dialect& dialect) {
    const bool commentsFollow = dialect.marks.commentsFollow;
    if (!commentsFollow) {
        if (const std::optional<SyntaxGuess> guess = guessBeforeComment(line, dialect)) {
            return *guess;
        }
    }
    if (line.starts_with("{{") && dialect.values.areExtended) {
        SyntaxGuess guess;
        guess.hint = "this is a tag of a template; fill it with --data FILE";
        return guess;
    }
    for (const std::string_view mark : {"#", "//", "/*", "--", "<!--"}) {
        if (line.starts_with(mark)) {
            SyntaxGuess guess;
            guess.hint = "a comment begins with ;";
            return guess;
        }
    }
    const std::size_t equals = line.find('=');
    const std::size_t comment = line.find(dialect.marks.comment);
    if (equals != nowhere && (line.front() == '(' || equals < comment)) {
        const std::string_view key = trimBlanks(
            line.substr(line.front() == '(' ? 1 : 0, equals - (line.front() == '(' ? 1U : 0U)));
        if (line.front() == '(' || dialect.vocabulary.isKey(key)) {
            return commentsFollow ? guessLeaf(line, equals, dialect)
                                  : guessLiteralLeaf(line, equals, dialect);
        }
    }
    if (line.size() > 1 && line[1] == '/' && (line.front() == '(' || line.front() == '<')) {
        return guessSlashedCloser(line, 1, dialect);
    }
    return line.front() == '(' ? guessOpener(line, dialect) : guessCloser(line, dialect);
}

}  // namespace quorvane
