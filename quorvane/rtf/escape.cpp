#include "quorvane/rtf/escape.h"

#include <algorithm>
#include <array>
#include <cstddef>
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

using ByteSet = std::array<bool, 256>;

/// The bytes that are written as they are, wherever they stand. A blank depends on its neighbors.
constexpr ByteSet plainBytes(std::string_view special) {
    ByteSet plain{};
    for (std::size_t byte = 0x21; byte < 0x7F; ++byte) {
        plain[byte] = special.find(static_cast<char>(byte)) == std::string_view::npos;
    }
    return plain;
}

constexpr ByteSet plainForModel = plainBytes("\\{}<>");
constexpr ByteSet plainForDescription = plainBytes("\\{}<>)");

/// Appends the characters of one text to another.
class Escaping {
public:
    Escaping(std::string_view utf8, bool isForDescription, std::string& rtf)
        : utf8_(utf8),
          isForDescription_(isForDescription),
          plain_(isForDescription ? plainForDescription : plainForModel),
          rtf_(rtf) {}

    void run() {
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
    }

private:
    /// The end of the characters from here on that stay as they are.
    std::size_t endOfPlain() const {
        const auto isPlain = [&plain = plain_](char byte) {
            return plain[static_cast<unsigned char>(byte)];
        };
        const char* const last = utf8_.data() + utf8_.size();
        for (const char* at = utf8_.data() + at_;; ++at) {
            at = std::find_if_not(at, last, isPlain);
            const auto end = static_cast<std::size_t>(at - utf8_.data());
            if (at == last || *at != ' ' || isLostBlank(end)) {
                return end;
            }
        }
    }

    bool isFirstOrLast(std::size_t at) const { return at == 0 || at + 1 == utf8_.size(); }

    /// A blank that not all readers would show: LibreOffice makes other characters of two blanks in
    /// a row, and a description leaves those at its ends out.
    bool isLostBlank(std::size_t at) const {
        if (at > 0 && utf8_[at - 1] == ' ') {
            return true;
        }
        return isForDescription_ && isFirstOrLast(at);
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
            raise(RunTimeError::InvalidProcedureCall,
                  message + " (byte " + std::to_string(at_ + 1) + ")");
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
                takeCode(static_cast<unsigned char>(character));
        }
    }

    void takeCode(unsigned code) {
        const std::array<char, 4> word = {'\\', '\'', upperHexadecimalDigits[code / 16],
                                          upperHexadecimalDigits[code % 16]};
        rtf_.append(word.data(), word.size());
    }

    void addUnicode(char32_t code) {
        if (!inUnicode_) {
            rtf_ += std::string_view("{\\uc1");
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
    const ByteSet& plain_;
    std::size_t at_ = 0;
    // True within a group of characters that Windows-1252 lacks.
    bool inUnicode_ = false;
    std::string& rtf_;
};

}  // namespace

std::string rtfText(std::string_view utf8) {
    std::string rtf;
    appendRtfText(utf8, rtf);
    return rtf;
}

void appendRtfText(std::string_view utf8, std::string& rtf) {
    Escaping(utf8, false, rtf).run();
}

std::string descriptionText(std::string_view utf8) {
    std::string rtf;
    Escaping(utf8, true, rtf).run();
    return rtf;
}

std::optional<Unshowable> findUnshowable(std::string_view utf8) {
    const auto isPlain = [](char byte) { return byte >= 0x20 && byte < 0x7F; };
    std::size_t at = 0;
    while (at < utf8.size()) {
        if (isPlain(utf8[at])) {
            ++at;
            continue;
        }
        const Utf8Character character = utf8CharacterAt(utf8, at);
        if (std::string message = messageAgainst(character.code); !message.empty()) {
            return Unshowable{at, std::move(message)};
        }
        at += character.length;
    }
    return std::nullopt;
}

}  // namespace quorvane
