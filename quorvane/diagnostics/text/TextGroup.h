#pragma once

#include <cstddef>

#include "quorvane/rtf/RtfGroup.h"

namespace quorvane {

/// A group of a text, in braces or the text itself.
struct TextGroup : RtfGroup {
    /// Where its "{" is.
    std::size_t brace = 0;
    /// Position of the field instruction that its text belongs to, counted from 1; 0 for none.
    std::size_t instruction = 0;
    /// How many characters after a \u stand in for it.
    int substitutes = 0;

    /// A group that opens within this one.
    TextGroup inner(std::size_t itsBrace) const {
        TextGroup group = *this;
        static_cast<RtfGroup&>(group) = RtfGroup::inner();
        group.brace = itsBrace;
        return group;
    }
};

}  // namespace quorvane
