#include "cli/DiagnosticExcerpt.h"

#include <algorithm>
#include <cstddef>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/text/utf8.h"

namespace quorvane::cli {

namespace {

constexpr std::int64_t shownBefore = 80;
constexpr std::int64_t shownAfter = 60;
constexpr std::int64_t longestMark = 100;
constexpr std::string_view ellipsis = "...";
constexpr std::string_view replacementCharacter = "\xEF\xBF\xBD";

std::int64_t longestCharacter(TextEncoding encoding) {
    return isUtf8(encoding) ? 4 : 1;
}

/// True for control characters and for those that change the direction of what follows.
bool isInvisible(char32_t code) {
    return code < 0x20 || (code >= 0x7F && code < 0xA0) || code == 0x2028 || code == 0x2029 ||
           (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
}

std::string shownText(std::string_view text) {
    std::string shown;
    for (std::size_t at = 0; at < text.size();) {
        const Utf8Character character = utf8CharacterAt(text, at);
        const bool isStray = character.code >= strayByte;
        shown += isStray                       ? replacementCharacter
                 : isInvisible(character.code) ? " "
                                               : text.substr(at, character.length);
        at += character.length;
    }
    return shown;
}

std::string shown(std::string_view bytes, TextEncoding encoding) {
    return shownText(isUtf8(encoding) ? std::string(bytes) : utf8FromCodePage1252(bytes));
}

/// The end of the first characters, at most so many.
std::size_t endOfFirst(std::string_view bytes, std::int64_t count, TextEncoding encoding) {
    std::size_t at = 0;
    for (; count > 0 && at < bytes.size(); --count) {
        at += isUtf8(encoding) ? utf8CharacterAt(bytes, at).length : 1;
    }
    return at;
}

/// The beginning of the last characters, at most so many.
std::size_t beginOfLast(std::string_view bytes, std::int64_t count, TextEncoding encoding) {
    std::size_t at = bytes.size();
    for (; count > 0 && at > 0; --count) {
        --at;
        while (isUtf8(encoding) && at > 0 &&
               (static_cast<unsigned char>(bytes[at]) & 0xC0U) == 0x80) {
            --at;
        }
    }
    return at;
}

/// A part of a line: what is before the place, what is marked, and what is after it.
struct LineParts {
    std::string_view before;
    std::string_view marked;
    std::string_view after;
};

/// The parts of a line, of which the bytes begin so many before the place.
LineParts partsOf(std::string_view bytes, std::int64_t before, std::int64_t marked,
                  TextEncoding encoding) {
    const auto cut = static_cast<std::size_t>(before);
    // The line may end within the mark where the file has changed in the meantime.
    const std::size_t lineEnd = std::min(bytes.find_first_of("\r\n", cut), bytes.size());
    const std::string_view rest = bytes.substr(cut, lineEnd - cut);
    const std::size_t markEnd =
        endOfFirst(rest.substr(0, static_cast<std::size_t>(marked)), longestMark, encoding);
    return {bytes.substr(0, cut), rest.substr(0, markEnd), rest.substr(markEnd)};
}

}  // namespace

DiagnosticExcerpt excerptAt(const Place& place, const FileWindow& window) {
    const TextEncoding encoding = window.encoding;
    const std::int64_t unit = longestCharacter(encoding);
    const std::int64_t inLine = place.bytes.column - 1;
    const std::int64_t before = std::min(inLine, shownBefore * unit);
    const std::int64_t marked = std::min(place.bytes.length, longestMark * unit);
    const std::string bytes =
        window.read(place.bytes.offset - before, before + marked + (shownAfter + 1) * unit);
    if (std::ssize(bytes) < before) {
        return {};
    }
    const LineParts parts = partsOf(bytes, before, marked, encoding);
    const std::size_t begin = beginOfLast(parts.before, shownBefore, encoding);
    const std::size_t end = endOfFirst(parts.after, shownAfter, encoding);
    DiagnosticExcerpt excerpt{shown(parts.before.substr(begin), encoding),
                              shown(parts.marked, encoding),
                              shown(parts.after.substr(0, end), encoding)};
    if (begin > 0 || before < inLine) {
        excerpt.before.insert(0, ellipsis);
    }
    if (end < parts.after.size()) {
        excerpt.after += ellipsis;
    }
    return excerpt;
}

FileWindow windowOf(std::string_view bytes, TextEncoding encoding) {
    return {[bytes](std::int64_t offset, std::int64_t length) {
                const auto begin = std::min(static_cast<std::size_t>(offset), bytes.size());
                return std::string(bytes.substr(begin, static_cast<std::size_t>(length)));
            },
            encoding};
}

}  // namespace quorvane::cli
