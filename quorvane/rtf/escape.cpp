#include "quorvane/rtf/escape.h"

#include <cstddef>
#include <cstdint>
#include <utility>

#include "quorvane/base/text/hexadecimal.h"
#include "quorvane/base/text/utf8.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/rtf/unicodeWords.h"

namespace quorvane {

namespace {

bool isSurrogate(char32_t code) {
    return code >= 0xD800 && code < 0xE000;
}

bool isControl(char32_t code) {
    return code < 0x20 || (code >= 0x7F && code < 0xA0);
}

/// True for the control characters that have control words.
bool isWritten(char32_t code) {
    return code == '\t' || code == '\n' || code == '\r';
}

/// Why a character cannot be shown; empty when it can.
std::string messageAgainst(char32_t code) {
    if (code >= strayByte) {
        return "Byte " + hexadecimal(code - strayByte, 2) + " is not UTF-8";
    }
    if (isSurrogate(code)) {
        return "Half a surrogate pair, U+" + hexadecimal(code, 4) + ", is not UTF-8";
    }
    if (isControl(code) && !isWritten(code)) {
        return "No document can show the control character U+" + hexadecimal(code, 4);
    }
    return {};
}

/// Writes the characters of one text.
class Escaping {
public:
    Escaping(std::string_view utf8, bool isForDescription)
        : utf8_(utf8), isForDescription_(isForDescription) {
        rtf_.reserve(utf8.size() + utf8.size() / 8);
    }

    std::string run() && {
        while (at_ < utf8_.size()) {
            const std::size_t plainEnd = endOfPlain();
            if (plainEnd > at_) {
                endUnicode();
                rtf_ += utf8_.substr(at_, plainEnd - at_);
                at_ = plainEnd;
            } else {
                takeCharacter();
            }
        }
        endUnicode();
        return std::move(rtf_);
    }

private:
    /// The end of the characters from here on that stay as they are.
    std::size_t endOfPlain() const {
        const std::string_view special = isForDescription_ ? "\\{}<>)\x7F" : "\\{}<>\x7F";
        std::size_t end = at_;
        while (end < utf8_.size() && static_cast<unsigned char>(utf8_[end]) >= 0x20 &&
               static_cast<unsigned char>(utf8_[end]) < 0x80 &&
               special.find(utf8_[end]) == std::string_view::npos && !isLostBlank(end)) {
            ++end;
        }
        return end;
    }

    bool isFirstOrLast(std::size_t at) const { return at == 0 || at + 1 == utf8_.size(); }

    /// A blank that not all readers would show: LibreOffice makes other characters of two blanks in
    /// a row, and a description leaves those at its ends out.
    bool isLostBlank(std::size_t at) const {
        return utf8_[at] == ' ' &&
               ((at > 0 && utf8_[at - 1] == ' ') || (isForDescription_ && isFirstOrLast(at)));
    }

    /// An empty group keeps a blank apart from another one and from the end of a value.
    void takeLostBlank() {
        const bool isApart = at_ == 0 ? isForDescription_ : utf8_[at_ - 1] == ' ';
        const bool isLast = isForDescription_ && at_ + 1 == utf8_.size();
        rtf_ += isApart ? "{} " : " ";
        rtf_ += isLast ? "{}" : "";
    }

    void takeCharacter() {
        const Utf8Character character = utf8CharacterAt(utf8_, at_);
        if (const std::string message = messageAgainst(character.code); !message.empty()) {
            raise(RtfError(static_cast<std::int32_t>(RunTimeError::InvalidProcedureCall),
                           message + " (byte " + std::to_string(at_ + 1) + ")"));
        }
        if (character.code < 0x100) {
            endUnicode();
            takeByte(static_cast<char>(character.code));
        } else {
            addUnicode(character.code);
        }
        at_ += character.length;
    }

    void takeByte(char character) {
        switch (character) {
            case '\\':
            case '{':
            case '}':
                rtf_ += '\\';
                rtf_ += character;
                break;
            case ' ':
                takeLostBlank();
                break;
            case '\t':
                rtf_ += "\\tab ";
                break;
            case '\n':
                rtf_ += "\\line ";
                break;
            case '\r':
                // Of a line feed after it, that writes the line break.
                if (!utf8_.substr(at_).starts_with("\r\n")) {
                    rtf_ += "\\line ";
                }
                break;
            default:
                rtf_ += "\\'" + hexadecimal(static_cast<unsigned char>(character), 2);
        }
    }

    void addUnicode(char32_t code) {
        if (!inUnicode_) {
            rtf_ += "{\\uc1";
            inUnicode_ = true;
        }
        appendUnicodeWords(code, rtf_);
    }

    void endUnicode() {
        if (inUnicode_) {
            rtf_ += '}';
            inUnicode_ = false;
        }
    }

    std::string_view utf8_;
    bool isForDescription_;
    std::size_t at_ = 0;
    // True within a group of characters that Windows-1252 lacks.
    bool inUnicode_ = false;
    std::string rtf_;
};

}  // namespace

std::string rtfText(std::string_view utf8) {
    return Escaping(utf8, false).run();
}

std::string descriptionText(std::string_view utf8) {
    return Escaping(utf8, true).run();
}

std::optional<Unshowable> findUnshowable(std::string_view utf8) {
    std::size_t at = 0;
    while (at < utf8.size()) {
        const Utf8Character character = utf8CharacterAt(utf8, at);
        if (std::string message = messageAgainst(character.code); !message.empty()) {
            return Unshowable{at, std::move(message)};
        }
        at += character.length;
    }
    return std::nullopt;
}

}  // namespace quorvane
