#include "quorvane/formatting/formatDescription.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/driver/DescriptionReader.h"
#include "quorvane/driver/Vocabulary.h"
#include "quorvane/driver/lineClassifier.h"
#include "quorvane/formatting/sourceLines.h"
#include "quorvane/support/recordStrings.h"

namespace quorvane {

namespace {

constexpr std::size_t indentation = 2;
// Documents hold rows, cells and paragraphs; only wrong ones are nested deeper.
constexpr std::size_t deepestIndented = 20;

/// What the head of a line is: an opener's "(row", a closer's "row)".
std::string_view headOf(std::string_view line) {
    return line.substr(0, line.find_first_of(" \t\r\n;"));
}

/// A leaf whose first ")" stands before its "=" is one by accident: it stays as it is.
bool isPlainLeaf(std::string_view leaf) {
    return leaf.find(')') > leaf.find('=');
}

class DescriptionFormatter {
public:
    DescriptionFormatter(const Vocabulary& vocabulary, NameForm form, bool lowersNames)
        : vocabulary_(vocabulary), form_(form), lowersNames_(lowersNames) {}

    std::string format(std::string_view text) {
        const std::string_view lineEnd = lineEndOf(text);
        std::string formatted;
        for (const std::string_view raw : linesOf(text)) {
            const std::string_view line = trimWhitespace(raw);
            if (line.empty()) {
                pendingBlank_ = !formatted.empty();
                continue;
            }
            if (pendingBlank_) {
                formatted += lineEnd;
                pendingBlank_ = false;
            }
            const std::string shown = formattedLine(line);
            formatted.append(std::min(depth_, deepestIndented) * indentation, ' ');
            formatted += shown;
            formatted += lineEnd;
            if (opened_ != NodeKind::None) {
                levels_.push_back(opened_);
                ++openNodes_[static_cast<std::size_t>(opened_)];
                opened_ = NodeKind::None;
            }
        }
        return formatted;
    }

private:
    /// The line without its indentation; sets how deep it stands.
    std::string formattedLine(std::string_view line) {
        depth_ = levels_.size();
        if (isComment(line)) {
            return std::string(line);
        }
        if (isLeaf(line)) {
            return isPlainLeaf(line) ? formattedLeaf(line) : std::string(line);
        }
        const std::string_view head = headOf(line);
        const std::string_view comment = trimWhitespace(line.substr(head.size()));
        if (const NodeKind opened = openedKind(line, vocabulary_); opened != NodeKind::None) {
            while (!levels_.empty() && opened != NodeKind::Doc && !nests(levels_.back(), opened)) {
                leaveLevel();
            }
            depth_ = levels_.size();
            opened_ = opened;
            return withComment("(" + formattedName(head.substr(1)), comment);
        }
        if (const NodeKind closed = closedKind(line, vocabulary_); closed != NodeKind::None) {
            if (openNodes_[static_cast<std::size_t>(closed)] > 0) {
                while (levels_.back() != closed) {
                    leaveLevel();
                }
                leaveLevel();
            }
            depth_ = levels_.size();
            return withComment(formattedName(head.substr(0, head.size() - 1)) + ")", comment);
        }
        return std::string(line);
    }

    void leaveLevel() {
        --openNodes_[static_cast<std::size_t>(levels_.back())];
        levels_.pop_back();
    }

    static std::string withComment(std::string text, std::string_view comment) {
        if (!comment.empty()) {
            text += ' ';
            text += comment;
        }
        return text;
    }

    std::string formattedLeaf(std::string_view line) const {
        const std::string_view comment = trimWhitespace(line.substr(line.find(')') + 1));
        return withComment("(" + inForm(leafKey(line)) + "=" + std::string(leafValue(line)) + ")",
                           comment);
    }

    std::string formattedName(std::string_view name) const {
        return inForm(lowersNames_ ? lowerCase(name) : std::string(name));
    }

    std::string inForm(std::string_view word) const {
        switch (form_) {
            case NameForm::Long:
                return vocabulary_.expand(word);
            case NameForm::Short:
                return std::string(vocabulary_.shorten(word));
            case NameForm::Kept:
                break;
        }
        return std::string(word);
    }

    const Vocabulary& vocabulary_;
    NameForm form_;
    bool lowersNames_;
    std::vector<NodeKind> levels_;
    // How many nodes of each kind are open.
    std::array<std::size_t, 4> openNodes_{};
    // What the line at hand opens.
    NodeKind opened_ = NodeKind::None;
    std::size_t depth_ = 0;
    bool pendingBlank_ = false;
};

/// A line as the reader understands it: texts that are equal mean the same.
std::string meaningOf(std::string_view line, const Vocabulary& vocabulary) {
    if (isLeaf(line)) {
        return "leaf " + vocabulary.expand(leafKey(line)) + "=" + std::string(leafValue(line));
    }
    if (const NodeKind opened = openedKind(line, vocabulary); opened != NodeKind::None) {
        return "open " + std::to_string(static_cast<int>(opened));
    }
    if (const NodeKind closed = closedKind(line, vocabulary); closed != NodeKind::None) {
        return "close " + std::to_string(static_cast<int>(closed));
    }
    return "line " + std::string(line);
}

bool areLinesAlike(const std::vector<SourceLine>& a, const std::vector<SourceLine>& b,
                   const Vocabulary& vocabulary) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&](const SourceLine& left, const SourceLine& right) {
                          return meaningOf(left.text, vocabulary) ==
                                 meaningOf(right.text, vocabulary);
                      });
}

/// What a driver looks at before it reads lines.
std::array<bool, 5> frameOf(std::string_view text, const std::vector<SourceLine>& lines) {
    const auto holds = [&](std::string_view part) {
        return text.find(part) != std::string_view::npos;
    };
    return {holds("(doc"), holds("(r") || holds("(c"),
            !lines.empty() && lines.front().text.starts_with("(doc"),
            !lines.empty() && lines.back().text.starts_with("doc)"), lines.empty()};
}

bool meanTheSame(std::string_view a, std::string_view b, const Vocabulary& vocabulary) {
    const std::vector<SourceLine> linesOfA = PreProcessRawData(a);
    const std::vector<SourceLine> linesOfB = PreProcessRawData(b);
    return frameOf(a, linesOfA) == frameOf(b, linesOfB) &&
           areLinesAlike(linesOfA, linesOfB, vocabulary) &&
           areLinesAlike(repairLines(linesOfA), repairLines(linesOfB), vocabulary);
}

}  // namespace

std::string formattedDescription(std::string_view text, NameForm names) {
    const Vocabulary vocabulary;
    std::string formatted = DescriptionFormatter(vocabulary, names, true).format(text);
    return meanTheSame(text, formatted, vocabulary)
               ? formatted
               : DescriptionFormatter(vocabulary, NameForm::Kept, false).format(text);
}

}  // namespace quorvane
