#include "quorvane/support/recordStrings.h"

#include <algorithm>

#include "quorvane/base/text/LineReader.h"
#include "quorvane/base/text/nowhere.h"
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

/// The values that go on over several lines.
class Blocks {
public:
    Blocks(std::string_view text, std::string_view mark)
        : text_(text),
          mark_(mark),
          closer_(std::string(mark) + ')'),
          nextMark_(mark.empty() ? nowhere : text.find(mark)) {}

    /// False when no value can begin in a line that ends there: most lines need not be looked into.
    bool mayBeginBefore(std::size_t end) const { return nextMark_ < end; }

    /// The end of a line that begins and ends there: that of its last line where its value goes on.
    /// Never asked for an earlier line than before.
    std::size_t endFrom(std::size_t begin, std::size_t end) {
        if (nextMark_ < begin) {
            nextMark_ = text_.find(mark_, begin);
        }
        if (nextMark_ >= end) {
            return end;
        }
        while (begin < end && isBlank(text_[begin])) {
            ++begin;
        }
        const std::size_t value = valueAfter(text_.substr(begin, end - begin));
        if (value == nowhere) {
            return end;
        }
        for (std::size_t at = begin + value + mark_.size(); at < text_.size();) {
            const std::size_t lineEnd = std::min(text_.find_first_of("\r\n", at), text_.size());
            const std::string_view line = trimWhile(text_.substr(at, lineEnd - at), isBlank);
            // Where another value begins, the end of this one is missing.
            if (at >= end && valueAfter(line) != nowhere) {
                return end;
            }
            if (line.ends_with(closer_)) {
                return static_cast<std::size_t>(line.data() - text_.data()) + line.size();
            }
            at = lineEnd + 1;
        }
        return end;
    }

private:
    /// Where the mark stands in a line of the form `(key=MARK`.
    std::size_t valueAfter(std::string_view line) const {
        if (!line.starts_with('(')) {
            return nowhere;
        }
        const std::size_t equals = line.find('=');
        if (equals == nowhere) {
            return nowhere;
        }
        const std::size_t value = line.find_first_not_of(' ', equals + 1);
        return value != nowhere && line.substr(value).starts_with(mark_) ? value : nowhere;
    }

    std::string_view text_;
    std::string_view mark_;
    std::string closer_;
    // Where the first mark from the line on stands.
    std::size_t nextMark_;
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

std::vector<SourceLine> PreProcessRawData(std::string_view text, std::string_view blockMark) {
    std::vector<SourceLine> lines;
    // As many as there may be in a small text; a large one makes room as it goes.
    constexpr std::size_t shortLine = 16;
    constexpr std::size_t maxAtFirst = 1024;
    lines.reserve(std::min(text.size() / shortLine + 1, maxAtFirst));
    LineReader reader(text);
    Blocks blocks(text, blockMark);
    for (int number = 1; !reader.atEnd(); ++number) {
        const std::size_t begin = reader.position();
        const std::string_view written = reader.next();
        const std::size_t lineEnd = begin + written.size();
        const std::size_t end =
            blocks.mayBeginBefore(lineEnd) ? blocks.endFrom(begin, lineEnd) : lineEnd;
        const std::string_view line = trimWhile({text.data() + begin, end - begin}, isBlank);
        if (!line.empty() && line.front() != commentMark) {
            lines.push_back({line, number});
        }
        for (; end > lineEnd && reader.position() <= end && !reader.atEnd(); ++number) {
            reader.next();
        }
    }
    return lines;
}

}  // namespace quorvane
