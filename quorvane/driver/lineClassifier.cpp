#include "quorvane/driver/lineClassifier.h"

#include <algorithm>
#include <cstddef>

#include "quorvane/support/trimming.h"

namespace quorvane {

namespace {

constexpr std::size_t nowhere = std::string_view::npos;

bool isEmptyOrComment(std::string_view text) {
    return text.empty() || trimWhitespace(text).empty() || isComment(text);
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

bool isLeaf(std::string_view line) {
    if (line.substr(0, 1) != "(") {
        return false;
    }
    const std::size_t equals = line.find('=');
    if (equals == nowhere || line.find(')', equals) == nowhere) {
        return false;
    }
    return isEmptyOrComment(line.substr(line.find(')') + 1));
}

NodeKind openedKind(std::string_view line, const Vocabulary& vocabulary) {
    const std::string_view head = headToken(line);
    if (head.substr(0, 1) != "(" || !isEmptyOrComment(line.substr(head.size()))) {
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
