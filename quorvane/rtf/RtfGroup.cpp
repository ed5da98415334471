#include "quorvane/rtf/RtfGroup.h"

namespace quorvane {

namespace {

/// The destination of a group within another one, whose first word is that of a destination.
RtfDestination destinationWithin(RtfDestination outer, const RtfWord& word) {
    // Of what is not shown, only an object has a part that is.
    if (word.role == RtfRole::Result) {
        return word.destination;
    }
    const bool staysHidden =
        outer == RtfDestination::Other ||
        (outer == RtfDestination::Instruction && word.destination == RtfDestination::Text);
    return staysHidden ? outer : word.destination;
}

}  // namespace

void RtfGroup::takeWord(const RtfWord* word) {
    const bool isFirst = isFresh;
    isFresh = false;
    if (word && word->destination == RtfDestination::Instruction) {
        // Not only as the first word: authors leave out its braces.
        destination = RtfDestination::Instruction;
    } else if (!isFirst || destination == RtfDestination::Skipped) {
        return;
    } else if (!word) {
        // Without \*, readers ignore the word alone.
        destination = isMarked ? RtfDestination::Skipped : destination;
    } else if (word->destination != RtfDestination::None) {
        destination = destinationWithin(destination, *word);
    }
}

}  // namespace quorvane
