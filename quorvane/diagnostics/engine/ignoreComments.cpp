#include "quorvane/diagnostics/engine/ignoreComments.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "quorvane/base/text/LineReader.h"
#include "quorvane/base/text/extendedMark.h"
#include "quorvane/base/text/nowhere.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/diagnostics/engine/nearestWord.h"
#include "quorvane/diagnostics/engine/withoutIgnored.h"
#include "quorvane/driver/DescriptionLine.h"
#include "quorvane/driver/Dialect.h"
#include "quorvane/stylesheet/ExtendedSheetParts.h"
#include "quorvane/stylesheet/stylesheetSyntax.h"
#include "quorvane/support/recordStrings.h"

namespace quorvane {

namespace {

constexpr std::string_view mark = "quorvane:";
constexpr std::string_view separators = " \t,";

/// A comment for the check; the views are into the text.
struct CheckComment {
    /// What follows "quorvane:".
    std::string_view whole;
    /// The word that says what to do; empty when there is none.
    std::string_view command;
    std::vector<std::string_view> identifiers;
    /// The lines that it is about, counted from 1.
    std::int64_t firstLine = 0;
    std::int64_t lastLine = 0;
};

std::vector<std::string_view> wordsIn(std::string_view text) {
    std::vector<std::string_view> words;
    for (std::size_t start = text.find_first_not_of(separators); start != nowhere;) {
        const std::size_t end = std::min(text.find_first_of(separators, start), text.size());
        words.push_back(text.substr(start, end - start));
        start = text.find_first_not_of(separators, end);
    }
    return words;
}

std::optional<BracedText> extendedBracedTextFrom(std::string_view text, std::size_t from) {
    ExtendedSheetParts parts(text.substr(from));
    while (const std::optional<ExtendedSheetPart> part = parts.next()) {
        if (part->whole.starts_with('{')) {
            const auto open = static_cast<std::size_t>(part->whole.data() - text.data());
            return BracedText{open, open + part->whole.size() - 1, part->body};
        }
    }
    return std::nullopt;
}

class CommentReader {
public:
    CommentReader(const SourceText& source, CheckedLanguage language)
        : source_(source),
          isStyleSheet_(language == CheckedLanguage::StyleSheet),
          isExtended_(isStyleSheet_ && isMarkedExtended(source.text())) {}

    std::vector<CheckComment> read() {
        std::vector<CheckComment> comments;
        if (source_.text().find(':') == nowhere) {
            return comments;
        }
        const std::vector<bool> areInValues = linesInValues();
        for (std::size_t i = 0; i < source_.lines().size(); ++i) {
            const std::string_view line = lineAt(i);
            const std::string_view text =
                i < areInValues.size() && areInValues[i] ? std::string_view() : textOfComment(line);
            if (text.size() >= mark.size() && depth_ <= 0 &&
                lowerCase(text.substr(0, mark.size())) == mark) {
                comments.push_back(commentAt(i, text.substr(mark.size())));
            }
            if (isStyleSheet_ && !(isExtended_ && depth_ <= 0 && isComment(line))) {
                const auto [opened, closed] = countBraces(line);
                depth_ += opened - closed;
            }
        }
        return comments;
    }

private:
    struct Definition {
        std::size_t open;
        std::int64_t lastLine;
    };

    std::string_view lineAt(std::size_t index) const {
        const SourceText::Line& line = source_.lines()[index];
        return source_.text().substr(line.start, line.end - line.start);
    }

    /// Which lines belong to values of several lines, in which nothing is a comment; empty in the
    /// original language, which has no such values.
    std::vector<bool> linesInValues() const {
        std::vector<bool> lines;
        if (isStyleSheet_ || !isMarkedExtended(source_.text())) {
            return lines;
        }
        lines.resize(source_.lines().size());
        for (const SourceLine& line :
             PreProcessRawData(source_.text(), extendedDialect().marks.block)) {
            const auto first = static_cast<std::size_t>(line.number);
            std::fill_n(lines.begin() + static_cast<std::ptrdiff_t>(first) - 1,
                        lineCount(line.text), lineCount(line.text) > 1);
        }
        return lines;
    }

    static bool isComment(std::string_view line) {
        return trimWhitespace(line).starts_with(originalDialect().marks.comment);
    }

    /// The text of a line that is a comment; empty for any other line. In a stylesheet, comments
    /// for the check begin as those of descriptions do.
    static std::string_view textOfComment(std::string_view line) {
        if (!isComment(line)) {
            return {};
        }
        const char commentMark = originalDialect().marks.comment;
        line = trimWhitespace(line);
        line.remove_prefix(std::min(line.find_first_not_of(commentMark), line.size()));
        return trimWhitespace(line);
    }

