#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "quorvane/driver/NodeKind.h"
#include "quorvane/driver/Vocabulary.h"

namespace quorvane {

/// The characters that a line of a description is made of.
struct LineMarks {
    char open = '(';
    char close = ')';
    char equals = '=';
    char comment = ';';
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

/// What the texts of a description may hold.
struct TextRules {
    /// Characters that Windows-1252 lacks become control words in the text of a paragraph and are
    /// errors elsewhere. Otherwise they are left to the one who writes the document.
    bool writesUnicode = false;
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
    TextRules texts;
};

/// The published language.
const Dialect& originalDialect();

/// The published language for texts with any characters.
const Dialect& unicodeDialect();

}  // namespace quorvane
