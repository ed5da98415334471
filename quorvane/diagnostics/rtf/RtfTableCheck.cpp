#include "quorvane/diagnostics/rtf/RtfTableCheck.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace quorvane {

namespace {

/// "1 cell", "2 cells".
std::string counted(std::int64_t number, std::string_view noun) {
    return std::to_string(number) + " " + std::string(noun) + (number == 1 ? "" : "s");
}

}  // namespace

void RtfTableCheck::take(const Word& word, Paragraph& paragraph) {
    Row& row = word.definesNestedRow ? nestedRow_ : row_;
    switch (word.role) {
        case RtfRole::RowDefinition:
            hasTable_ = true;
            defineRow(row, word);
            break;
        case RtfRole::InTable:
            hasTable_ = true;
            break;
        case RtfRole::Section:
            endSection(row, word);
            break;
        case RtfRole::CellDefinition:
            defineCell(row, word);
            break;
        case RtfRole::Cell:
            endCell(row, word, paragraph);
            break;
        case RtfRole::Row:
            endRow(row, word);
            break;
        case RtfRole::Level:
            paragraph = {std::clamp<std::int64_t>(word.number, 0, std::ssize(nestedCells_) - 1),
                         word.number > 1, word.place};
            break;
        case RtfRole::ParagraphReset:
            paragraph.isNested = false;
            break;
        case RtfRole::NestedCell:
            endNestedCell(word, paragraph);
            break;
        case RtfRole::NestedRow:
            endNestedRow(word, paragraph);
            break;
        default:
            break;
    }
}

/// A definition may stand before the row's cells, after them, or in both places.
void RtfTableCheck::defineRow(Row& row, const Word& word) {
    row.nextBegin = word.place;
    row.depth = row.isOpen ? row.depth : word.depth;
    row.definitionsBefore = row.definitions;
    row.isDefinedAnew = true;
    row.definitions = 0;
    row.lastEdge = INT64_MIN;
}

void RtfTableCheck::defineCell(Row& row, const Word& word) {
    ++row.definitions;
    if (word.number <= row.lastEdge) {
        engine_.report(DiagnosticId::FallingEdge, word.place,
                       {std::to_string(word.number), std::to_string(row.lastEdge)});
    }
    row.lastEdge = word.number;
}

void RtfTableCheck::endSection(const Row& row, const Word& word) {
    if (row.isOpen || row.isDefinedAnew) {
        engine_.report(DiagnosticId::SectionInRow, word.place);
    }
}

void RtfTableCheck::endCell(Row& row, const Word& word, const Paragraph& paragraph) {
    if (!hasTable_) {
        return;
    }
    beginCell(row, word);
    ++row.cells;
    row.lastWithText = hasTextInCell_ ? row.cells : row.lastWithText;
    hasTextInCell_ = false;
    if (paragraph.isNested && !isNestedOpen_) {
        engine_.report(DiagnosticId::UnendedRow, paragraph.nestedPlace);
    }
    reportOpenNestedRow();
}

void RtfTableCheck::beginCell(Row& row, const Word& word) {
    // The row has all cells of the definition before: the new definition is that of another row.
    const bool isNextRow = row.isOpen && row.isDefinedAnew && row.cells >= row.definitionsBefore;
    if (isNextRow && row.definitionsBefore > 0) {
        engine_.report(DiagnosticId::UnendedRow, row.begin);
        row.cells = 0;
        row.lastWithText = 0;
        row.isOpen = false;
    }
    if (!row.isOpen) {
        row.begin = row.isDefinedAnew ? row.nextBegin : word.place;
    }
    row.isOpen = true;
    row.isDefinedAnew = false;
}

void RtfTableCheck::endRow(Row& row, const Word& word) {
    compareCells(word, row.cells, row.lastWithText, row.definitions);
    noteDepth(row, word);
    row.cells = 0;
    row.lastWithText = 0;
    row.isOpen = false;
    row.isDefinedAnew = false;
}

void RtfTableCheck::endNestedCell(const Word& word, const Paragraph& paragraph) {
    if (!std::exchange(isNestedOpen_, true)) {
        nestedBegin_ = word.place;
    }
    ++nestedCells_[static_cast<std::size_t>(paragraph.level)];
}

void RtfTableCheck::endNestedRow(const Word& word, const Paragraph& paragraph) {
    std::int64_t& cells = nestedCells_[static_cast<std::size_t>(paragraph.level)];
    compareCells(word, cells, cells, nestedRow_.definitions);
    cells = 0;
    isNestedOpen_ = std::any_of(nestedCells_.begin(), nestedCells_.end(),
                                [](std::int64_t open) { return open > 0; });
}

/// Where the cell or the document ends that holds nested rows.
void RtfTableCheck::reportOpenNestedRow() {
    if (isNestedOpen_) {
        engine_.report(DiagnosticId::UnendedRow, nestedBegin_);
        nestedCells_.fill(0);
        isNestedOpen_ = false;
    }
}

/// Compares the cells of a row, of which the last one with text has that position, with their
/// definitions.
void RtfTableCheck::compareCells(const Word& word, std::int64_t cells, std::int64_t lastWithText,
                                 std::int64_t definitions) {
    if (cells == 0) {
        engine_.report(DiagnosticId::RowWithoutCells, word.place);
    } else if (cells != definitions) {
        // Readers drop the cells that have no definition.
        const bool losesText = lastWithText > definitions || definitions == 0;
        engine_.report(losesText ? DiagnosticId::CellCount : DiagnosticId::UnevenRow, word.place,
                       {counted(cells, "cell"), counted(definitions, "cell definition")});
    }
}

/// Compares how many groups are open at the end of a row with the rows before. Where that is one
/// more, the row has a "{" too many.
void RtfTableCheck::noteDepth(const Row& row, const Word& word) {
    if (usualDepth_ == 0) {
        usualDepth_ = word.depth;
        firstRowLine_ = row.depth > 0 && row.depth < usualDepth_ ? word.place.line : 0;
    }
    if (word.depth <= usualDepth_) {
        deeperRowLine_ = 0;
    } else if (deeperRowLine_ == 0) {
        deeperRowLine_ = word.place.line;
    }
}

std::string RtfTableCheck::unclosedGroupHint() const {
    const std::int64_t line = deeperRowLine_ != 0 ? deeperRowLine_ : firstRowLine_;
    if (line == 0) {
        return {};
    }
    return "when the row on line " + std::to_string(line) + " ends, a group is open that was not " +
           (deeperRowLine_ != 0 ? "open at the end of earlier rows" : "open at its beginning");
}

void RtfTableCheck::endDocument() {
    reportOpenNestedRow();
    if (row_.isOpen) {
        engine_.report(DiagnosticId::UnendedRow, row_.begin);
    }
}

}  // namespace quorvane
