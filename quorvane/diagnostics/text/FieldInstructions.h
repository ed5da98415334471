#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "quorvane/diagnostics/text/TextGroup.h"
#include "quorvane/diagnostics/text/TextReporter.h"

namespace quorvane {

/// The instructions of the fields in a text: what the fields are to do, as plain text.
class FieldInstructions {
public:
    /// Begins an instruction, and returns its position for the group. `control` is the control word
    /// that begins it.
    std::size_t begin(std::string_view control);

    /// Adds a character to the instruction of the group, if it has one. `isWritten` is false for a
    /// character that a \u names.
    void add(char character, const TextGroup& group, bool isWritten = true) {
        if (group.instruction > 0 || substitutesLeft_ > 0 || followsUnicode_) {
            take(character, group, isWritten);
        }
    }

    /// Passes over the characters that stand in for the one that a \u of the group names.
    void takeUnicode(const TextGroup& group);

    /// A brace ends the characters that stand in for another.
    void takeBrace();

    /// Reports the instructions that bring something along.
    void report(TextReporter& reporter) const;

private:
    void take(char character, const TextGroup& group, bool isWritten);

    struct Instruction {
        std::string_view control;
        std::string text;
        // The same for readers that take one character to stand in for each \u.
        std::string substituted;
    };

    std::vector<Instruction> instructions_;
    int substitutesLeft_ = 0;
    // True where the next character stands in for the one that a \u names.
    bool followsUnicode_ = false;
};

}  // namespace quorvane
