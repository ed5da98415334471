#pragma once

#include "quorvane/rtf/RtfWord.h"

namespace quorvane {

/// What is known of a group from the part that has been read.
struct RtfGroup {
    RtfDestination destination = RtfDestination::Text;
    /// True until the group has something other than blanks.
    bool isFresh = true;
    /// True once the group has begun with `\*`: readers that do not know its first word skip it.
    bool isMarked = false;

    /// A group that opens within this one.
    RtfGroup inner() const { return {destination}; }

    /// Takes the symbol `\*`.
    void takeMark() { isMarked = isMarked || isFresh; }

    /// Takes a control word, or null for one that RTF does not have. The first word of a group
    /// determines what the group is.
    void takeWord(const RtfWord* word);

    /// True where the words for tables, fonts, colors and styles concern the document's text.
    bool isOfDocument() const {
        return destination == RtfDestination::Text || destination == RtfDestination::NestedRow;
    }
};

}  // namespace quorvane
