#include "quorvane/driver/rawRtf.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>

#include "quorvane/driver/LeafError.h"
#include "quorvane/rtf/RtfControl.h"
#include "quorvane/rtf/RtfWord.h"
#include "quorvane/rtf/escape.h"
#include "quorvane/rtf/formattingWords.h"
#include "quorvane/rtf/unicodeWords.h"

namespace quorvane {

namespace {

[[noreturn]] void refuse(std::string_view part, const std::string& why) {
    throw LeafError(DriverFault::WrongValue, '"' + std::string(part) + '"' + why);
}

constexpr std::string_view fieldWords[] = {"field", "fldinst", "fldrslt"};

bool canStand(std::string_view word) {
    const RtfWord* const known = findRtfWord(word);
    return isFormattingWord(word) || (known && known->shown != '\0') ||
           std::find(std::begin(fieldWords), std::end(fieldWords), word) != std::end(fieldWords);
}

void requireHarmless(const RtfControl& control, std::string_view written) {
    if (!control.word.empty()) {
        if (control.word == "u" || control.word == "uc") {
            refuse(written, " cannot stand here; write the character itself");
        }
        if (!canStand(control.word)) {
            refuse(written, " cannot stand here; write words that format text");
        }
        return;
    }
    constexpr std::string_view symbols = "~-_\\{}*'";
    if (symbols.find(control.symbol) == std::string_view::npos || control.isBadEscape()) {
        refuse(written, " is not a control symbol; write \\\\ for a backslash");
    }
}

/// Reads a raw text from its beginning to its end.
class RawText {
public:
    explicit RawText(std::string_view text) : text_(text) {}

    std::string converted() {
        while (at_ < text_.size()) {
            takeNext();
        }
        if (depth_ > 0) {
            refuse(text_, " opens a group and does not close it; write }");
        }
        return withUnicodeWords(rtf_) + (endsInWord_ ? " " : "");
    }

private:
    void takeNext() {
        endsInWord_ = false;
        switch (text_[at_]) {
            case '\\':
                takeControl();
                return;
            case '{':
            case '}':
                depth_ += text_[at_] == '{' ? 1 : -1;
                if (depth_ < 0) {
                    refuse(text_, " closes a group that it does not open; remove }");
                }
                rtf_ += text_[at_];
                break;
            // Inline styles belong into the text.
            case '<':
            case '>':
                rtf_ += rtfText(text_.substr(at_, 1));
                break;
            default:
                rtf_ += text_[at_];
        }
        ++at_;
    }

    void takeControl() {
        RtfControl control;
        readRtfControl(text_, at_, control);
        const std::string_view written = text_.substr(at_, control.shownLength);
        requireHarmless(control, written);
        rtf_ += text_.substr(at_, control.length);
        at_ += control.length;
        endsInWord_ = !control.word.empty() && control.length == control.shownLength;
    }

    std::string_view text_;
    std::size_t at_ = 0;
    std::int64_t depth_ = 0;
    bool endsInWord_ = false;
    std::string rtf_;
};

}  // namespace

std::string rawRtf(std::string_view text) {
    if (const std::optional<Unshowable> unshowable = findUnshowable(text)) {
        throw LeafError(DriverFault::WrongValue, unshowable->message);
    }
    return RawText(text).converted();
}

}  // namespace quorvane
