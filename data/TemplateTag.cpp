#include "data/TemplateTag.h"

#include <algorithm>
#include <cstddef>

#include "quorvane/base/text/trimming.h"

namespace quorvane::data {

namespace {

constexpr std::size_t nowhere = std::string_view::npos;
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
    return written.empty() ? "A name is missing in this tag"
           : written.front() == '@'
               ? std::string(written) + " is not known; write @index, @first or @last"
               : "\"" + std::string(written) +
                     "\" is not the name of a value; write names with a dot between them";
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
    for (std::string_view rest = written;;) {
        const std::size_t end = std::min(rest.find('.'), rest.size());
        const std::string_view name = trimmed(rest.substr(0, end));
        if (name.empty() || name.front() == '@' || name.find_first_of("{}") != nowhere) {
            error = wrongName(written);
            return path;
        }
        path.names.emplace_back(name);
        if (end == rest.size()) {
            return path;
        }
        rest.remove_prefix(end + 1);
    }
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

TagQuery tagQuery(std::string_view content, std::string& error) {
    error.clear();
    const std::size_t bar = std::min(content.find('|'), content.size());
    TagQuery query;
    query.written = trimmed(content.substr(0, bar));
    query.path = tagPath(query.written, error);
    if (error.empty() && bar < content.size()) {
        query.filters = filtersIn(content.substr(bar + 1), error);
    }
    return query;
}

}  // namespace quorvane::data
