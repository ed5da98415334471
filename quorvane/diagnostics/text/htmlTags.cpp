#include "quorvane/diagnostics/text/htmlTags.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <utility>

#include "quorvane/base/text/nowhere.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/trimming.h"

namespace quorvane {

namespace {

// Words of this length are repeated in a hint.
constexpr std::size_t longestShown = 30;

/// A tag that changes how its text looks, the control words that do the same, and names under which
/// a stylesheet may have them.
struct FormatTag {
    std::string_view name;
    std::string_view format;
    std::string_view styles[3];
};

constexpr FormatTag formatTags[] = {
    {"b", "\\b", {"strong", "bold", "b"}},
    {"strong", "\\b", {"strong", "bold", "b"}},
    {"i", "\\i", {"emphasis", "italic", "i"}},
    {"em", "\\i", {"emphasis", "italic", "i"}},
    {"u", "\\ul", {"underlined", "underline", "u"}},
    {"ins", "\\ul", {"underlined", "underline", "u"}},
    {"s", "\\strike", {"struck", "strike", "s"}},
    {"del", "\\strike", {"struck", "strike", "s"}},
    {"strike", "\\strike", {"struck", "strike", "s"}},
    {"sub", "\\sub", {"lowered", "sub", "subscript"}},
    {"sup", "\\super", {"raised", "sup", "superscript"}},
};

constexpr std::string_view otherTags[] = {"p",  "div", "span", "font", "small",  "big",  "code",
                                          "h1", "h2",  "h3",   "ul",   "ol",     "li",   "table",
                                          "tr", "td",  "th",   "a",    "center", "mark", "img"};

const FormatTag* formatTagNamed(std::string_view name) {
    const auto* found = std::find_if(std::begin(formatTags), std::end(formatTags),
                                     [&](const FormatTag& tag) { return tag.name == name; });
    return found == std::end(formatTags) ? nullptr : found;
}

bool isOtherTag(std::string_view name) {
    return std::find(std::begin(otherTags), std::end(otherTags), name) != std::end(otherTags);
}

/// The name of the style for the examples, and whether the stylesheet has it.
std::pair<std::string_view, bool> styleFor(const FormatTag& tag, const KnownStyles* styles) {
    for (const std::string_view name : tag.styles) {
        if (styles && styles->find(StyleKind::Character, name) > 0) {
            return {name, true};
        }
    }
    return {tag.styles[0], false};
}

Hint formatHint(const FormatTag& tag, std::string_view words, const KnownStyles* styles) {
    const auto [name, isKnown] = styleFor(tag, styles);
    const std::string shown(words.empty() || words.size() > longestShown ||
                                    words.find_first_of("<>") != nowhere
                                ? "words"
                                : words);
    std::string hint = "write <" + std::string(name) + "=" + shown + ">";
    if (!isKnown) {
        hint += " with { name: " + std::string(name) +
                "; style-def: cs; format: " + std::string(tag.format) + " } in the stylesheet";
    }
    return hint + ", or {" + std::string(tag.format) + " " + shown + "}";
}

Hint hintFor(const std::string& name, std::string_view rest, const KnownStyles* styles) {
    if (name == "br") {
        return {"write \\line for a line break", "\\line "};
    }
    if (const FormatTag* tag = formatTagNamed(name)) {
        const std::size_t end = lowerCase(rest).find("</" + name + ">");
        return formatHint(*tag, end == nowhere ? std::string_view() : rest.substr(0, end), styles);
    }
    return name == "p" || name == "div" || name == "li"
               ? Hint("write each paragraph as a node: (p, (pt=words) and p)")
               : Hint("use styles: <strong=words> for words, (ps=heading) for a paragraph");
}

}  // namespace

std::vector<HtmlTag> htmlTagsIn(std::string_view text, const KnownStyles* styles) {
    std::vector<HtmlTag> tags;
    // Of each tag the first one is reported: to look for its end costs as much as the text is long.
    std::vector<std::string> seen;
    for (std::size_t open = text.find('<'); open != nowhere; open = text.find('<', open + 1)) {
        const std::size_t end = text.find_first_of("<>=", open + 1);
        // A blank after the "<" is that of a comparison.
        if (end == nowhere || text[end] != '>' || text[open + 1] == ' ') {
            continue;
        }
        std::string_view inner = trimWhitespace(text.substr(open + 1, end - open - 1));
        if (inner.ends_with('/')) {
            inner = trimWhitespace(inner.substr(0, inner.size() - 1));
        }
        const std::string name = lowerCase(inner);
        const bool isTag = name == "br" || formatTagNamed(name) || isOtherTag(name);
        if (!isTag || (name != "br" && std::find(seen.begin(), seen.end(), name) != seen.end())) {
            continue;
        }
        seen.push_back(name);
        const std::string_view tag = text.substr(open, end + 1 - open);
        tags.push_back({tag, hintFor(name, text.substr(end + 1), styles)});
    }
    return tags;
}

}  // namespace quorvane
