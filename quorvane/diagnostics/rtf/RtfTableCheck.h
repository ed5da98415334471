#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "quorvane/diagnostics/engine/Diagnostic.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/rtf/RtfWord.h"

namespace quorvane {

/// Checks the tables of an RTF document as its control words come: every row has cells, as many as
/// it defines, and ends; right edges rise; no section ends within a row.
class RtfTableCheck {
public:
    /// What a group has read of the table that its paragraph is in. A group begins with what the
    /// group around it has read.
    struct Paragraph {
        /// The level of the table, by its last \itap.
        std::int64_t level = 1;
        /// Whether the paragraph is in a table within a cell, and which control says so.
        bool isNested = false;
        Place nestedPlace{};
    };

    /// A control word that concerns tables, with its number, which is 0 where it has none.
    struct Word {
        RtfRole role = RtfRole::None;
        std::int64_t number = 0;
        Place place{};
        /// How many groups are open.
        std::size_t depth = 0;
        /// Whether it stands in the group that defines a nested row.
        bool definesNestedRow = false;
    };

    /// The engine must outlive the check.
    explicit RtfTableCheck(DiagnosticEngine& engine) : engine_(engine) {}

    void take(const Word& word, Paragraph& paragraph);

    /// Notes that the cell at hand shows something.
    void takeText() { hasTextInCell_ = true; }
    bool hasTextInCell() const { return hasTextInCell_; }

    void endDocument();

    /// Where a group was most likely left open, when all but the document's own are closed: a "}"
    /// of another group has closed it then. Empty when that is not known.
    std::string unclosedGroupHint() const;

private:
    /// The cells of a row that is being read.
    struct Row {
        std::int64_t cells = 0;
        // Position of the last cell with text.
        std::int64_t lastWithText = 0;
        std::int64_t definitions = 0;
        std::int64_t lastEdge = INT64_MIN;
        // Where its definition or its first cell begins.
        Place begin{};
        // Where the definition begins that no cell has followed yet, and how many cells the one
        // before it has.
        Place nextBegin{};
        std::int64_t definitionsBefore = 0;
        // How many groups are open at its definition; 0 without one.
        std::size_t depth = 0;
        bool isOpen = false;
        bool isDefinedAnew = false;
    };

    void defineRow(Row& row, const Word& word);
    void defineCell(Row& row, const Word& word);
    void endSection(const Row& row, const Word& word);
    void endCell(Row& row, const Word& word, const Paragraph& paragraph);
    void beginCell(Row& row, const Word& word);
    void endRow(Row& row, const Word& word);
    void endNestedCell(const Word& word, const Paragraph& paragraph);
    void endNestedRow(const Word& word, const Paragraph& paragraph);
    void reportOpenNestedRow();
    void compareCells(const Word& word, std::int64_t cells, std::int64_t lastWithText,
                      std::int64_t definitions);
    void noteDepth(const Row& row, const Word& word);

    DiagnosticEngine& engine_;
    Row row_;
    // True once there is something of a table: a cell before it is in none.
    bool hasTable_ = false;
    bool hasTextInCell_ = false;
    // The definition of the nested row at hand, and the cells of nested rows by their level.
    Row nestedRow_;
    std::array<std::int64_t, 32> nestedCells_{};
    // How many groups are open where a row ends, the line of the first row if it ends deeper than
    // it begins, and that of the first row that ends deeper than the rows before; 0 for none.
    std::size_t usualDepth_ = 0;
    std::int64_t firstRowLine_ = 0;
    std::int64_t deeperRowLine_ = 0;
    // Where the cells of nested rows begin that are not ended.
    Place nestedBegin_;
    bool isNestedOpen_ = false;
};

}  // namespace quorvane
