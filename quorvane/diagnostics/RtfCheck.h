#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "quorvane/diagnostics/Diagnostic.h"
#include "quorvane/diagnostics/DiagnosticEngine.h"

namespace quorvane {

/// Checks an RTF file, anyone's, that is handed over piece by piece: whether its groups balance,
/// its table rows are whole, what it refers to is there, and nothing follows its end. It builds no
/// tree and keeps no text: its memory does not grow with the file, but with the tables of fonts and
/// styles alone.
class RtfCheck {
public:
    /// Findings come in the order in which they are certain, which is nearly that of their places.
    explicit RtfCheck(DiagnosticReceiver receiver) : engine_(std::move(receiver)) {}

    /// Takes the next bytes of the file.
    void feed(std::string_view bytes);

    /// Ends the file.
    void finish();

private:
    enum class State {
        Start,
        Text,
        Backslash,
        Word,
        Number,
        FirstHexDigit,
        SecondHexDigit,
        Binary,
        AfterEnd,
    };

    /// What the text of a group is.
    enum class Destination : std::uint8_t {
        Body,
        FontTable,
        ColorTable,
        StyleSheet,
        NestedRow,
        // A group with a meaning of its own, whose text is not the document's.
        Other,
        // A group that is marked with \* and that readers may pass over.
        Ignorable,
    };

    struct Group {
        Destination destination = Destination::Body;
        // True until something stands in the group.
        bool isFresh = true;
        bool isMarked = false;
        // True once an entry of the stylesheet has told its number.
        bool hasNumber = false;
        Place begin{};
    };

    /// The cells of a row that is being read.
    struct Row {
        std::int64_t cells = 0;
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

    const unsigned char* takeWholeWord(const unsigned char* at, const unsigned char* end);
    Place here(std::int64_t length) const;
    Place wordPlace() const;
    bool endsWord(unsigned char byte);
    void takeByte(unsigned char byte);
    void endLine(unsigned char byte);
    void takeText(unsigned char byte);
    void openGroup();
    void closeGroup();
    void takeBackslash(unsigned char byte);
    void takeHexDigit(unsigned char byte);
    void applyWord();
    void applyFirstWord();
    void applyRowWord();
    void defineRow(Row& row);
    void beginCell(Row& row);
    void endNestedRows();
    void applyReference();
    void checkDefaultFont();
    void defineStyle(std::size_t kind);
    void endRow(Row& row, std::int64_t cells);
    void noteDepth(const Row& row);
    std::string unclosedGroupHint() const;
    void endDocument();
    std::int64_t& nestedCells();

    DiagnosticEngine engine_;
    State state_ = State::Start;
    // Places: the offset of the byte at hand, its line, and the offset at which the line begins.
    std::int64_t offset_ = 0;
    std::int64_t line_ = 1;
    std::int64_t lineBegin_ = 0;
    bool lastWasReturn_ = false;
    // The control word at hand.
    Place wordBegin_;
    std::string word_;
    std::string number_;
    std::int64_t value_ = 0;
    std::int64_t binaryLeft_ = 0;
    std::vector<Group> groups_;
    // Groups that are nested too deep to be looked at.
    std::int64_t deeperGroups_ = 0;
    bool toldDepth_ = false;
    bool toldStart_ = false;
    bool toldAfterEnd_ = false;
    std::unordered_set<std::int64_t> fonts_;
    // Entries of the color table, the empty one included.
    std::int64_t colors_ = 0;
    Place defaultFontPlace_;
    std::int64_t defaultFont_ = -1;
    // Numbers by kind: paragraph, character, section and table styles.
    std::array<std::unordered_set<std::int64_t>, 4> styles_;
    // Number of the paragraph style that was defined last.
    std::int64_t lastStyle_ = 99;
    Row row_;
    // The definition of the nested row at hand, and the cells of nested rows by their level.
    Row nestedRow_;
    std::array<std::int64_t, 32> nestedCells_{};
    std::int64_t level_ = 1;
    // How many groups are open where a row ends, the line of the first row of all that ends deeper
    // than it begins, and that of the first row that ends deeper than the rows before; 0 for none.
    std::size_t usualDepth_ = 0;
    std::int64_t firstRowLine_ = 0;
    std::int64_t deeperRowLine_ = 0;
    // Where the cells of nested rows begin that are not ended.
    Place nestedBegin_;
    bool isNestedOpen_ = false;
};

/// The findings about an RTF file that is held as a whole, in the order of their places.
std::vector<Diagnostic> checkRtf(std::string_view bytes);

}  // namespace quorvane
