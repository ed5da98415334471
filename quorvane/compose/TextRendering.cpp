#include "quorvane/compose/TextRendering.h"

#include <algorithm>
#include <cstddef>

#include "quorvane/compose/textMarks.h"
#include "quorvane/driver/LeafError.h"
#include "quorvane/driver/literalText.h"
#include "quorvane/driver/rawRtf.h"
#include "quorvane/rtf/escape.h"

namespace quorvane {

namespace {

/// A name without the marks of bytes that are marks.
std::string nameOf(std::string_view marked) {
    std::string name(marked);
    for (std::size_t at = name.find(textMarks::mark); at != std::string::npos;
         at = name.find(textMarks::mark, at + 1)) {
        name.erase(at + 1, 1);
    }
    return name;
}

/// The end of a name, words or raw RTF that begins there.
std::size_t endOfName(std::string_view marked, std::size_t from) {
    constexpr char end[] = {textMarks::mark, textMarks::endOfName};
    return marked.find(std::string_view(end, sizeof end), from);
}

}  // namespace

std::string_view TextRendering::rtfOf(const TextView& view) {
    rtf_.clear();
    if (view.text_) {
        append(view.text_->marked_);
    } else {
        appendRtfText(view.literal_, rtf_);
    }
    return rtf_;
}

void TextRendering::append(std::string_view marked) {
    std::size_t at = 0;
    for (;;) {
        const std::size_t mark = std::min(marked.find(textMarks::mark, at), marked.size());
        appendRtfText(marked.substr(at, mark - at), rtf_);
        if (mark == marked.size()) {
            return;
        }
        const char kind = marked[mark + 1];
        at = mark + 2;
        if (kind == textMarks::end) {
            rtf_ += '}';
        } else if (kind == textMarks::byte) {
            // Not UTF-8: an error.
            appendRtfText(marked.substr(mark, 1), rtf_);
        } else {
            const std::size_t end = endOfName(marked, at);
            appendNamed(kind, marked.substr(at, end - at));
            at = end + 2;
        }
    }
}

void TextRendering::appendNamed(char kind, std::string_view name) {
    switch (kind) {
        case textMarks::raw:
            rtf_ += rawRtf(nameOf(name));
            break;
        case textMarks::style:
            beginStyledText(wordsOf(name), rtf_);
            break;
        default:
            beginStyledText(name, rtf_);
            break;
    }
}

std::string_view TextRendering::wordsOf(std::string_view style) const {
    const std::string_view words = document_.GetCharacterStyle(style);
    if (words.empty()) {
        throw LeafError(DriverFault::UndefinedStyle, "character style " + nameOf(style));
    }
    return words;
}

}  // namespace quorvane
