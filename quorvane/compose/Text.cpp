#include "quorvane/compose/Text.h"

#include <iterator>
#include <utility>

namespace quorvane {

Text::Text(std::string_view utf8) {
    if (!utf8.empty()) {
        parts_.push_back({Part::Kind::Literal, std::string(utf8)});
    }
}

Text& Text::operator+=(const Text& other) {
    // It can be this text.
    const std::vector<Part> appended = other.parts_;
    auto next = appended.begin();
    // Blanks in a row are one text, wherever its parts meet.
    if (!parts_.empty() && next != appended.end() && parts_.back().kind == Part::Kind::Literal &&
        next->kind == Part::Kind::Literal) {
        parts_.back().text += next->text;
        ++next;
    }
    parts_.insert(parts_.end(), next, appended.end());
    return *this;
}

Text Text::within(Part begin, const Text& text) {
    Text whole;
    whole.parts_.reserve(text.parts_.size() + 2);
    whole.parts_.push_back(std::move(begin));
    whole.parts_.insert(whole.parts_.end(), text.parts_.begin(), text.parts_.end());
    whole.parts_.push_back({Part::Kind::End});
    return whole;
}

Text operator+(Text first, const Text& second) {
    first += second;
    return first;
}

Text rtf(std::string_view raw) {
    Text text;
    text.parts_.push_back({Text::Part::Kind::Raw, std::string(raw)});
    return text;
}

Text styled(std::string_view style, const Text& text) {
    return Text::within({Text::Part::Kind::Style, std::string(style)}, text);
}

Text bold(const Text& text) {
    return Text::within({Text::Part::Kind::Words, "\\b"}, text);
}

Text italic(const Text& text) {
    return Text::within({Text::Part::Kind::Words, "\\i"}, text);
}

Text underlined(const Text& text) {
    return Text::within({Text::Part::Kind::Words, "\\ul"}, text);
}

}  // namespace quorvane
