#include "quorvane/support/recordStrings.h"

#include <algorithm>

#include "quorvane/support/textCase.h"
#include "quorvane/support/textSearch.h"
#include "quorvane/support/utf8.h"

namespace quorvane {

namespace {

constexpr char delimiterOfSubFields = '^';
constexpr char commentMark = ';';

/// Cuts a text into lines at CR LF, LF and CR.
class Lines {
public:
    explicit Lines(std::string_view text) : text_(text) {}

    bool isAtEnd() const { return start_ == text_.size(); }

    /// The next line, without its line break.
    std::string_view take() {
        if (lineFeed_ < start_ || !wasSearched_) {
            lineFeed_ = std::min(text_.find('\n', start_), text_.size());
            wasSearched_ = true;
        }
        // The line feed is found once for all the lines before it that end in a CR.
        const std::string_view rest = text_.substr(start_, lineFeed_ - start_);
        const std::string_view line = rest.substr(0, rest.find('\r'));
        const bool endsInBoth = line.size() + 1 == rest.size() && lineFeed_ < text_.size();
        start_ = std::min(start_ + line.size() + (endsInBoth ? 2 : 1), text_.size());
        return line;
    }

private:
    std::string_view text_;
    std::size_t start_ = 0;
    std::size_t lineFeed_ = 0;
    bool wasSearched_ = false;
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
    while (field && TrimEx(field->content).empty()) {
        field = findSubField(text, field->position + 1);
    }
    return !field;
}

std::string GetValue(std::string_view text, std::string_view separator) {
    const std::size_t found = separator.empty() ? std::string_view::npos : text.find(separator);
    if (found == std::string_view::npos) {
        return {};
    }
    return std::string(TrimEx(text.substr(found + separator.size())));
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
    lines.reserve(static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 1);
    Lines rest(text);
    for (int number = 1; !rest.isAtEnd(); ++number) {
        const std::string_view line = trimWhitespace(rest.take());
        if (!line.empty() && line.front() != commentMark) {
            lines.push_back({std::string(line), number});
        }
    }
    return lines;
}

}  // namespace quorvane
