#include "quorvane/rtf/RtfLexer.h"

#include <algorithm>

namespace quorvane {

RtfLexer::Token RtfLexer::finish() {
    if (!isHeld_ || heldText_ > 0) {
        return Token::None;
    }
    isHeld_ = false;
    readRtfControl(held_, 0, control_);
    takeControl();
    return Token::Control;
}

/// Continues the control that the pieces before end within. `begin_` is still its place.
RtfLexer::Token RtfLexer::completeControl() {
    const std::size_t before = held_.size();
    if (heldText_ > 0) {
        text_ = std::string_view(held_).substr(before - heldText_);
        begin_.offset = here().offset - static_cast<std::int64_t>(heldText_);
        heldText_ = 0;
        isHeld_ = false;
        return Token::Text;
    }
    held_.append(piece_.substr(at_, RtfControl::maxLength + 1 - before));
    readRtfControl(held_, 0, control_);
    if (control_.isOpen) {
        at_ = piece_.size();
        return Token::None;
    }
    if (control_.length >= before) {
        at_ += control_.length - before;
        isHeld_ = false;
    } else {
        // A "-" without digits, or one digit of an escape.
        heldText_ = before - control_.length;
        held_.resize(before);
    }
    takeControl();
    return Token::Control;
}

void RtfLexer::skipBinary() {
    const auto length = static_cast<std::size_t>(
        std::min<std::int64_t>(binaryLeft_, static_cast<std::int64_t>(piece_.size() - at_)));
    binaryLeft_ -= static_cast<std::int64_t>(length);
    for (const std::size_t end = at_ + length; at_ < end; ++at_) {
        if (kindOf(piece_[at_]) == Kind::LineEnd) {
            endLine(piece_[at_], here().offset);
        }
    }
}

}  // namespace quorvane
