#include "quorvane/formatting/plainRawRtf.h"

#include <cstddef>

#include "quorvane/base/text/asciiCharacters.h"
#include "quorvane/base/text/utf8.h"
#include "quorvane/rtf/RtfTextReader.h"
#include "quorvane/rtf/escape.h"

namespace quorvane {

namespace {

class RawWriter {
public:
    explicit RawWriter(std::string_view rtf) : rtf_(rtf) {}

    std::string run() {
        RtfTextReader reader(rtf_);
        while (const std::optional<RtfTextPart> part = reader.next()) {
            if (part->control.word != "cs") {
                append(*part);
            }
        }
        return std::move(raw_);
    }

private:
    void append(const RtfTextPart& part) {
        const std::string_view written = rtf_.substr(part.begin, part.end - part.begin);
        const std::string text = shown(part, written);
        // Something that was left out kept the word before and this text apart.
        if (endsInWord_ && part.begin != end_ && wouldContinueWord(text.front())) {
            raw_ += ' ';
        }
        raw_ += text;
        end_ = part.end;
        endsInWord_ = part.control.word != "u" && !part.control.word.empty() &&
                      part.control.length == part.control.shownLength;
    }

    static std::string shown(const RtfTextPart& part, std::string_view written) {
        if (part.control.word != "u") {
            return std::string(written);
        }
        std::string text;
        appendUtf8(part.code, text);
        return findUnshowable(text) ? std::string(written)
               : part.code < 0x80   ? rtfText(text)
                                    : text;
    }

    static bool wouldContinueWord(char character) {
        return isAsciiLetter(character) || isAsciiDigit(character) || character == '-' ||
               character == ' ';
    }

    std::string_view rtf_;
    std::string raw_;
    std::size_t end_ = 0;
    bool endsInWord_ = false;
};

}  // namespace

std::string plainRawRtf(std::string_view rtf) {
    return RawWriter(rtf).run();
}

}  // namespace quorvane
