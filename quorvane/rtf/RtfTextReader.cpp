#include "quorvane/rtf/RtfTextReader.h"

#include <algorithm>
#include <utility>

#include "quorvane/base/text/utf8.h"

namespace quorvane {

namespace {

bool isUnicode(const RtfTextPart& part) {
    return part.control.word == "u" && part.control.number;
}

bool isHigh(char32_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}

bool isLow(char32_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

}  // namespace

RtfTextReader::RtfTextReader(std::string_view rtf) : rtf_(rtf) {
    lexer_.feed(rtf);
}

std::optional<RtfTextPart> RtfTextReader::next() {
    if (waiting_) {
        return std::exchange(waiting_, std::nullopt);
    }
    while (std::optional<RtfTextPart> part = nextWritten()) {
        if (passesOver(*part)) {
            continue;
        }
        if (std::optional<RtfTextPart> whole = joined(*part)) {
            return whole;
        }
    }
    return std::exchange(high_, std::nullopt);
}

std::optional<RtfTextPart> RtfTextReader::nextWritten() {
    if (plainAt_ < plainEnd_) {
        return plainCharacter();
    }
    RtfLexer::Token token = lexer_.next();
    const bool isAtEnd = token == RtfLexer::Token::None;
    if (isAtEnd) {
        token = lexer_.finish();
    }
    const auto begin = static_cast<std::size_t>(lexer_.begin().offset);
    switch (token) {
        case RtfLexer::Token::Open:
            return RtfTextPart{RtfTextPart::Kind::Open, 0, begin, begin + 1};
        case RtfLexer::Token::Close:
            return RtfTextPart{RtfTextPart::Kind::Close, 0, begin, begin + 1};
        case RtfLexer::Token::Text:
            plainAt_ = begin;
            plainEnd_ = begin + lexer_.text().size();
            return plainCharacter();
        case RtfLexer::Token::Control:
            if (isAtEnd) {
                // What looked like the beginning of a number can follow the control.
                plainAt_ = begin + lexer_.control().length;
                plainEnd_ = rtf_.size();
            }
            return partOfControl(begin);
        case RtfLexer::Token::None:
            break;
    }
    return std::nullopt;
}

RtfTextPart RtfTextReader::plainCharacter() {
    const Utf8Character character = utf8CharacterAt(rtf_, plainAt_);
    const std::size_t begin = plainAt_;
    plainAt_ += character.length;
    RtfTextPart part{RtfTextPart::Kind::Character, character.code, begin, plainAt_};
    part.control.length = 0;
    return part;
}

RtfTextPart RtfTextReader::partOfControl(std::size_t begin) const {
    RtfTextPart part{RtfTextPart::Kind::Control, 0, begin, begin + lexer_.control().length};
    readRtfControl(rtf_, begin, part.control);
    std::optional<char32_t> code = codeOf(part.control, rtf_, begin);
    if (isUnicode(part)) {
        // Readers take the lowest 16 bits of the number.
        code = static_cast<char32_t>(*part.control.number) & 0xFFFFU;
    }
    // Readers differ in what they make of control characters that are written by their numbers.
    const bool isCharacter = code && (*code >= 0x20 || part.control.word.size() > 1);
    if (isCharacter) {
        part.kind = RtfTextPart::Kind::Character;
        part.code = *code;
    }
    return part;
}

/// True for what only counts for the characters after a `\u`.
bool RtfTextReader::passesOver(const RtfTextPart& part) {
    switch (part.kind) {
        case RtfTextPart::Kind::Open:
            toPassOver_ = 0;
            lengths_.push_back(lengths_.back());
            return false;
        case RtfTextPart::Kind::Close:
            toPassOver_ = 0;
            if (lengths_.size() > 1) {
                lengths_.pop_back();
            }
            return false;
        default:
            break;
    }
    if (toPassOver_ > 0) {
        --toPassOver_;
        return true;
    }
    if (part.control.word == "uc") {
        lengths_.back() = std::max(part.control.number.value_or(1), 0);
        return true;
    }
    toPassOver_ = isUnicode(part) ? lengths_.back() : 0;
    return false;
}

/// The part, or the character of which it is the second half; nothing for the first half, which
/// waits for the second.
std::optional<RtfTextPart> RtfTextReader::joined(const RtfTextPart& part) {
    const bool isUnit = isUnicode(part);
    if (high_ && isUnit && isLow(part.code)) {
        RtfTextPart whole = *std::exchange(high_, std::nullopt);
        constexpr char32_t firstBeyond = 0x10000;
        whole.code = firstBeyond + ((whole.code - 0xD800) << 10U) + (part.code - 0xDC00);
        whole.end = part.end;
        return whole;
    }
    const bool begins = isUnit && isHigh(part.code);
    if (high_) {
        std::optional<RtfTextPart> alone = std::exchange(high_, std::nullopt);
        (begins ? high_ : waiting_) = part;
        return alone;
    }
    if (begins) {
        high_ = part;
        return std::nullopt;
    }
    return part;
}

}  // namespace quorvane
