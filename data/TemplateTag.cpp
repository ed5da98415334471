#include "data/TemplateTag.h"

#include <algorithm>
#include <cstddef>

#include "quorvane/base/text/nowhere.h"
#include "quorvane/base/text/trimming.h"

namespace quorvane::data {

namespace {

constexpr std::string_view opening = "{{";
constexpr std::string_view closing = "}}";

struct TagSign {
    char sign;
    TagKind kind;
};

constexpr TagSign signs[] = {
    {'#', TagKind::Section}, {'^', TagKind::Inverted}, {'/', TagKind::Close},
    {'>', TagKind::Partial}, {'!', TagKind::Comment},  {'&', TagKind::Raw},
};

std::string_view trimmed(std::string_view text) {
    return trimCharacters(text, " \t");
}

/// The tag that begins with the text.
TemplateTag tagAtBeginning(std::string_view text) {
    const bool isTriple = text.starts_with("{{{");
    const std::size_t begin = isTriple ? opening.size() + 1 : opening.size();
    const std::size_t end = text.find(isTriple ? "}}}" : closing, begin);
    if (end == nowhere) {
        return {.whole = text, .isEnded = false};
    }
    TemplateTag tag{.kind = isTriple ? TagKind::Raw : TagKind::Value,
                    .whole = text.substr(0, end + begin),
                    .content = trimmed(text.substr(begin, end - begin))};
    for (const auto& [sign, kind] : signs) {
        if (!isTriple && tag.content.starts_with(sign)) {
            tag.kind = kind;
            tag.content = trimmed(tag.content.substr(1));
            break;
        }
    }
    return tag;
}

TagPath::Kind kindNamed(std::string_view name) {
    return name == "."        ? TagPath::Kind::This
           : name == "@index" ? TagPath::Kind::Index
           : name == "@first" ? TagPath::Kind::First
           : name == "@last"  ? TagPath::Kind::Last
                              : TagPath::Kind::Names;
}

std::string wrongName(std::string_view written) {
    if (written.empty()) {
        return "A name is missing in this tag";
    }
    if (written.front() == '@') {
        return std::string(written) + " is not known; write @index, @first or @last";
    }
    const std::string example(written.find_first_of("[]") == nowhere ? written : "Nr.");
    return "\"" + std::string(written) +
           "\" is not the name of a value; write names with a dot between them, and a name that "
           "has a dot itself in brackets: [" +
           example + "]";
}

/// Takes a name off the beginning of a path, and the dot after it; empty where there is none.
std::string_view takeName(std::string_view& path, bool& isLast) {
    const bool isBracketed = path.starts_with('[');
    const std::size_t bracket = isBracketed ? path.find(']') : 0;
    if (bracket == nowhere) {
        return {};
    }
    const std::size_t end = std::min(path.find('.', bracket), path.size());
    const std::string_view written = trimmed(path.substr(0, end));
    isLast = end == path.size();
    path.remove_prefix(isLast ? end : end + 1);
    if (isBracketed) {
        return written.size() == bracket + 1 ? written.substr(1, bracket - 1) : std::string_view();
    }
    const bool isName =
        !written.empty() && written.front() != '@' && written.find_first_of("{}") == nowhere;
    return isName ? written : std::string_view();
}

/// Where the filters of a tag begin: the first bar that is not in brackets.
std::size_t endOfPath(std::string_view content) {
    bool isBracketed = false;
    for (std::size_t at = 0; at < content.size(); ++at) {
        if (content[at] == '|' && !isBracketed) {
            return at;
        }
        isBracketed = content[at] == '[' || (isBracketed && content[at] != ']');
    }
    return std::min(content.find('|'), content.size());
}

TagPath tagPath(std::string_view written, std::string& error) {
    constexpr std::string_view out = "../";
    TagPath path;
    for (; written.starts_with(out); ++path.outward) {
        written.remove_prefix(out.size());
    }
    path.kind = kindNamed(written);
    if (path.kind != TagPath::Kind::Names) {
        return path;
    }
    bool isLast = false;
    for (std::string_view rest = written; !isLast;) {
        rest.remove_prefix(std::min(rest.find_first_not_of(" \t"), rest.size()));
        const std::string_view name = takeName(rest, isLast);
        if (name.empty()) {
            error = wrongName(written);
            return path;
        }
        path.names.emplace_back(name);
    }
    return path;
}

}  // namespace

std::vector<TemplateTag> tagsIn(std::string_view line) {
    std::vector<TemplateTag> tags;
    for (std::size_t at = line.find(opening); at != nowhere;) {
        tags.push_back(tagAtBeginning(line.substr(at)));
        at = line.find(opening, at + tags.back().whole.size());
    }
    return tags;
}

std::string writtenName(std::string_view name) {
    const bool isPlain = name.find_first_of(".|[{}") == nowhere && trimmed(name) == name &&
                         !name.empty() && std::string_view("#^/>!&@").find(name.front()) == nowhere;
    return isPlain ? std::string(name) : "[" + std::string(name) + "]";
}

TagQuery tagQuery(std::string_view content, std::string& error) {
    error.clear();
    const std::size_t bar = endOfPath(content);
    TagQuery query;
    query.written = trimmed(content.substr(0, bar));
    query.path = tagPath(query.written, error);
    if (error.empty() && bar < content.size()) {
        query.filters = filtersIn(content.substr(bar + 1), error);
    }
    return query;
}

}  // namespace quorvane::data
