#include "quorvane/diagnostics/engine/SourceText.h"

#include <algorithm>

#include "quorvane/base/text/LineReader.h"
#include "quorvane/base/text/utf8.h"

namespace quorvane {

namespace {

constexpr std::size_t bytesPerMark = 256;

}  // namespace

SourceText::SourceText(std::string_view text) : text_(text) {
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

Place SourceText::place(std::size_t from, std::size_t to) const {
    const auto after =
        std::upper_bound(lines_.begin(), lines_.end(), from,
                         [](std::size_t wanted, const Line& line) { return wanted < line.start; });
    const Line& line = *(after - 1);
    const std::size_t start = std::min(from, line.end);
    const std::size_t end = std::clamp(to, start, line.end);
    const auto offset = static_cast<std::int64_t>(charactersBefore(start));
    return {after - lines_.begin(),
            offset - static_cast<std::int64_t>(charactersBefore(line.start)) + 1,
            static_cast<std::int64_t>(charactersBefore(end)) - offset, offset};
}

}  // namespace quorvane
