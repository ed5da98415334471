#include "quorvane/diagnostics/description/DescriptionOutline.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <unordered_map>
#include <utility>

#include "quorvane/base/text/numberText.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/diagnostics/description/syntaxGuess.h"
#include "quorvane/diagnostics/fileEncoding.h"
#include "quorvane/driver/lineClassifier.h"

namespace quorvane {

namespace {

constexpr std::int32_t lastNumbers[] = {1999, 2999, 3999, 999};
constexpr std::ptrdiff_t mostNodes = 999;
constexpr std::string_view kindsInMessages[] = {"row", "cell", "para", "doc"};

std::size_t code(NodeKind kind) {
    return static_cast<std::size_t>(kind);
}

/// A line that says something, or a closer of a row that the repair puts in front of it.
struct Line {
    std::string_view text;
    bool isInserted = false;
};

/// An opener as it is written, without the comment behind it.
std::string_view headOf(std::string_view line) {
    return line.substr(0, line.find_first_of(" \t;"));
}

/// Names the openers that are missing before a line that opens a node in one that holds no such
/// nodes; empty where it is the closers that are missing.
std::string missingOpenerHint(NodeKind parent, NodeKind kind, std::string_view line) {
    const bool isShort = headOf(line).size() == 2;
    const std::string row = isShort ? "(r" : "(row";
    const std::string cell = isShort ? "(c" : "(cell";
    if (kind == NodeKind::Cell && parent == NodeKind::Doc) {
        return row + " is missing before this line";
    }
    if (kind == NodeKind::Para && parent == NodeKind::Row) {
        return cell + " is missing before this line";
    }
    return kind == NodeKind::Para && parent == NodeKind::Doc
               ? row + " and " + cell + " are missing before this line"
               : std::string();
}

class OutlineReader {
public:
    OutlineReader(const SourceText& source, const Vocabulary& vocabulary, DiagnosticEngine& engine)
        : source_(source), vocabulary_(vocabulary), engine_(engine) {}

    DescriptionOutline read() {
        std::vector<std::string_view> written = writtenLines();
        checkFrame(written);
        passOverByteOrderMark(written);
        if (!holds("(doc") && !holdsLines(written)) {
            // Prose or the like: that none of its lines is one goes without saying.
            return std::move(outline_);
        }
        lines_ = repaired(written);
        OutlineNode& root = outline_.nodes.emplace_back();
        root.kind = NodeKind::Doc;
        root.isOutside = true;
        levels_.push_back({&root, {}});
        while (next_ < lines_.size() && !levels_.empty()) {
            readLine(lines_[next_]);
        }
        if (next_ < lines_.size()) {
            reportOutside(lines_[next_ > 0 ? next_ : 0].text);
        }
        if (!outline_.doc && startsAsDocument_) {
            engine_.report(DiagnosticId::NoDocument, source_.placeOf(written.front()));
        }
        return std::move(outline_);
    }

private:
    /// A node that is open, with the lines on which its keys stand.
    struct Level {
        OutlineNode* node;
        std::unordered_map<std::string, std::string_view> keys;
    };

    std::vector<std::string_view> writtenLines() const {
        std::vector<std::string_view> lines;
        for (const SourceText::Line& line : source_.lines()) {
            const std::string_view text =
                trimWhitespace(source_.text().substr(line.start, line.end - line.start));
            if (!text.empty() && text.front() != ';') {
                lines.push_back(text);
            }
        }
        return lines;
    }

    /// A mark before the first line is told with the frame; it hides nothing of what follows.
    static void passOverByteOrderMark(std::vector<std::string_view>& lines) {
        if (lines.empty()) {
            return;
        }
        lines.front() = trimWhitespace(behindByteOrderMark(lines.front()));
        if (lines.front().empty() || lines.front().front() == ';') {
            lines.erase(lines.begin());
        }
    }

