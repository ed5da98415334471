#include "quorvane/diagnostics/text/FieldInstructions.h"

#include <utility>

#include "quorvane/diagnostics/text/embeddedContent.h"

namespace quorvane {

namespace {

// An instruction's name and its file stand at its beginning.
constexpr std::size_t longestInstruction = 1000;

void addUpToLongest(char character, std::string& instruction) {
    if (instruction.size() < longestInstruction) {
        instruction += character;
    }
}

}  // namespace

std::size_t FieldInstructions::begin(std::string_view control) {
    instructions_.push_back({control, {}, {}});
    return instructions_.size();
}

void FieldInstructions::take(char character, const TextGroup& group, bool isWritten) {
    const bool isSubstitute = isWritten && std::exchange(followsUnicode_, false);
    if (isWritten && substitutesLeft_ > 0) {
        --substitutesLeft_;
        return;
    }
    if (group.instruction == 0 || group.destination != RtfDestination::Instruction) {
        return;
    }
    Instruction& instruction = instructions_[group.instruction - 1];
    addUpToLongest(character, instruction.text);
    if (!isSubstitute) {
        addUpToLongest(character, instruction.substituted);
    }
}

void FieldInstructions::takeUnicode(const TextGroup& group) {
    substitutesLeft_ = group.substitutes;
    followsUnicode_ = true;
}

void FieldInstructions::takeBrace() {
    substitutesLeft_ = 0;
    followsUnicode_ = false;
}

void FieldInstructions::report(TextReporter& reporter) const {
    for (const Instruction& instruction : instructions_) {
        std::string_view content = contentOfField(instruction.text);
        if (content.empty()) {
            content = contentOfField(instruction.substituted);
        }
        if (!content.empty()) {
            reporter.report(DiagnosticId::EmbeddedContent, instruction.control,
                            {"\\fldinst", content});
        }
    }
}

}  // namespace quorvane
