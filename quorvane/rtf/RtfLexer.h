#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "quorvane/rtf/RtfControl.h"
#include "quorvane/rtf/RtfWord.h"

namespace quorvane {

/// Splits RTF, passed in piece by piece, into braces, controls and the text between them. Line ends
/// and the data after `\bin` are skipped. Of the pieces before it keeps one control at most.
class RtfLexer {
public:
    enum class Token : std::uint8_t { None, Open, Close, Text, Control };

    struct Position {
        std::int64_t offset = 0;
        std::int64_t line = 1;
        /// Offset of the line's first byte.
        std::int64_t lineBegin = 0;
    };

    /// Begins with the next piece, after the one before is used up. Its bytes have to stay until
    /// `next` returns None.
    void feed(std::string_view piece) {
        offset_ += static_cast<std::int64_t>(piece_.size());
        piece_ = piece;
        at_ = 0;
    }

    /// Reads the next token; None where the piece is used up.
    Token next();

    /// Ends the text: reads the control that it ends within, or None.
    Token finish();

    /// The token that was read last: where it begins, its bytes (for Text), its control and the
    /// word that this is, if it does something (for Control; null for any other word).
    const Position& begin() const { return begin_; }
    std::string_view text() const { return text_; }
    const RtfControl& control() const { return control_; }
    const RtfWord* word() const { return word_; }

    /// Where the lexer is.
    Position here() const { return {offset_ + static_cast<std::int64_t>(at_), line_, lineBegin_}; }

    /// True in the middle of binary data.
    bool isInBinary() const { return binaryLeft_ > 0; }

private:
    enum class Kind : std::uint8_t { Plain, LineEnd, Open, Close, Backslash };

    static constexpr std::array<Kind, 256> kinds = [] {
        std::array<Kind, 256> all{};
        all['\r'] = Kind::LineEnd;
        all['\n'] = Kind::LineEnd;
        all['{'] = Kind::Open;
        all['}'] = Kind::Close;
        all['\\'] = Kind::Backslash;
        return all;
    }();

    static Kind kindOf(char byte) { return kinds[static_cast<unsigned char>(byte)]; }

    Token nextControl();
    Token completeControl();
    void takeControl();
    void skipBinary();
    void endLine(char byte, std::int64_t offset);

    std::string_view piece_;
    std::size_t at_ = 0;
    // Offset of the piece's first byte.
    std::int64_t offset_ = 0;
    std::int64_t line_ = 1;
    std::int64_t lineBegin_ = 0;
    // Offset after the carriage return that was read last.
    std::int64_t afterReturn_ = -1;
    Position begin_;
    std::string_view text_;
    RtfControl control_;
    const RtfWord* word_ = nullptr;
    std::int64_t binaryLeft_ = 0;
    // The control that the pieces before end within, and how many of its bytes turned out to be
    // text that follows it.
    std::string held_;
    std::size_t heldText_ = 0;
    bool isHeld_ = false;
};

inline RtfLexer::Token RtfLexer::next() {
    if (binaryLeft_ > 0) {
        skipBinary();
    }
    if (isHeld_) {
        if (const Token token = completeControl(); token != Token::None || isHeld_) {
            return token;
        }
    }
    while (at_ < piece_.size()) {
        const char byte = piece_[at_];
        const Kind kind = kindOf(byte);
        if (kind == Kind::LineEnd) {
            ++at_;
            endLine(byte, offset_ + static_cast<std::int64_t>(at_) - 1);
            continue;
        }
        begin_ = here();
        switch (kind) {
            case Kind::Open:
                ++at_;
                return Token::Open;
            case Kind::Close:
                ++at_;
                return Token::Close;
            case Kind::Backslash:
                return nextControl();
            default:
                break;
        }
        std::size_t end = at_ + 1;
        while (end < piece_.size() && kindOf(piece_[end]) == Kind::Plain) {
            ++end;
        }
        text_ = piece_.substr(at_, end - at_);
        at_ = end;
        return Token::Text;
    }
    return Token::None;
}

inline RtfLexer::Token RtfLexer::nextControl() {
    readRtfControl(piece_, at_, control_);
    if (control_.isOpen) {
        held_ = piece_.substr(at_);
        isHeld_ = true;
        at_ = piece_.size();
        return Token::None;
    }
    at_ += control_.length;
    takeControl();
    return Token::Control;
}

inline void RtfLexer::takeControl() {
    word_ = findActiveRtfWord(control_.word);
    if (word_) {
        binaryLeft_ = word_->role == RtfRole::Binary ? control_.number.value_or(0) : 0;
    } else if (control_.symbol == '\r' || control_.symbol == '\n') {
        endLine(control_.symbol, begin_.offset + 1);
    }
}

inline void RtfLexer::endLine(char byte, std::int64_t offset) {
    line_ += byte == '\n' && afterReturn_ == offset ? 0 : 1;
    lineBegin_ = offset + 1;
    afterReturn_ = byte == '\r' ? offset + 1 : -1;
}

}  // namespace quorvane