    bool holdsLines(const std::vector<std::string_view>& lines) const {
        return std::any_of(lines.begin(), lines.end(), [&](std::string_view line) {
            return isLeaf(line) || openedKind(line, vocabulary_) != NodeKind::None ||
                   closedKind(line, vocabulary_) != NodeKind::None;
        });
    }

    bool holds(std::string_view part) const {
        return source_.text().find(part) != std::string_view::npos;
    }

    /// What a driver looks at before it reads lines.
    void checkFrame(const std::vector<std::string_view>& lines) {
        const std::string_view first = lines.empty() ? source_.text().substr(0, 0) : lines.front();
        const std::string_view last = lines.empty() ? first : lines.back();
        if (!holds("(doc")) {
            engine_.report(DiagnosticId::WrongFileType, source_.placeOf(first), {},
                           isUtf16(source_.text())
                               ? std::string(utf16Hint)
                               : "a description begins with (doc and ends with doc)");
            return;
        }
        if (!holds("(r") && !holds("(c")) {
            lacksElements_ = true;
            engine_.report(DiagnosticId::MissingElement, source_.placeOf(first));
        }
        startsAsDocument_ = first.starts_with("(doc");
        if (!startsAsDocument_) {
            engine_.report(
                DiagnosticId::WrongRoot, source_.placeOf(first), {},
                behindByteOrderMark(first).size() < first.size()
                    ? "the file begins with a UTF-8 byte order mark; save it in Windows-1252"
                    : "");
        } else if (!last.starts_with("doc)")) {
            engine_.report(DiagnosticId::WrongRoot, source_.placeOf(last), {},
                           "the last line must be doc)");
        }
    }

    std::vector<Line> repaired(const std::vector<std::string_view>& written) {
        std::vector<Line> lines;
        for (std::size_t i = 0; i < written.size(); ++i) {
            const bool isBeforeRow = i + 1 < written.size() && written[i + 1] == "(r";
            if (isBeforeRow && written[i] == "(r") {
                engine_.report(DiagnosticId::RepeatedOpener, source_.placeOf(written[i]));
                continue;
            }
            lines.push_back({written[i]});
            if (isBeforeRow && written[i] == "c)") {
                engine_.report(DiagnosticId::UnclosedRow, source_.placeOf(written[i + 1]));
                lines.push_back({written[i + 1], true});
            }
        }
        return lines;
    }

    void readLine(const Line& line) {
        if (line.isInserted) {
            if (levels_.back().node->kind == NodeKind::Row) {
                leaveLevel();
            }
            ++next_;
        } else if (isLeaf(line.text)) {
            addLeaf(line.text, leafKey(line.text), leafValue(line.text), false);
            ++next_;
        } else if (const NodeKind opened = openedKind(line.text, vocabulary_);
                   opened != NodeKind::None) {
            open(opened, line.text);
        } else if (const NodeKind closed = closedKind(line.text, vocabulary_);
                   closed != NodeKind::None) {
            close(closed, line.text);
            ++next_;
        } else {
            readWrongLine(line.text);
        }
    }

    void addLeaf(std::string_view line, std::string_view writtenKey, std::string_view text,
                 bool isFaulty) {
        Level& level = levels_.back();
        OutlineLeaf leaf{vocabulary_.expand(writtenKey), writtenKey, text, readNumber(text),
                         isFaulty};
        const auto [known, isNew] = level.keys.emplace(leaf.key, line);
        if (!isNew) {
            engine_.report(DiagnosticId::DuplicateLeaf, source_.placeOf(line), {},
                           leaf.key + " is already on line " +
                               std::to_string(source_.placeOf(known->second).line));
            return;
        }
        reportOutside(line);
        level.node->leaves.push_back(std::move(leaf));
    }