    CheckComment commentAt(std::size_t index, std::string_view text) {
        CheckComment comment;
        comment.whole = trimWhitespace(text);
        comment.identifiers = wordsIn(comment.whole);
        if (!comment.identifiers.empty()) {
            comment.command = comment.identifiers.front();
            comment.identifiers.erase(comment.identifiers.begin());
        }
        if (isStyleSheet_) {
            comment.firstLine = static_cast<std::int64_t>(index) + 2;
            comment.lastLine = lastLineOfDefinition(source_.lines()[index].end);
        } else {
            comment.firstLine = comment.lastLine = nextLine(index);
        }
        return comment;
    }

    /// The number of the line that ends the definition that begins next.
    std::int64_t lastLineOfDefinition(std::size_t from) {
        // Comments that follow one another are about the same definition: it is looked up once.
        if (!definition_ || definition_->open < from) {
            definition_ = definitionFrom(from);
        }
        return definition_->lastLine;
    }

    Definition definitionFrom(std::size_t from) const {
        const std::optional<BracedText> next = isExtended_
                                                   ? extendedBracedTextFrom(source_.text(), from)
                                                   : bracedTextFrom(source_.text(), from);
        const std::size_t end = next ? next->close : source_.text().size();
        return Definition{next ? next->open : nowhere, source_.place(end, end).line};
    }

    /// The number of the next line that is neither blank nor a comment.
    std::int64_t nextLine(std::size_t index) {
        // Comments that follow one another are about the same line: it is looked up once.
        for (next_ = std::max(next_, index + 1); next_ < source_.lines().size(); ++next_) {
            if (!isEmptyOrComment(lineAt(next_), originalDialect())) {
                break;
            }
        }
        return static_cast<std::int64_t>(next_) + 1;
    }

    const SourceText& source_;
    bool isStyleSheet_;
    // Comments do not hold braces then.
    bool isExtended_;
    std::ptrdiff_t depth_ = 0;
    std::optional<Definition> definition_;
    std::size_t next_ = 0;
};

/// Which diagnostics are ignored on which lines.
class IgnoredLines {
public:
    /// The first line must not be before that of an earlier call.
    void add(DiagnosticId id, std::int64_t first, std::int64_t last) {
        std::vector<Lines>& lines = lines_[id];
        if (lines.empty() || lines.back().last < last) {
            lines.push_back({first, last});
        }
    }

    bool contain(DiagnosticId id, std::int64_t line) const {
        const auto known = lines_.find(id);
        if (known == lines_.end()) {
            return false;
        }
        const auto after = std::upper_bound(
            known->second.begin(), known->second.end(), line,
            [](std::int64_t sought, const Lines& lines) { return sought < lines.first; });
        return after != known->second.begin() && line <= std::prev(after)->last;
    }

private:
    struct Lines {
        std::int64_t first;
        std::int64_t last;
    };

    // Both ends of the lines of a diagnostic rise.
    std::map<DiagnosticId, std::vector<Lines>> lines_;
};

}  // namespace

std::vector<Diagnostic> withoutIgnored(std::vector<Diagnostic> diagnostics, std::string_view text,
                                       CheckedLanguage language) {
    if (diagnostics.empty()) {
        return diagnostics;
    }
    const SourceText source(text);
    IgnoredLines ignored;
    for (const CheckComment& comment : CommentReader(source, language).read()) {
        if (comment.command != "ignore") {
            continue;
        }
        for (const std::string_view identifier : comment.identifiers) {
            if (const DiagnosticRule* rule = findDiagnosticRule(identifier)) {
                ignored.add(rule->id, comment.firstLine, comment.lastLine);
            }
        }
    }
    std::erase_if(diagnostics, [&](const Diagnostic& diagnostic) {
        return ignored.contain(diagnostic.id, diagnostic.place.line);
    });
    return diagnostics;
}

void findWrongIgnoreComments(const SourceText& source, CheckedLanguage language,
                             DiagnosticEngine& engine) {
    constexpr std::string_view commands[] = {"ignore"};
    const auto report = [&](std::string_view part, const std::string& what, Hint hint) {
        engine.report(DiagnosticId::IgnoreComment, source.placeOf(part), {what}, std::move(hint));
    };
    for (const CheckComment& comment : CommentReader(source, language).read()) {
        if (comment.command.empty()) {
            report(comment.whole, "the command is missing", "write ignore and an identifier");
        } else if (comment.command != "ignore") {
            report(comment.command, std::string(comment.command) + " is not a command",
                   spellingHint(comment.command, commands));
        } else if (comment.identifiers.empty()) {
            report(comment.command, "the identifier is missing",
                   "write the identifier that the report shows in brackets");
        } else {
            for (const std::string_view identifier : comment.identifiers) {
                if (!findDiagnosticRule(identifier)) {
                    report(identifier, "there is no diagnostic " + std::string(identifier),
                           spellingHint(identifier, diagnosticIdentifiers()));
                }
            }
        }
    }
}

}  // namespace quorvane
