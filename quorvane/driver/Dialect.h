#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "quorvane/driver/DescriptionKey.h"
#include "quorvane/driver/NodeKind.h"
#include "quorvane/driver/Vocabulary.h"

namespace quorvane {

/// The characters that a line of a description is made of.
struct LineMarks {
    char open = '(';
    char close = ')';
    char equals = '=';
    char comment = ';';
    /// A comment can follow what a line holds, and the value of a leaf ends at the first `close`.
    /// Otherwise comments stand on lines of their own, and the value ends at the last `close`.
    bool commentsFollow = true;
    /// Stands before and after a value that goes on over several lines; empty where none does.
    std::string_view block = {};

    /// True for a value that begins as one that goes on over several lines.
    bool beginsBlock(std::string_view value) const {
        return !block.empty() && value.starts_with(block.front()) && value.starts_with(block);
    }

    /// True for a value that begins so and ends.
    bool endsBlock(std::string_view value) const {
        return value.size() >= 2 * block.size() && value.ends_with(block);
    }
};

/// The numbers that nodes of one kind get, in the order of the description.
struct NodeNumbers {
    /// The number before the first one.
    std::int32_t start = 0;
    std::int32_t last = 0;
};

/// What the driver looks for, to the letter, in the text of a description before it reads the
/// lines.
struct DescriptionFrameWords {
    /// The first line begins with the opener, the last one with the closer.
    std::string_view opener;
    std::string_view closer;
    /// One of them stands in the text.
    std::array<std::string_view, 2> elements;
};

/// The lines that the repair of unclosed rows looks for, to the letter.
struct RepairWords {
    std::string_view rowOpener;
    std::string_view rowCloser;
    std::string_view cellCloser;
};

/// What happens to an opener of a node that the innermost open node cannot hold.
enum class MisplacedOpeners : std::uint8_t {
    /// It closes the nodes that are open until one can hold it.
    CloseNodes,
    /// It is an error.
    AreErrors,
};

/// What the texts of a description may hold.
struct TextRules {
    /// Characters that Windows-1252 lacks become control words in the text of a paragraph and are
    /// errors elsewhere. Otherwise they are left to the one who writes the document.
    bool writesUnicode = false;
    /// The text of a paragraph shows what is written, with inline styles. Otherwise it is RTF.
    bool isLiteral = false;
};

/// What the values of a description mean.
struct ValueRules {
    /// Lengths can have units, colors can be given by their components, and every value that does
    /// not mean anything is an error. Otherwise values are numbers and names.
    bool areExtended = false;
    /// The page is set up before the cells, whose widths are exact shares of its text area.
    /// Otherwise cells get their widths first, from the page of a new document.
    bool pageComesFirst = false;
    /// The keys of which a paragraph has one at least.
    KeySet paragraphContent = setOf(DescriptionKey::ParaText);
};

/// A page. Lengths are in twips.
struct PageDefaults {
    std::int32_t width;
    std::int32_t height;
    std::int32_t firstNumber;
};

/// A form of the description language: the words, limits and rules of text by which the parser, the
/// rules and the builder go.
struct Dialect {
    const Vocabulary& vocabulary;
    LineMarks marks;
    /// By the codes of the kinds.
    std::array<NodeNumbers, 4> numbers;
    DescriptionFrameWords frame;
    RepairWords repair;
    MisplacedOpeners misplacedOpeners;
    TextRules texts;
    ValueRules values;
    /// What the page is where the description does not say it; nothing for that of a new document.
    std::optional<PageDefaults> page = {};
};

/// The published language.
const Dialect& originalDialect();

/// The published language for texts with any characters.
const Dialect& unicodeDialect();

/// The extended language.
const Dialect& extendedDialect();

}  // namespace quorvane