    void open(NodeKind kind, std::string_view line) {
        // As a driver counts: an opener that a level hands back is counted once more by the next.
        ++openerCount_;
        const std::int32_t number = numbers_[code(kind)] + openerCount_;
        if (number > lastNumbers[code(kind)] && !isOverLimit_[code(kind)]) {
            isOverLimit_[code(kind)] = true;
            engine_.report(DiagnosticId::TooManyNodes, source_.placeOf(line),
                           {kindsInMessages[code(kind)]}, tooManyHint(kind));
        }
        OutlineNode& parent = *levels_.back().node;
        if (kind != NodeKind::Doc && !nests(parent.kind, kind)) {
            if (closedByOpener_.empty()) {
                closedByOpener_ = nodeKindName(parent.kind);
                missingOpener_ = missingOpenerHint(parent.kind, kind, line);
            }
            leaveLevel();
            return;
        }
        if (!closedByOpener_.empty()) {
            engine_.report(DiagnosticId::ClosedByOpener, source_.placeOf(line),
                           {headOf(line), closedByOpener_});
            closedByOpener_ = {};
        }
        numbers_[code(kind)] = number;
        addNode(parent, kind, number, line);
        openerCount_ = 0;
        ++next_;
    }

    /// How many nodes of the kind there are, and how many can be read.
    std::string tooManyHint(NodeKind kind) const {
        const auto count = std::count_if(lines_.begin(), lines_.end(), [&](const Line& line) {
            return !line.isInserted && !isLeaf(line.text) &&
                   openedKind(line.text, vocabulary_) == kind;
        });
        const std::string nodes =
            std::to_string(count) + " " + std::string(nodeKindName(kind)) + "s";
        return count <= mostNodes
                   ? "there are only " + nodes +
                         ", but every missing closer skips numbers; close every node"
                   : "there are " + nodes + ", but only " + std::to_string(mostNodes) +
                         " can be read; split the description, or use the object model, which "
                         "has no limit";
    }

    void addNode(OutlineNode& parent, NodeKind kind, std::int32_t number, std::string_view line) {
        OutlineNode& node = outline_.nodes.emplace_back();
        node.kind = kind;
        node.number = number;
        node.line = line;
        node.parent = &parent;
        node.isFaulty = isOverLimit_[code(kind)];
        node.isOutside = parent.isOutside;
        parent.children.push_back(&node);
        levels_.push_back({&node, {}});
        ++openNodes_[code(kind)];
        if (kind == NodeKind::Doc && &parent == &outline_.nodes.front() && !outline_.doc) {
            outline_.doc = &node;
            node.isOutside = false;
        } else {
            reportOutside(line);
        }
    }

    void close(NodeKind kind, std::string_view line) {
        const NodeKind expected = levels_.back().node->kind;
        if (kind == expected) {
            leaveLevel();
            return;
        }
        const bool isOpen = openNodes_[code(kind)] > 0;
        std::string hint;
        if (isOpen) {
            hint = "the " + std::string(nodeKindName(expected)) + " on line " +
                   std::to_string(source_.placeOf(levels_.back().node->line).line) +
                   " is not closed";
        } else {
            hint = "no " + std::string(nodeKindName(kind)) + " is open";
        }
        engine_.report(DiagnosticId::WrongCloser, source_.placeOf(line), {line}, std::move(hint));
        if (isOpen) {
            while (levels_.back().node->kind != kind) {
                leaveLevel();
            }
            leaveLevel();
        }
    }

    static bool isLoneParenthesis(std::string_view line) {
        return trimWhitespace(line.substr(0, line.find(';'))) == ")";
    }

    /// A closer of which only the ")" is there.
    SyntaxGuess loneCloser() const {
        SyntaxGuess guess;
        if (levels_.size() > 1) {
            const OutlineNode& node = *levels_.back().node;
            guess.meant = SyntaxGuess::Meant::Closer;
            guess.kind = node.kind;
            guess.hint = "did you mean " + std::string(headOf(node.line).substr(1)) + ")?";
        }
        return guess;
    }

