#include "quorvane/driver/lineClassifier.h"

#include <algorithm>
#include <cstddef>

#include "quorvane/base/text/trimming.h"

namespace quorvane {

namespace {

constexpr std::size_t nowhere = std::string_view::npos;

bool isEmptyOrComment(std::string_view text) {
    const std::string_view trimmed = trimWhitespace(text);
    return trimmed.empty() || trimmed.front() == ';';
}

std::string_view headToken(std::string_view line) {
    const auto* end = std::find_if(line.begin(), line.end(), [](char character) {
        return isWhitespace(character) || character == ';';
    });
    return line.substr(0, static_cast<std::size_t>(end - line.begin()));
}

}  // namespace

bool isComment(std::string_view text) {
    return trimWhitespace(text).substr(0, 1) == ";";
}

std::optional<LeafParts> leafIn(std::string_view line) {
    if (!line.starts_with('(')) {
        return std::nullopt;
    }
    const std::size_t equals = line.find('=');
    const std::size_t end = equals == nowhere ? nowhere : line.find(')', equals);
    if (end == nowhere) {
        return std::nullopt;
    }
    // A ")" in the key is the first one, and what follows must be a comment.
    const std::size_t inKey = line.substr(0, equals).find(')');
    if (!isEmptyOrComment(line.substr((inKey == nowhere ? end : inKey) + 1))) {
        return std::nullopt;
    }
    return LeafParts{TrimEx(line.substr(1, equals - 1)),
                     TrimEx(line.substr(equals + 1, end - equals - 1))};
}

bool isLeaf(std::string_view line) {
    return leafIn(line).has_value();
}

NodeKind openedKind(std::string_view line, const Vocabulary& vocabulary) {
    if (!line.starts_with('(')) {
        return NodeKind::None;
    }
    const std::string_view head = headToken(line);
    if (!isEmptyOrComment(line.substr(head.size()))) {
        return NodeKind::None;
    }
    return vocabulary.nodeKind(head.substr(1));
}

NodeKind closedKind(std::string_view line, const Vocabulary& vocabulary) {
    const std::string_view head = headToken(line);
    if (head.empty() || head.back() != ')' || !isEmptyOrComment(line.substr(head.size()))) {
        return NodeKind::None;
    }
    return vocabulary.nodeKind(head.substr(0, head.size() - 1));
}

std::string_view leafKey(std::string_view line) {
    return TrimEx(line.substr(1, line.find('=') - 1));
}

std::string_view leafValue(std::string_view line) {
    const std::size_t start = line.find('=') + 1;
    return TrimEx(line.substr(start, line.find(')', start) - start));
}

}  // namespace quorvane
