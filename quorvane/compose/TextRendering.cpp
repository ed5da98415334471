#include "quorvane/compose/TextRendering.h"

#include "quorvane/driver/LeafError.h"
#include "quorvane/driver/literalText.h"
#include "quorvane/driver/rawRtf.h"
#include "quorvane/rtf/escape.h"

namespace quorvane {

std::string_view TextRendering::rtfOf(const TextView& view) {
    rtf_.clear();
    if (view.text_) {
        append(*view.text_);
    } else {
        appendRtfText(view.literal_, rtf_);
    }
    return rtf_;
}

void TextRendering::append(const Text& text) {
    using Kind = Text::Part::Kind;
    for (const Text::Part& part : text.parts_) {
        switch (part.kind) {
            case Kind::Literal:
                appendRtfText(part.text, rtf_);
                break;
            case Kind::Raw:
                rtf_ += rawRtf(part.text);
                break;
            case Kind::Style:
                beginStyledText(wordsOf(part.text), rtf_);
                break;
            case Kind::Words:
                beginStyledText(part.text, rtf_);
                break;
            case Kind::End:
                rtf_ += '}';
                break;
        }
    }
}

std::string_view TextRendering::wordsOf(const std::string& style) const {
    const std::string_view words = document_.GetCharacterStyle(style);
    if (words.empty()) {
        throw LeafError(DriverFault::UndefinedStyle, "character style " + style);
    }
    return words;
}

}  // namespace quorvane
