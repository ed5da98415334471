#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "quorvane/diagnostics/engine/Diagnostic.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/rtf/RtfGroup.h"
#include "quorvane/rtf/RtfLexer.h"

namespace quorvane {

/// Checks an RTF file, whoever wrote it, that is handed over piece by piece: whether its groups
/// balance, its table rows are whole, what it refers to is there, and nothing follows its end. It
/// builds no tree and keeps no text: its memory does not grow with the file, only with the tables
/// of fonts and styles.
class RtfCheck {
public:
    /// Diagnostics come in the order in which they are certain, which is nearly that of their
    /// places.
    explicit RtfCheck(DiagnosticReceiver receiver) : engine_(std::move(receiver)) {}

    /// Takes the next bytes of the file.
    void feed(std::string_view bytes);

    /// Ends the file.
    void finish();

private:
    struct Group : RtfGroup {
        // True once an entry of the stylesheet has named its number.
        bool hasNumber = false;
        Place begin{};
        // The level of the table that the paragraph at hand is in, by its last \itap.
        std::int64_t level = 1;
        // Whether the paragraph at hand is in a table within a cell, and where that is said.
        bool isNested = false;
        Place nestedPlace{};
    };

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

    /// The entry of the font table that is being read.
    struct Font {
        bool hasNumber = false;
        std::int64_t number = 0;
        Place place{};
        // Of all that defines the font.
        std::uint64_t hash = 0;
    };

    /// What a document has by number, in the order of the roles that name them.
    enum Kind : std::size_t { FontKind, ColorKind, FirstStyleKind, kindCount = FirstStyleKind + 4 };

    void take(RtfLexer::Token token);
    void takeBeforeDocument(RtfLexer::Token token);
    void takeAfterDocument(RtfLexer::Token token);
    void takeText(std::string_view text);
    void takeControl();
    void takeWord();
    void takeFirstWord();
    void openGroup();
    void closeGroup();
    void reportNotRtf(const Place& place);
    Place place(std::int64_t length) const;
    Place controlPlace() const;
    void takeTableWord(RtfRole role);
    void defineRow(Row& row);
    void beginCell(Row& row);
    void endNestedRows();
    void endRow(const Row& row, std::int64_t cells, std::int64_t lastWithText);
    void noteDepth(const Row& row);
    std::int64_t& nestedCells();
    void takeFontWord();
    void addToFont(std::string_view bytes);
    void endFont();
    void defineStyle(std::size_t kind);
    void takeReference(RtfRole role);
    void reportMissing(Kind kind, DiagnosticId id, std::int64_t number);
    bool isNewWord(std::string_view word);
    std::string unclosedGroupHint() const;
    void endDocument();

    DiagnosticEngine engine_;
    RtfLexer lexer_;
    std::vector<Group> groups_;
    // Groups that are nested too deep to be looked at.
    std::int64_t deeperGroups_ = 0;
    bool reportedDepth_ = false;
    bool reportedStart_ = false;
    // True after the first group has its first word, and after it is closed.
    bool hasBegun_ = false;
    bool hasEnded_ = false;
    // What follows the document: where it begins, the group at hand, how many groups are open in
    // that one if it is not shown, and whether readers lose text there.
    bool hasMore_ = false;
    Place moreBegin_;
    RtfGroup rest_{RtfDestination::Text, false, false};
    std::int64_t hiddenGroups_ = 0;
    bool hasLostText_ = false;
    // The place of the \bin whose data is being passed over.
    Place binaryPlace_;
    // The hash of what defines each font.
    std::unordered_map<std::int64_t, std::uint64_t> fonts_;
    Font font_;
    // Entries of the color table, the empty one included.
    std::int64_t colors_ = 0;
    // Numbers by kind: paragraph, character, section and table styles.
    std::array<std::unordered_set<std::int64_t>, 4> styles_;
    // Number of the paragraph style that was defined last.
    std::int64_t lastStyle_ = 99;
    // What was reported: numbers that are missing, by their kind, and unknown words.
    std::array<std::unordered_set<std::int64_t>, kindCount> reported_;
    std::set<std::string, std::less<>> reportedWords_;
    Row row_;
    // True once there is something of a table: a cell before it is in none.
    bool hasTable_ = false;
    // True once something is shown in the cell at hand.
    bool hasTextInCell_ = false;
    // The definition of the nested row at hand, and the cells of nested rows by their level.
    Row nestedRow_;
    std::array<std::int64_t, 32> nestedCells_{};
    // How many groups are open where a row ends, the line of the first row of all that ends deeper
    // than it begins, and that of the first row that ends deeper than the rows before; 0 for none.
    std::size_t usualDepth_ = 0;
    std::int64_t firstRowLine_ = 0;
    std::int64_t deeperRowLine_ = 0;
    // Where the cells of nested rows begin that are not ended.
    Place nestedBegin_;
    bool isNestedOpen_ = false;
};

/// The diagnostics of an RTF file that is held as a whole, in the order of their places.
std::vector<Diagnostic> checkRtf(std::string_view bytes);

}  // namespace quorvane
