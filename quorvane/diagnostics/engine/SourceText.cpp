#include "quorvane/diagnostics/engine/SourceText.h"

#include <algorithm>
#include <functional>

#include "quorvane/base/text/LineReader.h"
#include "quorvane/base/text/utf8.h"

namespace quorvane {

namespace {

constexpr std::size_t bytesPerMark = 256;

/// The extent of a part of a line, in the unit in which the positions are given.
Place::Bytes extentOf(std::size_t lineStart, std::size_t start, std::size_t end) {
    return {static_cast<std::int64_t>(start - lineStart) + 1,
            static_cast<std::int64_t>(end - start), static_cast<std::int64_t>(start)};
}

bool isPartOf(std::string_view part, std::string_view text) {
    return !std::less<>()(part.data(), text.data()) &&
           !std::less<>()(text.data() + text.size(), part.data());
}

}  // namespace

SourceText::SourceText(std::string_view text, TextEncoding encoding)
    : text_(text), encoding_(encoding) {
    LineReader reader(text);
    do {
        const std::size_t start = reader.position();
        lines_.push_back({start, start + reader.next().size()});
    } while (reader.endedLine());
    if (asciiRunEnd(text, 0) < text.size()) {
        std::size_t characters = 0;
        for (std::size_t at = 0; at < text.size(); ++characters) {
            if (at >= marks_.size() * bytesPerMark) {
                marks_.push_back({at, characters});
            }
            at += utf8CharacterAt(text, at).length;
        }
    }
}

std::size_t SourceText::charactersBefore(std::size_t position) const {
    if (marks_.empty()) {
        return position;
    }
    const auto after = std::upper_bound(
        marks_.begin(), marks_.end(), position,
        [](std::size_t wanted, const Mark& mark) { return wanted < mark.position; });
    const Mark& mark = *(after - 1);
    return mark.characters + characterCount(text_.substr(mark.position, position - mark.position));
}

Place SourceText::placeOf(std::string_view part) const {
    Place::Included inOther;
    for (std::size_t i = 0; i < included_.size() && inOther.text == 0; ++i) {
        const auto& [other, at] = included_[i];
        if (isPartOf(part, other)) {
            const auto before = static_cast<std::size_t>(part.data() - other.data());
            const auto line = std::max<std::size_t>(lineCount(other.substr(0, before + 1)), 1);
            inOther = {.text = i + 1, .line = static_cast<std::int64_t>(line)};
            part = at;
        }
    }
    const auto from = static_cast<std::size_t>(part.data() - text_.data());
    Place found = place(from, from + part.size());
    found.included = inOther;
    return found;
}

Place SourceText::place(std::size_t from, std::size_t to) const {
    const auto after =
        std::upper_bound(lines_.begin(), lines_.end(), from,
                         [](std::size_t wanted, const Line& line) { return wanted < line.start; });
    const Line& line = *(after - 1);
    const std::size_t start = std::min(from, line.end);
    const std::size_t end = std::clamp(to, start, line.end);
    const std::int64_t number = after - lines_.begin();
    const Place::Bytes characters =
        extentOf(charactersBefore(line.start), charactersBefore(start), charactersBefore(end));
    Place place = placeInBytes(number, characters);
    if (isUtf8(encoding_)) {
        place.bytes = extentOf(line.start, start, end);
        place.bytes.offset += static_cast<std::int64_t>(bytesBeforeText(encoding_));
    }
    return place;
}

}  // namespace quorvane
