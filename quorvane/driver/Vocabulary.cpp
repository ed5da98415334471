#include "quorvane/driver/Vocabulary.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <utility>

#include "quorvane/support/textCase.h"

namespace quorvane {

namespace {

constexpr std::pair<std::string_view, std::string_view> longForms[] = {
    {"r", "row"},
    {"c", "cell"},
    {"p", "para"},
    {"rb", "row-backcolor"},
    {"rtb", "row-top-border"},
    {"rbb", "row-bottom-border"},
    {"rlb", "row-left-border"},
    {"rrb", "row-right-border"},
    {"cb", "cell-backcolor"},
    {"ctb", "cell-top-border"},
    {"cbb", "cell-bottom-border"},
    {"clb", "cell-left-border"},
    {"crb", "cell-right-border"},
    {"cw", "cell-width"},
    {"ca", "cell-alignment"},
    {"cs", "cell-style"},
    {"pt", "para-text"},
    {"ps", "para-style"},
    {"pa", "para-alignment"},
    {"pmf", "para-marked-field"},
    {"cmf", "cell-marked-field"},
};

constexpr std::pair<std::string_view, std::int32_t> colors[] = {
    {"black", eBlack},
    {"blue", eBlue},
    {"cyan", eCyan},
    {"green", eGreen},
    {"magenta", eMagenta},
    {"red", eRed},
    {"yellow", eYellow},
    {"white", eWhite},
    {"navy-blue", eNavyBlue},
    {"dark-cyan", eDarkCyan},
    {"dark-green", eDarkGreen},
    {"dark-magenta", eDarkMagenta},
    {"dark-red", eDarkRed},
    {"dark-yellow", eDarkYellow},
    {"deep-sky-blue", eDeepSkyBlue},
    {"gray", eGray},
    {"silver", eSilver},
    {"dark-gray", eDarkGray},
    {"brown", eBrown},
    {"olive-green", eOliveGreen},
    {"slate-blue", eSlateBlue},
    {"dark-slate-blue", eDarkSlateBlue},
    {"orange", eOrange},
    {"lime-green", eLimeGreen},
    {"sea-green", eSeaGreen},
    {"aquamarine", eAquamarine},
    {"light-blue", eLightBlue},
    {"purple", ePurple},
    {"gold", eGold},
    {"chartreuse", eChartreuse},
    {"turquoise", eTurquoise},
    {"sky-blue", eSkyBlue},
    {"peach-puff", ePeachPuff},
    {"bisque", eBisque},
    {"pink", ePink},
    {"light-yellow", eLightYellow},
    {"light-green", eLightGreen},
    {"none", eNoColor},
};

constexpr std::pair<std::string_view, std::int32_t> borders[] = {
    {"none", eNone}, {"hair", eHair}, {"thin", eThin}, {"normal", eNormal}, {"thick", eThick},
};

constexpr std::pair<std::string_view, std::int32_t> alignments[] = {
    {"left", eLeft},           {"right", eRight},    {"centered", eCentered},
    {"justified", eJustified}, {"none", eNoDefault},
};

constexpr std::string_view docKeys[] = {
    "paper-height", "paper-width",   "page-number-start", "left-margin",
    "right-margin", "bottom-margin", "top-margin",
};

constexpr std::string_view rowKeys[] = {
    "row-backcolor",   "row-top-border",   "row-bottom-border",
    "row-left-border", "row-right-border", "row-key",
};

constexpr std::string_view cellKeys[] = {
    "cell-alignment",   "cell-backcolor",    "cell-top-border", "cell-bottom-border",
    "cell-left-border", "cell-right-border", "cell-key",        "cell-width",
    "cell-style",       "cell-marked-field",
};

constexpr std::string_view paraKeys[] = {
    "para-text", "para-style", "para-key", "para-alignment", "para-marked-field",
};

constexpr std::string_view colorKeys[] = {"row-backcolor", "cell-backcolor"};

constexpr std::string_view borderKeys[] = {
    "row-top-border",  "row-bottom-border",  "row-left-border",  "row-right-border",
    "cell-top-border", "cell-bottom-border", "cell-left-border", "cell-right-border",
};

constexpr std::string_view textOrNumberKeys[] = {
    "para-text",         "para-style",        "para-alignment",  "row-backcolor",
    "cell-alignment",    "cell-backcolor",    "row-top-border",  "row-bottom-border",
    "row-left-border",   "row-right-border",  "cell-top-border", "cell-bottom-border",
    "cell-left-border",  "cell-right-border", "cell-style",      "para-marked-field",
    "cell-marked-field",
};

std::string_view longForm(std::string_view word) {
    constexpr std::size_t longestShortForm = 3;
    if (word.size() <= longestShortForm) {
        for (const auto& [shortForm, longForm] : longForms) {
            if (word == shortForm) {
                return longForm;
            }
        }
    }
    return word;
}

template <class Words>
bool isAmong(const Words& words, const Value& word) {
    return word.isText() &&
           std::find(std::begin(words), std::end(words), word.text()) != std::end(words);
}

template <class Pairs>
std::vector<std::string_view> namesOf(const Pairs& pairs) {
    std::vector<std::string_view> names;
    std::transform(std::begin(pairs), std::end(pairs), std::back_inserter(names),
                   [](const auto& pair) { return pair.first; });
    return names;
}

template <class Words>
std::vector<std::string_view> listed(const Words& words) {
    return {std::begin(words), std::end(words)};
}

template <class Enumeration, class Pairs>
std::optional<Enumeration> valueNamed(const Pairs& pairs, const Value& name) {
    if (name.isText()) {
        const std::string word = lowerCase(name.text());
        for (const auto& [known, value] : pairs) {
            if (known == word) {
                return static_cast<Enumeration>(value);
            }
        }
    }
    return std::nullopt;
}

}  // namespace

std::string Vocabulary::expand(std::string_view word) const {
    return std::string(longForm(word));
}

std::string_view Vocabulary::shorten(std::string_view word) const {
    const auto* found = std::find_if(std::begin(longForms), std::end(longForms),
                                     [&](const auto& forms) { return forms.second == word; });
    return found == std::end(longForms) ? word : std::string_view(found->first);
}

NodeKind Vocabulary::nodeKind(std::string_view name) const {
    constexpr std::size_t longestName = 4;
    if (name.size() > longestName) {
        return NodeKind::None;
    }
    const std::string lowered = lowerCase(name);
    const std::string_view longName = longForm(lowered);
    if (longName == "row") {
        return NodeKind::Row;
    }
    if (longName == "cell") {
        return NodeKind::Cell;
    }
    if (longName == "para") {
        return NodeKind::Para;
    }
    return longName == "doc" ? NodeKind::Doc : NodeKind::None;
}

bool Vocabulary::isKeyOf(NodeKind kind, const Value& key) const {
    switch (kind) {
        case NodeKind::Doc:
            return isAmong(docKeys, key);
        case NodeKind::Row:
            return isAmong(rowKeys, key);
        case NodeKind::Cell:
            return isAmong(cellKeys, key);
        case NodeKind::Para:
            return isAmong(paraKeys, key);
        case NodeKind::None:
            break;
    }
    return false;
}

bool Vocabulary::isColorKey(const Value& key) const {
    return isAmong(colorKeys, key);
}

bool Vocabulary::isBorderKey(const Value& key) const {
    return isAmong(borderKeys, key);
}

bool Vocabulary::isTextOrNumberKey(const Value& key) const {
    return isAmong(textOrNumberKeys, key);
}

std::optional<tColorIndex> Vocabulary::colorNamed(const Value& name) const {
    return valueNamed<tColorIndex>(colors, name);
}

std::optional<tBorderWidth> Vocabulary::borderNamed(const Value& name) const {
    return valueNamed<tBorderWidth>(borders, name);
}

std::optional<tCellAlign> Vocabulary::alignmentNamed(const Value& name) const {
    return valueNamed<tCellAlign>(alignments, name);
}

std::vector<std::string_view> Vocabulary::keysOf(NodeKind kind) {
    switch (kind) {
        case NodeKind::Row:
            return listed(rowKeys);
        case NodeKind::Cell:
            return listed(cellKeys);
        case NodeKind::Para:
            return listed(paraKeys);
        case NodeKind::Doc:
            return listed(docKeys);
        case NodeKind::None:
            break;
    }
    return {};
}

std::vector<std::string_view> Vocabulary::colorNames() {
    return namesOf(colors);
}

std::vector<std::string_view> Vocabulary::borderNames() {
    return namesOf(borders);
}

std::vector<std::string_view> Vocabulary::alignmentNames() {
    return namesOf(alignments);
}

}  // namespace quorvane
