#include "quorvane/formatting/formatDescription.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "quorvane/base/text/LineReader.h"
#include "quorvane/base/text/extendedMark.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/driver/DescriptionFrame.h"
#include "quorvane/driver/DescriptionParser.h"
#include "quorvane/driver/literalText.h"
#include "quorvane/formatting/LineDepths.h"
#include "quorvane/formatting/lineEndOf.h"
#include "quorvane/support/recordStrings.h"

namespace quorvane {

namespace {

constexpr std::size_t indentation = 2;
// Documents hold rows, cells and paragraphs; only wrong ones are nested deeper.
constexpr std::size_t deepestIndented = 20;

/// A leaf whose first ")" stands before its "=" is one by accident: it stays as it is.
bool isPlainLeaf(const DescriptionLine& leaf) {
    return leaf.key.find(')') == std::string_view::npos;
}

class DescriptionFormatter {
public:
    DescriptionFormatter(const Dialect& dialect, NameForm form, bool lowersNames)
        : dialect_(dialect), form_(form), lowersNames_(lowersNames) {}

    std::string format(std::string_view text) const {
        const std::vector<SourceLine> source = PreProcessRawData(text, dialect_.marks.block);
        DescriptionTree tree(source.size() / 2);
        const LineDepths depths(source, dialect_, LineDepths::Extent::WholeText, tree);
        auto entry = depths.entries().begin();
        const std::string_view lineEnd = lineEndOf(text);
        std::string formatted;
        // Where comments stand.
        std::size_t depth = 0;
        int number = 0;
        int lastOfValue = 0;
        bool isBlankPending = false;
        for (LineReader lines(text); !lines.atEnd();) {
            const std::string_view raw = lines.next();
            if (++number <= lastOfValue) {
                // A line of the value that is written already.
                continue;
            }
            const std::string_view line = trimWhitespace(raw);
            if (line.empty()) {
                isBlankPending = !formatted.empty();
                continue;
            }
            if (std::exchange(isBlankPending, false)) {
                formatted += lineEnd;
            }
            if (entry != depths.entries().end() && entry->number == number) {
                append(formatted, entry->depth, formattedLine(line, entry->line, lineEnd));
                lastOfValue = number + lineBreaksIn(entry->line.value);
                depth = entry->depth + (entry->line.type == LineType::Opener ? 1 : 0);
                ++entry;
            } else {
                append(formatted, depth, line);
            }
            formatted += lineEnd;
        }
        return formatted;
    }

private:
    static void append(std::string& formatted, std::size_t depth, std::string_view line) {
        formatted.append(std::min(depth, deepestIndented) * indentation, ' ');
        formatted += line;
    }

    std::string formattedLine(std::string_view written, const DescriptionLine& line,
                              std::string_view lineEnd) const {
        const std::string_view comment = trimWhitespace(line.rest);
        switch (line.type) {
            case LineType::Opener:
                return withComment("(" + formattedName(line.name), comment);
            case LineType::Closer:
                return withComment(formattedName(line.name) + ")", comment);
            case LineType::Leaf:
                return isPlainLeaf(line) ? withComment("(" + inForm(line.key) + "=" +
                                                           joinedLines(line.value, lineEnd) + ")",
                                                       comment)
                                         : std::string(written);
            case LineType::Unreadable:
                break;
        }
        return std::string(written);
    }

    int lineBreaksIn(std::string_view value) const {
        return mayHaveLines(value) ? static_cast<int>(lineCount(value)) - 1 : 0;
    }

    bool mayHaveLines(std::string_view value) const {
        return !dialect_.marks.block.empty() && value.starts_with(dialect_.marks.block);
    }

    /// A value as it is; the breaks between its lines become those of the text.
    std::string joinedLines(std::string_view value, std::string_view lineEnd) const {
        if (!mayHaveLines(value)) {
            return std::string(value);
        }
        std::string joined;
        for (LineReader lines(value); !lines.atEnd();) {
            joined += lines.position() == 0 ? std::string_view() : lineEnd;
            joined += lines.next();
        }
        return joined;
    }

    static std::string withComment(std::string text, std::string_view comment) {
        if (!comment.empty()) {
            text += ' ';
            text += comment;
        }
        return text;
    }

    std::string formattedName(std::string_view name) const {
        return inForm(lowersNames_ ? lowerCase(name) : std::string(name));
    }

    std::string inForm(std::string_view word) const {
        switch (form_) {
            case NameForm::Long:
                return dialect_.vocabulary.expand(word);
            case NameForm::Short:
                return std::string(dialect_.vocabulary.shorten(word));
            case NameForm::Kept:
                break;
        }
        return std::string(word);
    }

    const Dialect& dialect_;
    NameForm form_;
    bool lowersNames_;
};

/// True for values that are the same but for the breaks between their lines.
bool isValueAlike(std::string_view a, std::string_view b, const Dialect& dialect) {
    const std::string_view mark = dialect.marks.block;
    const auto isBlock = [mark](std::string_view value) {
        return !mark.empty() && value.size() >= 2 * mark.size() && value.starts_with(mark);
    };
    return a == b || (isBlock(a) && isBlock(b) && blockText(a, mark) == blockText(b, mark));
}

/// True when the parser takes both lines for the same.
bool isLineAlike(const SourceLine& a, const SourceLine& b, const Dialect& dialect) {
    if (a.text == b.text) {
        return true;
    }
    const DescriptionLine left = descriptionLine(a.text, dialect);
    const DescriptionLine right = descriptionLine(b.text, dialect);
    return left.type == right.type && left.kind == right.kind && left.isReadable() &&
           dialect.vocabulary.leafKey(left.key).name ==
               dialect.vocabulary.leafKey(right.key).name &&
           isValueAlike(left.value, right.value, dialect);
}

bool areLinesAlike(const std::vector<SourceLine>& a, const std::vector<SourceLine>& b,
                   const Dialect& dialect) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&](const SourceLine& left, const SourceLine& right) {
                          return isLineAlike(left, right, dialect);
                      });
}

bool meanTheSame(std::string_view a, std::string_view b, const Dialect& dialect) {
    const std::vector<SourceLine> linesOfA = PreProcessRawData(a, dialect.marks.block);
    const std::vector<SourceLine> linesOfB = PreProcessRawData(b, dialect.marks.block);
    return linesOfA.empty() == linesOfB.empty() &&
           frameOf(a, linesOfA, dialect) == frameOf(b, linesOfB, dialect) &&
           areLinesAlike(linesOfA, linesOfB, dialect) &&
           areLinesAlike(repairLines(linesOfA, dialect), repairLines(linesOfB, dialect), dialect);
}

}  // namespace

std::string formattedDescription(std::string_view text, NameForm names) {
    const Dialect& dialect = isMarkedExtended(text) ? extendedDialect() : originalDialect();
    std::string formatted = DescriptionFormatter(dialect, names, true).format(text);
    return meanTheSame(text, formatted, dialect)
               ? formatted
               : DescriptionFormatter(dialect, NameForm::Kept, false).format(text);
}

}  // namespace quorvane
