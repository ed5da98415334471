#include "cli/unifiedDiff.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

#include "cli/lineChanges.h"
#include "cli/oneLine.h"
#include "quorvane/base/platform/utf8Path.h"
#include "quorvane/base/text/codePage1252.h"

namespace quorvane::cli {

namespace {

constexpr std::size_t linesAround = 3;

/// The lines of a text, each with the line feed that ends it; the last one may have none.
std::vector<std::string_view> linesWithEnds(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t length = std::min(text.find('\n'), text.size() - 1) + 1;
        lines.push_back(text.substr(0, length));
        text.remove_prefix(length);
    }
    return lines;
}

bool needsQuotes(std::string_view name) {
    return std::any_of(name.begin(), name.end(), [](char character) {
        const auto byte = static_cast<unsigned char>(character);
        return byte < 0x20 || byte == 0x7F || character == '"' || character == '\\';
    });
}

/// In quotation marks, with the escapes of C.
std::string inQuotes(std::string_view name) {
    std::string text = "\"";
    for (const char character : name) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte < 0x20 || byte == 0x7F) {
            text += '\\';
            text += static_cast<char>('0' + (byte >> 6U));
            text += static_cast<char>('0' + ((byte >> 3U) & 7U));
            text += static_cast<char>('0' + (byte & 7U));
        } else {
            text += character == '"' || character == '\\' ? "\\" : "";
            text += character;
        }
    }
    return text + '"';
}

/// The name of a file in the head of a diff.
std::string nameInHead(char side, const std::string& file) {
    const std::u8string path = pathFromUtf8(file).generic_u8string();
    std::string name(path.begin(), path.end());
    name.erase(0, name.find_first_not_of('/'));
    name = std::string(1, side) + "/" + name;
    if (needsQuotes(name)) {
        return inQuotes(name);
    }
    // Without the tab, patch takes a name up to its first blank.
    return name.find(' ') == std::string::npos ? name : name + "\t";
}

/// Where a hunk begins, and how many lines it has. One without a line is after the line it names.
std::string extent(std::size_t begin, std::size_t end) {
    const std::size_t count = end - begin;
    const std::string start = std::to_string(count == 0 ? begin : begin + 1);
    return count == 1 ? start : start + "," + std::to_string(count);
}

class Diff {
public:
    Diff(std::string_view before, std::string_view after)
        : before_(linesWithEnds(before)), after_(linesWithEnds(after)) {}

    std::string hunks() {
        const std::vector<LineChange> changes = lineChanges(before_, after_);
        for (std::size_t first = 0; first < changes.size();) {
            std::size_t last = first;
            while (last + 1 < changes.size() &&
                   changes[last + 1].beginBefore - changes[last].endBefore <= 2 * linesAround) {
                ++last;
            }
            addHunk(&changes[first], &changes[last]);
            first = last + 1;
        }
        return text_;
    }

private:
    void addHunk(const LineChange* first, const LineChange* last) {
        const std::size_t above = std::min(linesAround, first->beginBefore);
        const std::size_t below = std::min(linesAround, before_.size() - last->endBefore);
        text_ += "@@ -" + extent(first->beginBefore - above, last->endBefore + below) + " +" +
                 extent(first->beginAfter - above, last->endAfter + below) + " @@\n";
        std::size_t at = first->beginBefore - above;
        for (const LineChange* change = first; change <= last; ++change) {
            addLines(' ', before_, at, change->beginBefore);
            addLines('-', before_, change->beginBefore, change->endBefore);
            addLines('+', after_, change->beginAfter, change->endAfter);
            at = change->endBefore;
        }
        addLines(' ', before_, at, last->endBefore + below);
    }

    void addLines(char mark, const std::vector<std::string_view>& lines, std::size_t begin,
                  std::size_t end) {
        for (std::size_t i = begin; i < end; ++i) {
            text_ += mark;
            text_ += lines[i];
            if (!lines[i].ends_with('\n')) {
                text_ += "\n\\ No newline at end of file\n";
            }
        }
    }

    std::vector<std::string_view> before_;
    std::vector<std::string_view> after_;
    std::string text_;
};

/// The control sequence for a line of a diff; empty for one without a color.
std::string_view colorOf(std::string_view line, bool isInHead) {
    constexpr std::string_view bold = "\x1b[1m";
    constexpr std::string_view red = "\x1b[31m";
    constexpr std::string_view green = "\x1b[32m";
    constexpr std::string_view cyan = "\x1b[36m";
    return isInHead                ? bold
           : line.starts_with('@') ? cyan
           : line.starts_with('-') ? red
           : line.starts_with('+') ? green
                                   : std::string_view();
}

}  // namespace

std::string unifiedDiff(const std::string& name, std::string_view before, std::string_view after) {
    const std::string hunks = Diff(before, after).hunks();
    return hunks.empty()
               ? hunks
               : "--- " + nameInHead('a', name) + "\n+++ " + nameInHead('b', name) + "\n" + hunks;
}

std::string diffForTerminal(std::string_view diff, TextEncoding encoding, Colors colors) {
    std::string text;
    std::size_t number = 0;
    for (std::string_view line : linesWithEnds(diff)) {
        line.remove_suffix(line.ends_with("\r\n") ? 2 : 1);
        const bool isInHead = number < 2;
        // The head has a name in UTF-8; what follows has the file's own bytes.
        const std::string shown =
            oneLine(isInHead || isUtf8(encoding) ? std::string(line) : utf8FromCodePage1252(line));
        const std::string_view color =
            colors == Colors::On ? colorOf(line, isInHead) : std::string_view();
        text += color;
        text += shown;
        text += color.empty() ? "\n" : "\x1b[0m\n";
        ++number;
    }
    return text;
}

}  // namespace quorvane::cli
