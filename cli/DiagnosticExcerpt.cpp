#include "cli/DiagnosticExcerpt.h"

#include <algorithm>
#include <cstddef>

#include "quorvane/base/text/codePage1252.h"

namespace quorvane::cli {

namespace {

constexpr std::int64_t shownBefore = 80;
constexpr std::int64_t shownAfter = 60;
constexpr std::int64_t longestMark = 100;
constexpr std::string_view ellipsis = "...";

std::string shown(std::string_view bytes) {
    std::string text(bytes);
    std::replace_if(
        text.begin(), text.end(),
        [](char character) {
            const auto byte = static_cast<unsigned char>(character);
            return byte < 0x20 || byte == 0x7F || byte == 0x81 || byte == 0x8D || byte == 0x8F ||
                   byte == 0x90 || byte == 0x9D;
        },
        ' ');
    return utf8FromCodePage1252(text);
}

}  // namespace

DiagnosticExcerpt excerptAt(const Place& place, const FileWindow& window) {
    const std::int64_t inLine = place.column - 1;
    const std::int64_t before = std::min(inLine, shownBefore);
    const std::int64_t marked = std::min(place.length, longestMark);
    const std::string bytes = window(place.offset - before, before + marked + shownAfter + 1);
    const auto cut = static_cast<std::size_t>(before);
    if (bytes.size() < cut) {
        return {};
    }
    // The line may end within the mark where the file has changed in the meantime.
    const std::size_t lineEnd = std::min(bytes.find_first_of("\r\n", cut), bytes.size());
    const std::size_t markEnd = std::min(cut + static_cast<std::size_t>(marked), lineEnd);
    const std::size_t end = std::min(lineEnd, markEnd + static_cast<std::size_t>(shownAfter));
    DiagnosticExcerpt excerpt{shown(bytes.substr(0, cut)), shown(bytes.substr(cut, markEnd - cut)),
                              shown(bytes.substr(markEnd, end - markEnd))};
    if (before < inLine) {
        excerpt.before.insert(0, ellipsis);
    }
    if (end < lineEnd) {
        excerpt.after += ellipsis;
    }
    return excerpt;
}

FileWindow windowOf(std::string_view bytes) {
    return [bytes](std::int64_t offset, std::int64_t length) {
        const auto begin = std::min(static_cast<std::size_t>(offset), bytes.size());
        return std::string(bytes.substr(begin, static_cast<std::size_t>(length)));
    };
}

}  // namespace quorvane::cli
