#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "quorvane/base/text/FixedString.h"

namespace quorvane {

/// What the text of a group is that begins with a control word.
enum class RtfDestination : std::uint8_t {
    /// The word does not give its group a meaning of its own.
    None,
    /// The document's text: the document itself, and what a field or an object shows.
    Text,
    FontTable,
    ColorTable,
    StyleSheet,
    /// The definition of a row of a table within a cell.
    NestedRow,
    /// What a field does.
    Instruction,
    /// Text that is not shown where it is written, such as a header, a footnote or a picture's
    /// data.
    Other,
    /// A group that readers pass over.
    Skipped,
};

/// What a control word does.
enum class RtfRole : std::uint8_t {
    None,
    Document,
    Result,
    // Tables.
    RowDefinition,
    CellDefinition,
    Cell,
    Row,
    InTable,
    Level,
    NestedCell,
    NestedRow,
    Section,
    ParagraphReset,
    // Words whose number is that of a font, a color or a style.
    Font,
    TextColor,
    GroundColor,
    OtherColor,
    ParagraphStyle,
    CharacterStyle,
    SectionStyle,
    TableStyle,
    // What changes how the text that follows is read or looks.
    Plain,
    Unicode,
    UnicodeLength,
    /// As many bytes as its number says follow the word and are not RTF.
    Binary,
};

/// What a control word brings into a document besides text.
enum class RtfContent : std::uint8_t {
    None,
    Object,
    Picture,
    BinaryData,
    FileLink,
    Program,
    Macro,
};

/// The letters of a control word. No word has more.
using RtfLetters = FixedString<19>;

/// A control word of RTF up to version 1.9.1, or of the marked fields.
struct RtfWord {
    /// Its letters, without the backslash and the number.
    RtfLetters word;
    RtfDestination destination = RtfDestination::None;
    RtfRole role = RtfRole::None;
    /// The character that it shows: a blank, '?' for one that ASCII does not have, NUL for none.
    char shown = '\0';
    RtfContent brings = RtfContent::None;
    /// The code of the one character that it always shows; NUL for any other word.
    char32_t code = U'\0';
};

/// The control word of these letters; null for a word that RTF does not have. Case counts.
const RtfWord* findRtfWord(std::string_view word);

/// The same, faster, for a word that has an effect anywhere in a group; null for any other word,
/// known or not.
const RtfWord* findActiveRtfWord(std::string_view word);

/// All control words.
std::span<const RtfWord> rtfWords();

/// True for a word whose number is that of a color.
constexpr bool namesColor(RtfRole role) {
    return role >= RtfRole::TextColor && role <= RtfRole::OtherColor;
}

/// True for a word whose number is that of a style.
constexpr bool namesStyle(RtfRole role) {
    return role >= RtfRole::ParagraphStyle && role <= RtfRole::TableStyle;
}

}  // namespace quorvane
