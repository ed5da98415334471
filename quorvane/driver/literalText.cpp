#include "quorvane/driver/literalText.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "quorvane/base/text/nowhere.h"
#include "quorvane/docmodel/inline/inlineToken.h"
#include "quorvane/rtf/escape.h"

namespace quorvane {

namespace {

/// An inline style: where it is in the text, and the words that it stands for.
struct StyledPart {
    std::size_t opening;
    std::size_t textBegin;
    std::string_view words;
    /// Where its ">" stands; nowhere while it is open.
    std::size_t closing = nowhere;
};

bool endsName(char character) {
    return character == '=' || character == '<' || character == '>' || character == '\r' ||
           character == '\n';
}

/// The name of the style that a "<" opens; empty when it opens none. Names are short, which keeps
/// the time for a text with many "<" linear.
std::string_view nameAfter(std::string_view text, std::size_t opening) {
    constexpr std::size_t maxName = 255;
    const std::string_view rest = text.substr(opening + 1, maxName + 1);
    std::size_t end = 0;
    while (end < rest.size() && !endsName(rest[end])) {
        ++end;
    }
    const bool isName =
        end > 0 && end < rest.size() && rest[end] == '=' && beginsInlineToken(rest.front());
    return isName ? rest.substr(0, end) : std::string_view();
}

/// Finds out whether positions, none before the last one, are in a part that comes from data.
class DataParts {
public:
    explicit DataParts(std::span<const TextRange> ranges) : ranges_(ranges) {}

    bool contain(std::size_t position) { return beginBefore(position, position + 1); }

    /// True where a part begins before `end` that does not end before the position.
    bool beginBefore(std::size_t position, std::size_t end) {
        while (!ranges_.empty() && ranges_.front().end <= position) {
            ranges_ = ranges_.subspan(1);
        }
        return !ranges_.empty() && ranges_.front().begin < end;
    }

private:
    std::span<const TextRange> ranges_;
};

/// The inline styles of a text that end, in the order of their openings.
std::vector<StyledPart> styledParts(std::string_view text, const CharacterStyleWords& wordsOf,
                                    std::span<const TextRange> data) {
    std::vector<StyledPart> parts;
    std::vector<std::size_t> open;
    DataParts dataParts(data);
    for (std::size_t at = 0; at < text.size(); ++at) {
        if ((text[at] != '<' && text[at] != '>') || dataParts.contain(at)) {
            continue;
        }
        if (text[at] == '>' && !open.empty()) {
            parts[open.back()].closing = at;
            open.pop_back();
        }
        if (text[at] != '<') {
            continue;
        }
        const std::string_view name = nameAfter(text, at);
        const bool isWritten = !name.empty() && !dataParts.beginBefore(at, at + 1 + name.size());
        const std::string_view words = isWritten ? wordsOf(name) : std::string_view();
        if (!words.empty()) {
            open.push_back(parts.size());
            parts.push_back({at, at + 1 + name.size() + 1, words});
        }
    }
    std::erase_if(parts, [](const StyledPart& part) { return part.closing == nowhere; });
    return parts;
}

bool isBlank(std::string_view text) {
    return text.find_first_not_of(" \t") == nowhere;
}

/// How long the line break is that stands there.
std::size_t lineBreakAt(std::string_view text, std::size_t at) {
    return text.substr(at).starts_with("\r\n") ? 2 : 1;
}

/// The text without as many blanks at its beginning as there are in `indent`, at most.
std::string_view withoutIndent(std::string_view line, std::size_t indent) {
    const std::size_t own = std::min(line.find_first_not_of(" \t"), line.size());
    return line.substr(std::min(own, indent));
}

}  // namespace

void beginStyledText(std::string_view words, std::string& rtf) {
    rtf += '{';
    rtf += words;
    if (rtf.back() != ' ' && rtf.back() != '{') {
        rtf += ' ';
    }
}

void appendLiteralText(std::string_view text, const CharacterStyleWords& wordsOf, std::string& rtf,
                       std::span<const TextRange> data) {
    if (text.find('<') == nowhere) {
        appendRtfText(text, rtf);
        return;
    }
    const std::vector<StyledPart> parts = styledParts(text, wordsOf, data);
    std::vector<std::size_t> closings;
    std::size_t at = 0;
    const auto closeUpTo = [&](std::size_t end) {
        while (!closings.empty() && closings.back() < end) {
            appendRtfText(text.substr(at, closings.back() - at), rtf);
            rtf += '}';
            at = closings.back() + 1;
            closings.pop_back();
        }
    };
    for (const StyledPart& part : parts) {
        closeUpTo(part.opening);
        appendRtfText(text.substr(at, part.opening - at), rtf);
        beginStyledText(part.words, rtf);
        at = part.textBegin;
        closings.push_back(part.closing);
    }
    closeUpTo(nowhere);
    appendRtfText(text.substr(at), rtf);
}

std::vector<std::string_view> inlineStyleNames(std::string_view text,
                                               std::span<const TextRange> data) {
    std::vector<std::string_view> names;
    DataParts dataParts(data);
    for (std::size_t at = text.find('<'); at != nowhere; at = text.find('<', at + 1)) {
        const std::string_view name = nameAfter(text, at);
        if (!name.empty() && !dataParts.beginBefore(at, at + 1 + name.size())) {
            names.push_back(name);
        }
    }
    return names;
}

std::string blockText(std::string_view block, std::string_view mark) {
    const std::vector<std::string_view> lines = blockLines(block, mark);
    std::string joined(lines.front());
    for (std::size_t i = 1; i < lines.size(); ++i) {
        joined += '\n';
        joined += lines[i];
    }
    return joined;
}

std::vector<std::string_view> blockLines(std::string_view block, std::string_view mark) {
    std::string_view text = block.substr(mark.size(), block.size() - 2 * mark.size());
    const std::size_t firstLineEnd = text.find_first_of("\r\n");
    if (firstLineEnd != nowhere && isBlank(text.substr(0, firstLineEnd))) {
        text.remove_prefix(firstLineEnd + lineBreakAt(text, firstLineEnd));
    }
    // A mark on a line of its own says how far the lines are indented.
    std::size_t indent = 0;
    const std::size_t lastBreak = text.find_last_of("\r\n");
    const std::size_t lastLine = lastBreak == nowhere ? 0 : lastBreak + 1;
    if (firstLineEnd != nowhere && isBlank(text.substr(lastLine))) {
        indent = text.size() - lastLine;
        text = text.substr(0, lastLine);
        text.remove_suffix(text.ends_with("\r\n") ? 2 : text.empty() ? 0 : 1);
    }
    std::vector<std::string_view> lines;
    for (;;) {
        const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
        lines.push_back(withoutIndent(text.substr(0, end), indent));
        if (end == text.size()) {
            return lines;
        }
        text.remove_prefix(end + lineBreakAt(text, end));
    }
}

}  // namespace quorvane
