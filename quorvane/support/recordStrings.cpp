#include "quorvane/support/recordStrings.h"

#include <algorithm>

#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/textSearch.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/base/text/utf8.h"

namespace quorvane {

namespace {

constexpr char delimiterOfSubFields = '^';
constexpr char commentMark = ';';

bool isBlank(char character) {
    return character == ' ' || character == '\t';
}

/// The next of one character. It is looked for once, however many lines end before it.
class Next {
public:
    Next(std::string_view text, char character)
        : text_(text), character_(character), position_(positionFrom(0)) {}

    /// Its first position from there on; the end of the text when there is none. Never asked for an
    /// earlier one than before.
    std::size_t from(std::size_t start) {
        if (position_ < start) {
            position_ = positionFrom(start);
        }
        return position_;
    }

private:
    std::size_t positionFrom(std::size_t start) const {
        return std::min(text_.find(character_, start), text_.size());
    }

    std::string_view text_;
    char character_;
    std::size_t position_;
};

}  // namespace

std::optional<SubFieldView> findSubField(std::string_view text, std::size_t position) {
    const std::size_t begin = text.find(delimiterOfSubFields, position);
    if (begin == std::string_view::npos) {
        return std::nullopt;
    }
    const std::size_t codeBegin = begin + 1;
    const std::size_t end = std::min(text.find(delimiterOfSubFields, codeBegin), text.size());
    SubFieldView field{begin, text.substr(begin, end - begin), {}, {}};
    if (codeBegin < text.size()) {
        field.code = text.substr(codeBegin, utf8CharacterAt(text, codeBegin).length);
        field.content = field.whole.substr(std::min(1 + field.code.size(), field.whole.size()));
    }
    return field;
}

std::optional<SubFieldView> findSubFieldOf(std::string_view text, std::string_view code) {
    if (code.empty()) {
        return std::nullopt;
    }
    std::optional<SubFieldView> field = findSubField(text);
    while (field && !equalIgnoringCase(field->code, code)) {
        field = findSubField(text, field->position + 1);
    }
    return field;
}

bool IsIsisFormated(std::string_view text) {
    return text.size() > 1 && text.front() == delimiterOfSubFields;
}

std::string GetSubField(std::string_view text, std::string_view code) {
    const std::optional<SubFieldView> field = findSubFieldOf(text, code);
    return field ? std::string(field->content) : std::string();
}

std::string subFieldContents(std::string_view text, std::string_view codes) {
    std::string contents;
    while (!codes.empty()) {
        const std::size_t length = utf8CharacterAt(codes, 0).length;
        contents += GetSubField(text, codes.substr(0, length));
        codes.remove_prefix(length);
    }
    return contents;
}

bool AllSubFieldsEmpty(std::string_view text) {
    if (text.empty()) {
        return true;
    }
    if (!IsIsisFormated(text)) {
        return false;
    }
    std::optional<SubFieldView> field = findSubField(text);
    while (field && trimBlanks(field->content).empty()) {
        field = findSubField(text, field->position + 1);
    }
    return !field;
}

std::string_view TrimEx(std::string_view text) {
    return trimBlanks(text);
}

std::string GetValue(std::string_view text, std::string_view separator) {
    const std::size_t found = separator.empty() ? std::string_view::npos : text.find(separator);
    if (found == std::string_view::npos) {
        return {};
    }
    return std::string(trimBlanks(text.substr(found + separator.size())));
}

std::vector<std::string> Parse(std::string_view text, std::string_view delimiter) {
    std::vector<std::string> pieces;
    if (text.empty()) {
        return pieces;
    }
    std::size_t begin = 0;
    for (const std::size_t found : findAll(text, delimiter, Occurrences::Separate)) {
        pieces.emplace_back(text.substr(begin, found - begin));
        begin = found + delimiter.size();
    }
    pieces.emplace_back(text.substr(begin));
    return pieces;
}

std::string ReplaceString(std::string_view text, std::string_view search,
                          std::string_view replacement) {
    std::string replaced;
    std::size_t begin = 0;
    for (const std::size_t found : findAll(text, search, Occurrences::Separate)) {
        replaced.append(text, begin, found - begin);
        replaced.append(replacement);
        begin = found + search.size();
    }
    replaced.append(text, begin);
    return replaced;
}

std::vector<SourceLine> PreProcessRawData(std::string_view text) {
    std::vector<SourceLine> lines;
    // As many as there may be in a small text; a large one makes room as it goes.
    constexpr std::size_t shortLine = 16;
    constexpr std::size_t maxAtFirst = 1024;
    lines.reserve(std::min(text.size() / shortLine + 1, maxAtFirst));
    Next lineFeed(text, '\n');
    Next carriageReturn(text, '\r');
    std::size_t position = 0;
    for (int number = 1; position < text.size(); ++number) {
        const std::size_t end = std::min(lineFeed.from(position), carriageReturn.from(position));
        const std::string_view line = trimWhile({text.data() + position, end - position}, isBlank);
        if (!line.empty() && line.front() != commentMark) {
            lines.push_back({line, number});
        }
        const bool endsInBoth = end + 1 < text.size() && text[end] == '\r' && text[end + 1] == '\n';
        position = end + (endsInBoth ? 2 : 1);
    }
    return lines;
}

}  // namespace quorvane