    void readWrongLine(std::string_view line) {
        const SyntaxGuess guess =
            isLoneParenthesis(line) ? loneCloser() : guessLine(line, vocabulary_);
        engine_.report(DiagnosticId::WrongSyntax, source_.placeOf(line), {line}, guess.hint);
        ++next_;
        switch (guess.meant) {
            case SyntaxGuess::Meant::Opener:
                openMeant(guess.kind, line);
                break;
            case SyntaxGuess::Meant::Closer:
                if (guess.kind == levels_.back().node->kind && levels_.size() > 1) {
                    leaveLevel();
                }
                break;
            case SyntaxGuess::Meant::Leaf:
                addLeaf(line, guess.key, guess.value, true);
                break;
            case SyntaxGuess::Meant::LeafWithoutEnd:
                addLeaf(line, guess.key, guess.value, true);
                passOverRestOfText();
                break;
            case SyntaxGuess::Meant::Nothing:
                break;
        }
    }

    /// Opens a node for a line that was wrong, without its consequences for the numbers.
    void openMeant(NodeKind kind, std::string_view line) {
        while (levels_.size() > 1 && kind != NodeKind::Doc &&
               !nests(levels_.back().node->kind, kind)) {
            leaveLevel();
        }
        OutlineNode& parent = *levels_.back().node;
        if (kind == NodeKind::Doc ? levels_.size() == 1 : nests(parent.kind, kind)) {
            addNode(parent, kind, ++numbers_[code(kind)], line);
        }
    }

    /// The lines on which a text goes on that was not ended on its own.
    void passOverRestOfText() {
        while (next_ < lines_.size()) {
            const std::string_view line = lines_[next_].text;
            if (lines_[next_].isInserted || isLeaf(line) || line.front() == '(' ||
                openedKind(line, vocabulary_) != NodeKind::None ||
                closedKind(line, vocabulary_) != NodeKind::None) {
                return;
            }
            ++next_;
            if (line.find(')') != std::string_view::npos) {
                return;
            }
        }
    }

    /// Tells once that something stands where nothing is read, behind the document.
    void reportOutside(std::string_view line) {
        const bool isOutside = levels_.empty() || levels_.back().node->isOutside;
        if (outline_.doc && isOutside && !toldOutside_) {
            toldOutside_ = true;
            engine_.report(DiagnosticId::OutsideDocument, source_.placeOf(line), {},
                           missingOpener_);
        }
    }

    void leaveLevel() {
        --openNodes_[code(levels_.back().node->kind)];
        levels_.pop_back();
    }

    const SourceText& source_;
    const Vocabulary& vocabulary_;
    DiagnosticEngine& engine_;
    DescriptionOutline outline_;
    std::vector<Line> lines_;
    std::size_t next_ = 0;
    std::vector<Level> levels_;
    // How many nodes of each kind are open, the root not counted.
    std::array<std::int64_t, 4> openNodes_{};
    std::array<std::int32_t, 4> numbers_{1000, 2000, 3000, 0};
    std::int32_t openerCount_ = 0;
    std::array<bool, 4> isOverLimit_{};
    // The first of the nodes that the current opener has closed; empty for none.
    std::string_view closedByOpener_;
    // What is said of that opener where those are missing in which it could stand.
    std::string missingOpener_;
    bool startsAsDocument_ = false;
    bool lacksElements_ = false;
    bool toldOutside_ = false;
};

}  // namespace

const OutlineLeaf* OutlineNode::find(std::string_view key) const {
    const auto found = std::find_if(leaves.begin(), leaves.end(),
                                    [&](const OutlineLeaf& leaf) { return leaf.key == key; });
    return found == leaves.end() ? nullptr : &*found;
}

DescriptionOutline readOutline(const SourceText& source, const Vocabulary& vocabulary,
                               DiagnosticEngine& engine) {
    return OutlineReader(source, vocabulary, engine).read();
}

std::string_view nodeKindName(NodeKind kind) {
    constexpr std::string_view names[] = {"row", "cell", "paragraph", "document", "nothing"};
    return names[code(kind)];
}

}  // namespace quorvane
