#include "quorvane/compose/Text.h"

#include <cstddef>

#include "quorvane/compose/textMarks.h"

namespace quorvane {

namespace {

void appendMark(char kind, std::string& marked) {
    marked += textMarks::mark;
    marked += kind;
}

/// A byte that is a mark stays itself, so that the text is refused and not taken for another one.
void appendUnmarked(std::string_view text, std::string& marked) {
    std::size_t at = text.find(textMarks::mark);
    while (at != std::string_view::npos) {
        marked += text.substr(0, at);
        appendMark(textMarks::byte, marked);
        text.remove_prefix(at + 1);
        at = text.find(textMarks::mark);
    }
    marked += text;
}

void appendName(char kind, std::string_view name, std::string& marked) {
    appendMark(kind, marked);
    appendUnmarked(name, marked);
    appendMark(textMarks::endOfName, marked);
}

}  // namespace

Text::Text(std::string_view utf8) {
    appendUnmarked(utf8, marked_);
}

Text Text::within(char kind, std::string_view name, const Text& text) {
    constexpr std::size_t marks = 6;
    Text whole;
    whole.marked_.reserve(name.size() + text.marked_.size() + marks);
    appendName(kind, name, whole.marked_);
    whole.marked_ += text.marked_;
    appendMark(textMarks::end, whole.marked_);
    return whole;
}

Text operator+(Text first, const Text& second) {
    first += second;
    return first;
}

Text rtf(std::string_view raw) {
    Text text;
    appendName(textMarks::raw, raw, text.marked_);
    return text;
}

Text styled(std::string_view style, const Text& text) {
    return Text::within(textMarks::style, style, text);
}

Text bold(const Text& text) {
    return Text::within(textMarks::words, "\\b", text);
}

Text italic(const Text& text) {
    return Text::within(textMarks::words, "\\i", text);
}

Text underlined(const Text& text) {
    return Text::within(textMarks::words, "\\ul", text);
}

}  // namespace quorvane
