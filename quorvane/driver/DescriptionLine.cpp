#include "quorvane/driver/DescriptionLine.h"

#include <cstddef>
#include <string>

#include "quorvane/base/text/nowhere.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/support/FilledValue.h"

namespace quorvane {

namespace {

/// `find`, compiled into its callers: lines are short.
std::size_t positionIn(std::string_view text, char character, std::size_t start = 0) {
    const char* const found =
        std::char_traits<char>::find(text.data() + start, text.size() - start, character);
    return found ? static_cast<std::size_t>(found - text.data()) : nowhere;
}

/// The mark after which only a comment can follow.
std::size_t closeIn(std::string_view line, const LineMarks& marks) {
    if (marks.commentsFollow) {
        return positionIn(line, marks.close);
    }
    return line.ends_with(marks.close) ? line.size() - 1 : nowhere;
}

/// Unreadable for any other line.
DescriptionLine leafIn(std::string_view line, const Dialect& dialect) {
    const LineMarks& marks = dialect.marks;
    if (!line.starts_with(marks.open)) {
        return {};
    }
    const std::size_t equals = positionIn(line, marks.equals);
    const std::size_t close = equals == nowhere ? nowhere : closeIn(line, marks);
    if (close == nowhere) {
        return {};
    }
    // What follows a ")" in the key must be a comment.
    const std::size_t end = close > equals ? close : positionIn(line, marks.close, equals);
    const std::string_view rest(line.data() + close + 1, line.size() - close - 1);
    if (end == nowhere || !isEmptyOrComment(rest, dialect)) {
        return {};
    }
    return {.type = LineType::Leaf,
            .key = trimBlanks({line.data() + 1, equals - 1}),
            .value = trimBlanks({line.data() + equals + 1, end - equals - 1}),
            .rest = rest};
}

/// Unreadable for any other line.
DescriptionLine openerOrCloserIn(std::string_view line, const Dialect& dialect) {
    std::string_view name = headOf(line, dialect);
    const std::string_view rest(line.data() + name.size(), line.size() - name.size());
    LineType type = LineType::Unreadable;
    if (name.starts_with(dialect.marks.open)) {
        type = LineType::Opener;
        name.remove_prefix(1);
    } else if (name.ends_with(dialect.marks.close)) {
        type = LineType::Closer;
        name.remove_suffix(1);
    } else {
        return {};
    }
    const NodeKind kind = dialect.vocabulary.nodeKind(name);
    if (kind == NodeKind::None || !isEmptyOrComment(rest, dialect)) {
        return {};
    }
    return {.type = type, .kind = kind, .name = name, .rest = rest};
}

}  // namespace

DescriptionLine descriptionLine(std::string_view line, const Dialect& dialect) {
    DescriptionLine parts = leafIn(line, dialect);
    if (!parts.isReadable()) {
        parts = openerOrCloserIn(line, dialect);
    }
    return parts;
}

DescriptionLine descriptionLine(const SourceLine& line, const Dialect& dialect) {
    DescriptionLine parts = descriptionLine(line.text, dialect);
    if (line.filled) {
        parts.value = line.filled->text;
    }
    return parts;
}

DescriptionLine unclosedLeaf(std::string_view line, const Dialect& dialect) {
    const std::size_t equals = line.find(dialect.marks.equals);
    if (line.front() != dialect.marks.open || equals == std::string_view::npos) {
        return {};
    }
    const std::string_view value = trimBlanks(line.substr(equals + 1));
    if (!dialect.marks.beginsBlock(value)) {
        return {};
    }
    return {.type = LineType::Leaf, .key = trimBlanks(line.substr(1, equals - 1)), .value = value};
}

std::string_view headOf(std::string_view line, const Dialect& dialect) {
    const char comment = dialect.marks.comment;
    std::size_t end = 0;
    while (end < line.size() && !isWhitespace(line[end]) && line[end] != comment) {
        ++end;
    }
    return {line.data(), end};
}

bool isEmptyOrComment(std::string_view text, const Dialect& dialect) {
    std::size_t first = 0;
    while (first < text.size() && isWhitespace(text[first])) {
        ++first;
    }
    return first == text.size() ||
           (dialect.marks.commentsFollow && text[first] == dialect.marks.comment);
}

}  // namespace quorvane
