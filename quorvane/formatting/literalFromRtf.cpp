#include "quorvane/formatting/literalFromRtf.h"

#include <cstddef>
#include <vector>

#include "quorvane/base/text/utf8.h"
#include "quorvane/docmodel/inline/inlineToken.h"
#include "quorvane/rtf/RtfTextReader.h"
#include "quorvane/rtf/formattingWords.h"

namespace quorvane {

namespace {

/// Writes the literal text of one text.
class LiteralWriter {
public:
    LiteralWriter(std::string_view rtf, const std::function<bool(std::string_view)>& isStyle)
        : rtf_(rtf), isStyle_(isStyle) {}

    std::optional<std::string> run() {
        RtfTextReader reader(rtf_);
        while (const std::optional<RtfTextPart> part = reader.next()) {
            if (part->kind == RtfTextPart::Kind::Control) {
                return std::nullopt;
            }
            if (part->kind == RtfTextPart::Kind::Character && part->begin >= openingEnd_) {
                take(*part);
            }
        }
        return std::move(text_);
    }

private:
    void take(const RtfTextPart& part) {
        if (part.isPlain() && part.code == '<' && opensToken(part.begin)) {
            return;
        }
        if (part.isPlain() && part.code == '>' && !isStyleOpen_.empty()) {
            text_ += isStyleOpen_.back() ? ">" : "";
            isStyleOpen_.pop_back();
            return;
        }
        appendUtf8(part.code, text_);
    }

    /// Takes the opening of a token; false where there is none.
    bool opensToken(std::size_t opening) {
        const std::size_t begin = opening + 1;
        const std::size_t end = rtf_.find_first_of("=<>", begin);
        if (end == std::string_view::npos || rtf_[end] != '=' || end == begin ||
            !beginsInlineToken(rtf_[begin])) {
            return false;
        }
        openingEnd_ = end + 1;
        const bool isStyle = isStyle_(rtf_.substr(begin, end - begin));
        text_ += isStyle ? rtf_.substr(opening, openingEnd_ - opening) : std::string_view();
        isStyleOpen_.push_back(isStyle);
        return true;
    }

    std::string_view rtf_;
    const std::function<bool(std::string_view)>& isStyle_;
    std::string text_;
    // Of the tokens that are open, whether each is one of a style.
    std::vector<bool> isStyleOpen_;
    std::size_t openingEnd_ = 0;
};

bool isBlank(char32_t code) {
    return code == ' ' || code == '\t' || code == '\n' || code == 0xA0 ||
           (code >= 0x2000 && code <= 0x200A);
}

}  // namespace

std::optional<std::string> literalFromRtf(
    std::string_view rtf, const std::function<bool(std::string_view name)>& isStyle) {
    return LiteralWriter(rtf, isStyle).run();
}

std::size_t endOfLeadingFormat(std::string_view rtf) {
    std::size_t end = 0;
    RtfTextReader reader(rtf);
    for (auto part = reader.next(); part && isFormattingWord(part->control.word);
         part = reader.next()) {
        end = part->end;
    }
    return end;
}

bool isInvisibleText(std::string_view utf8) {
    for (std::size_t at = 0; at < utf8.size();) {
        const Utf8Character character = utf8CharacterAt(utf8, at);
        if (!isBlank(character.code) && !isInvisible(character.code)) {
            return false;
        }
        at += character.length;
    }
    return !utf8.empty();
}

}  // namespace quorvane
