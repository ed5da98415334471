#include "quorvane/diagnostics/ignoreComments.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <utility>

#include "quorvane/diagnostics/nearestWord.h"
#include "quorvane/support/textCase.h"
#include "quorvane/support/trimming.h"

namespace quorvane {

namespace {

constexpr std::size_t nowhere = std::string_view::npos;
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

class CommentReader {
public:
    CommentReader(const SourceText& source, CheckedLanguage language)
        : source_(source), isStyleSheet_(language == CheckedLanguage::StyleSheet) {}

    std::vector<CheckComment> read() {
        std::vector<CheckComment> comments;
        if (source_.text().find(':') == nowhere) {
            return comments;
        }
        for (std::size_t i = 0; i < source_.lines().size(); ++i) {
            const std::string_view line = lineAt(i);
            const std::string_view text = textOfComment(line);
            if (text.size() >= mark.size() && depth_ <= 0 &&
                lowerCase(text.substr(0, mark.size())) == mark) {
                comments.push_back(commentAt(i, text.substr(mark.size())));
            }
            if (isStyleSheet_) {
                depth_ += std::count(line.begin(), line.end(), '{') -
                          std::count(line.begin(), line.end(), '}');
            }
        }
        return comments;
    }

private:
    std::string_view lineAt(std::size_t index) const {
        const SourceText::Line& line = source_.lines()[index];
        return source_.text().substr(line.start, line.end - line.start);
    }

    /// The text behind the ";" of a line that is a comment; empty for any other line.
    static std::string_view textOfComment(std::string_view line) {
        line = trimWhitespace(line);
        if (!line.starts_with(';')) {
            return {};
        }
        line.remove_prefix(std::min(line.find_first_not_of(';'), line.size()));
        return trimWhitespace(line);
    }

    CheckComment commentAt(std::size_t index, std::string_view text) const {
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
    std::int64_t lastLineOfDefinition(std::size_t from) const {
        const std::size_t open = source_.text().find('{', from);
        const std::size_t close = open == nowhere ? nowhere : source_.text().find('}', open);
        const std::size_t end = std::min(close, source_.text().size());
        return source_.place(end, end).line;
    }

    /// The number of the next line that is neither blank nor a comment.
    std::int64_t nextLine(std::size_t index) const {
        for (++index; index < source_.lines().size(); ++index) {
            const std::string_view line = trimWhitespace(lineAt(index));
            if (!line.empty() && line.front() != ';') {
                break;
            }
        }
        return static_cast<std::int64_t>(index) + 1;
    }

    const SourceText& source_;
    bool isStyleSheet_;
    std::ptrdiff_t depth_ = 0;
};

}  // namespace

std::vector<Diagnostic> withoutIgnored(std::vector<Diagnostic> diagnostics, std::string_view text,
                                       CheckedLanguage language) {
    if (diagnostics.empty()) {
        return diagnostics;
    }
    const SourceText source(text);
    std::set<std::pair<DiagnosticId, std::int64_t>> ignored;
    for (const CheckComment& comment : CommentReader(source, language).read()) {
        if (comment.command != "ignore") {
            continue;
        }
        for (const std::string_view identifier : comment.identifiers) {
            const DiagnosticRule* rule = findDiagnosticRule(identifier);
            for (std::int64_t line = comment.firstLine; rule && line <= comment.lastLine; ++line) {
                ignored.emplace(rule->id, line);
            }
        }
    }
    std::erase_if(diagnostics, [&](const Diagnostic& diagnostic) {
        return ignored.contains({diagnostic.id, diagnostic.place.line});
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
            report(comment.whole, "It says nothing", "write ignore and an identifier");
        } else if (comment.command != "ignore") {
            report(comment.command, std::string(comment.command) + " is not a command",
                   spellingHint(comment.command, commands));
        } else if (comment.identifiers.empty()) {
            report(comment.command, "No identifier follows ignore",
                   "write the identifiers that stand in brackets in the report");
        } else {
            for (const std::string_view identifier : comment.identifiers) {
                if (!findDiagnosticRule(identifier)) {
                    report(identifier, std::string(identifier) + " is not a diagnostic",
                           spellingHint(identifier, diagnosticIdentifiers()));
                }
            }
        }
    }
}

}  // namespace quorvane
