#include "quorvane/driver/DescriptionParser.h"

#include <algorithm>
#include <optional>
#include <string>

#include "quorvane/base/text/numberText.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/driver/misplacedNode.h"
#include "quorvane/support/FilledValue.h"

namespace quorvane {

namespace {

std::string_view firstLineOf(std::string_view value) {
    return value.substr(0, value.find_first_of("\r\n"));
}

}  // namespace

std::vector<SourceLine> repairLines(const std::vector<SourceLine>& lines, const Dialect& dialect,
                                    DescriptionRecovery* recovery) {
    const RepairWords& words = dialect.repair;
    const auto report = [recovery](RowRepair repair, const SourceLine& line) {
        if (recovery) {
            recovery->repaired(repair, line);
        }
    };
    std::vector<SourceLine> repaired;
    repaired.reserve(lines.size());
    for (auto line = lines.begin(); line != lines.end(); ++line) {
        const auto next = line + 1;
        const bool isBeforeRow = next != lines.end() && next->text == words.rowOpener;
        if (isBeforeRow && line->text == words.rowOpener) {
            report(RowRepair::RepeatedOpener, *line);
            continue;
        }
        repaired.push_back(*line);
        if (isBeforeRow && line->text == words.cellCloser) {
            report(RowRepair::UnclosedRow, *next);
            repaired.push_back({words.rowCloser, next->number, true});
        }
    }
    return repaired;
}

DescriptionParser::DescriptionParser(const Dialect& dialect, DescriptionRecovery* recovery)
    : dialect_(dialect), recovery_(recovery) {
    std::transform(dialect.numbers.begin(), dialect.numbers.end(), numbers_.begin(),
                   [](const NodeNumbers& numbers) { return numbers.start; });
}

void DescriptionParser::treeWalkerBuild(DescriptionTree& tree,
                                        const std::vector<SourceLine>& lines) {
    tree_ = &tree;
    tree.root().isOutside = true;
    nodes_.assign(1, &tree.root());
    openerCount_ = 0;
    next_ = lines.begin();
    end_ = lines.end();
    while (next_ != end_ && !nodes_.empty()) {
        readLine(*next_);
    }
    if (next_ != end_ && recovery_) {
        recovery_->ended(*next_);
    }
}

void DescriptionParser::readLine(const SourceLine& line) {
    const DescriptionLine parts = descriptionLine(line, dialect_);
    switch (parts.type) {
        case LineType::Leaf:
            ++next_;
            readLeaf(line, parts);
            break;
        case LineType::Opener:
            open(line, parts);
            return;
        case LineType::Closer:
            ++next_;
            close(line, parts);
            break;
        case LineType::Unreadable:
            ++next_;
            readUnreadable(line);
            break;
    }
    if (recovery_ && !nodes_.empty()) {
        recovery_->lineRead(line, parts, depth());
    }
}

void DescriptionParser::readLeaf(const SourceLine& line, const DescriptionLine& parts) {
    const bool isMisplaced = depth() == 0 && rejectsMisplaced();
    if (isMisplaced) {
        rejectPlace(line, NodeKind::None, NodeKind::None);
    }
    addLeaf(line, parts, !isSoundBlock(line, parts) || isMisplaced);
}

void DescriptionParser::addLeaf(const SourceLine& line, const DescriptionLine& parts,
                                bool isFaulty) {
    const LeafKey key = dialect_.vocabulary.leafKey(parts.key);
    Leaf* const leaf = tree_->addLeaf(innermost(), key);
    if (!leaf) {
        reject({.fault = DriverFault::DuplicateLeaf,
                .error = driverError(DriverFault::DuplicateLeaf, {}, line.number),
                .part = line.text,
                .node = &innermost(),
                .leaf = &tree_->leafOf(innermost(), key)});
        return;
    }
    leaf->writtenKey = parts.key;
    leaf->text = parts.value;
    // A value of the extended language means what its key makes of it.
    if (!dialect_.values.areExtended && readNumber(parts.value, leaf->number)) {
        leaf->kind = LeafKind::Number;
    }
    leaf->filled = line.filled;
    leaf->isFaulty = isFaulty || (line.filled && line.filled->isUnknown);
    leaf->line = line.number;
    if (recovery_) {
        recovery_->added(line, innermost());
    }
}

void DescriptionParser::open(const SourceLine& line, const DescriptionLine& parts) {
    DescriptionNode& closed = innermost();
    const std::size_t depthBefore = nodes_.size();
    const bool isMisplaced = rejectsMisplaced() && !canStandHere(parts.kind);
    if (isMisplaced) {
        const bool isInDocument = depth() > 0;
        rejectPlace(line, parts.kind, isInDocument ? innermost().kind : NodeKind::None);
    }
    const bool hasRoom = makeRoomFor(line, parts.kind);
    if (recovery_ && nodes_.size() < depthBefore && !isMisplaced) {
        recovery_->closedByOpener(line, parts.kind, closed, hasRoom);
    }
    if (!hasRoom) {
        return;
    }
    ++next_;
    const std::size_t depthOfNode = depth();
    addNode(parts.kind, numbers_[indexOf(parts.kind)] + openerCount_, line);
    openerCount_ = 0;
    if (recovery_) {
        recovery_->lineRead(line, parts, depthOfNode);
    }
}

/// Closes nodes until the innermost one can hold nodes of that kind; false when none can. The
/// opener is counted in each of them, which is why numbers are skipped.
bool DescriptionParser::makeRoomFor(const SourceLine& line, NodeKind kind) {
    while (!nodes_.empty()) {
        ++openerCount_;
        checkLimit(line, kind);
        if (kind == NodeKind::Doc || nests(innermost().kind, kind) || keepsRootOpen()) {
            return true;
        }
        leaveNode();
    }
    return false;
}

void DescriptionParser::checkLimit(const SourceLine& line, NodeKind kind) {
    const std::size_t index = indexOf(kind);
    if (numbers_[index] + openerCount_ > dialect_.numbers[index].last && !isOverLimit_[index]) {
        isOverLimit_[index] = true;
        reject({.fault = DriverFault::TooManyNodes,
                .error = driverError(DriverFault::TooManyNodes, nodeName(kind), line.number),
                .part = line.text,
                .kind = kind});
    }
}

void DescriptionParser::addNode(NodeKind kind, std::int32_t number, const SourceLine& line) {
    numbers_[indexOf(kind)] = number;
    DescriptionNode& parent = innermost();
    DescriptionNode& node = tree_->AddNode(parent, kind, number, line.number, line.text);
    const bool isDocument = kind == NodeKind::Doc && depth() == 0 && !hasDocument_;
    hasDocument_ = hasDocument_ || isDocument;
    node.isOutside = parent.isOutside && !isDocument;
    node.isFaulty = isOverLimit_[indexOf(kind)];
    nodes_.push_back(&node);
    ++openNodes_[indexOf(kind)];
    if (recovery_) {
        recovery_->added(line, node);
    }
}

void DescriptionParser::close(const SourceLine& line, const DescriptionLine& parts) {
    if (depth() == 0 && rejectsMisplaced()) {
        rejectPlace(line, parts.kind, NodeKind::None);
        return;
    }
    if (parts.kind == innermost().kind && !keepsRootOpen()) {
        leaveNode();
        return;
    }
    // The author is not to blame for a closer that a repair put in.
    if (line.isInserted) {
        return;
    }
    const bool isOpen = openNodes_[indexOf(parts.kind)] > 0;
    reject({.fault = DriverFault::WrongCloser,
            .error = driverError(DriverFault::WrongCloser, line.text, line.number),
            .part = line.text,
            .node = isOpen ? &innermost() : nullptr,
            .kind = parts.kind});
    if (isOpen) {
        while (innermost().kind != parts.kind) {
            leaveNode();
        }
        leaveNode();
    }
}

void DescriptionParser::readUnreadable(const SourceLine& line) {
    if (const DescriptionLine parts = unclosedLeaf(line.text, dialect_); parts.isReadable()) {
        rejectUnclosed(line, parts.value);
        addLeaf(line, parts, true);
        passOverUnreadableLines();
        return;
    }
    const Violation violation{
        .fault = DriverFault::WrongSyntax,
        .error = driverError(DriverFault::WrongSyntax, line.text, line.number),
        .part = line.text};
    if (recovery_) {
        readAsMeant(line, recovery_->unreadable(violation, innermost()));
    } else {
        raiseViolation(violation);
    }
}

void DescriptionParser::readAsMeant(const SourceLine& line, const MeantLine& likely) {
    const auto& [meant, goesOn] = likely;
    if (meant.type == LineType::Opener) {
        openMeant(line, meant.kind);
    } else if (meant.type == LineType::Closer && meant.kind == innermost().kind && depth() > 0) {
        leaveNode();
    } else if (meant.type == LineType::Leaf) {
        addLeaf(line, meant, true);
    }
    if (goesOn) {
        passOverRestOfValue();
    }
}

/// Opens a node for a line that was wrong, without its consequences for the numbers.
void DescriptionParser::openMeant(const SourceLine& line, NodeKind kind) {
    const auto hasRoom = [&] {
        return kind == NodeKind::Doc ? depth() == 0 : nests(innermost().kind, kind);
    };
    while (kind != NodeKind::Doc && depth() > 0 && !hasRoom()) {
        leaveNode();
    }
    if (hasRoom()) {
        addNode(kind, numbers_[indexOf(kind)] + 1, line);
    }
}

/// Passes over the lines on which a value goes on that was not ended on its own.
void DescriptionParser::passOverRestOfValue() {
    for (bool isEnded = false; !isEnded && next_ != end_; ++next_) {
        const std::string_view text = next_->text;
        if (next_->isInserted || text.front() == dialect_.marks.open ||
            descriptionLine(text, dialect_).isReadable()) {
            return;
        }
        isEnded = text.find(dialect_.marks.close) != std::string_view::npos;
    }
}

/// Passes over the lines of a value of several lines that does not end.
void DescriptionParser::passOverUnreadableLines() {
    while (next_ != end_ && !descriptionLine(next_->text, dialect_).isReadable()) {
        ++next_;
    }
}

void DescriptionParser::leaveNode() {
    --openNodes_[indexOf(innermost().kind)];
    nodes_.pop_back();
}

void DescriptionParser::reject(const Violation& violation) const {
    if (recovery_) {
        recovery_->violation(violation);
    } else {
        raiseViolation(violation);
    }
}

bool DescriptionParser::rejectsMisplaced() const {
    return dialect_.misplacedOpeners == MisplacedOpeners::AreErrors;
}

/// True where the innermost open node can hold one of that kind; of documents there is one.
bool DescriptionParser::canStandHere(NodeKind kind) const {
    return depth() == 0 ? kind == NodeKind::Doc && !hasDocument_ : nests(innermost().kind, kind);
}

void DescriptionParser::rejectPlace(const SourceLine& line, NodeKind kind, NodeKind parent) {
    reject({.fault = DriverFault::WrongPlace,
            .error = driverError(DriverFault::WrongPlace, misplacedNode(kind, parent), line.number),
            .part = line.text,
            .kind = kind});
}

void DescriptionParser::rejectUnclosed(const SourceLine& line, std::string_view value) {
    reject({.fault = DriverFault::UnclosedValue,
            .error = driverError(DriverFault::UnclosedValue, {}, line.number),
            .part = firstLineOf(value)});
}

/// False for a value of several lines that does not end, or that its key cannot have. In a value
/// that is filled, the marks are text.
bool DescriptionParser::isSoundBlock(const SourceLine& line, const DescriptionLine& parts) {
    if (line.filled || !dialect_.marks.beginsBlock(parts.value)) {
        return true;
    }
    if (!dialect_.marks.endsBlock(parts.value)) {
        rejectUnclosed(line, parts.value);
        return false;
    }
    if (dialect_.vocabulary.leafKey(parts.key).known != DescriptionKey::ParaText) {
        const std::string reason = "Only the text of a paragraph can stand between " +
                                   std::string(dialect_.marks.block) +
                                   "; write the value without them, on one line";
        reject({.fault = DriverFault::WrongValue,
                .error = driverError(DriverFault::WrongValue, reason, line.number),
                .part = firstLineOf(parts.value)});
        return false;
    }
    return true;
}

bool DescriptionParser::keepsRootOpen() const {
    return depth() == 0 && recovery_ && recovery_->readsAllLines();
}

}  // namespace quorvane
