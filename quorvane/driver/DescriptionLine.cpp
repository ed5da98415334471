#include "quorvane/driver/DescriptionLine.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "quorvane/base/text/trimming.h"

namespace quorvane {

namespace {

constexpr std::size_t nowhere = std::string_view::npos;

std::size_t endOfValue(std::string_view line, std::size_t equals, const LineMarks& marks) {
    if (marks.commentsFollow) {
        return line.find(marks.close, equals);
    }
    return line.back() == marks.close ? line.size() - 1 : nowhere;
}

std::optional<DescriptionLine> leafIn(std::string_view line, const Dialect& dialect) {
    const LineMarks& marks = dialect.marks;
    if (!line.starts_with(marks.open)) {
        return std::nullopt;
    }
    const std::size_t equals = line.find(marks.equals);
    const std::size_t end = equals == nowhere ? nowhere : endOfValue(line, equals, marks);
    if (end == nowhere) {
        return std::nullopt;
    }
    // A ")" in the key is the first one, and what follows must be a comment.
    const std::size_t inKey = line.substr(0, equals).find(marks.close);
    const std::string_view rest = line.substr((inKey == nowhere ? end : inKey) + 1);
    if (!isEmptyOrComment(rest, dialect)) {
        return std::nullopt;
    }
    return DescriptionLine{.type = LineType::Leaf,
                           .key = trimBlanks(line.substr(1, equals - 1)),
                           .value = trimBlanks(line.substr(equals + 1, end - equals - 1)),
                           .rest = rest};
}

std::optional<DescriptionLine> openerOrCloserIn(std::string_view line, const Dialect& dialect) {
    const std::string_view head = headOf(line, dialect);
    const std::string_view rest = line.substr(head.size());
    if (head.empty() || !isEmptyOrComment(rest, dialect)) {
        return std::nullopt;
    }
    if (head.front() == dialect.marks.open) {
        const std::string_view name = head.substr(1);
        if (const NodeKind kind = dialect.vocabulary.nodeKind(name); kind != NodeKind::None) {
            return DescriptionLine{
                .type = LineType::Opener, .kind = kind, .name = name, .rest = rest};
        }
    } else if (head.back() == dialect.marks.close) {
        const std::string_view name = head.substr(0, head.size() - 1);
        if (const NodeKind kind = dialect.vocabulary.nodeKind(name); kind != NodeKind::None) {
            return DescriptionLine{
                .type = LineType::Closer, .kind = kind, .name = name, .rest = rest};
        }
    }
    return std::nullopt;
}

}  // namespace

DescriptionLine descriptionLine(std::string_view line, const Dialect& dialect) {
    if (const std::optional<DescriptionLine> leaf = leafIn(line, dialect)) {
        return *leaf;
    }
    return openerOrCloserIn(line, dialect).value_or(DescriptionLine());
}

std::string_view headOf(std::string_view line, const Dialect& dialect) {
    const auto* end = std::find_if(line.begin(), line.end(), [&](char character) {
        return isWhitespace(character) || character == dialect.marks.comment;
    });
    return line.substr(0, static_cast<std::size_t>(end - line.begin()));
}

bool isEmptyOrComment(std::string_view text, const Dialect& dialect) {
    const std::string_view trimmed = trimWhitespace(text);
    return trimmed.empty() ||
           (dialect.marks.commentsFollow && trimmed.front() == dialect.marks.comment);
}

}  // namespace quorvane
