#include "quorvane/driver/Vocabulary.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <utility>

#include "quorvane/support/textCase.h"

namespace quorvane {

namespace {

constexpr std::pair<const char*, const char*> longForms[] = {
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

constexpr std::pair<const char*, std::int32_t> colors[] = {
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

constexpr std::pair<const char*, std::int32_t> borders[] = {
    {"none", eNone}, {"hair", eHair}, {"thin", eThin}, {"normal", eNormal}, {"thick", eThick},
};

constexpr std::pair<const char*, std::int32_t> alignments[] = {
    {"left", eLeft},           {"right", eRight},    {"centered", eCentered},
    {"justified", eJustified}, {"none", eNoDefault},
};

constexpr const char* docKeys[] = {
    "paper-height", "paper-width",   "page-number-start", "left-margin",
    "right-margin", "bottom-margin", "top-margin",
};

constexpr const char* rowKeys[] = {
    "row-backcolor",   "row-top-border",   "row-bottom-border",
    "row-left-border", "row-right-border", "row-key",
};

constexpr const char* cellKeys[] = {
    "cell-alignment",   "cell-backcolor",    "cell-top-border", "cell-bottom-border",
    "cell-left-border", "cell-right-border", "cell-key",        "cell-width",
    "cell-style",       "cell-marked-field",
};

constexpr const char* paraKeys[] = {
    "para-text", "para-style", "para-key", "para-alignment", "para-marked-field",
};

constexpr const char* colorKeys[] = {"row-backcolor", "cell-backcolor"};

constexpr const char* borderKeys[] = {
    "row-top-border",  "row-bottom-border",  "row-left-border",  "row-right-border",
    "cell-top-border", "cell-bottom-border", "cell-left-border", "cell-right-border",
};

constexpr const char* textOrNumberKeys[] = {
    "para-text",         "para-style",        "para-alignment",  "row-backcolor",
    "cell-alignment",    "cell-backcolor",    "row-top-border",  "row-bottom-border",
    "row-left-border",   "row-right-border",  "cell-top-border", "cell-bottom-border",
    "cell-left-border",  "cell-right-border", "cell-style",      "para-marked-field",
    "cell-marked-field",
};

template <class Words>
void fill(CSet& set, const Words& words) {
    for (const char* word : words) {
        set.add(word);
    }
}

template <class Pairs>
void fill(CMap& map, const Pairs& pairs) {
    for (const auto& [name, value] : pairs) {
        map.add(name, value);
    }
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

template <class Enumeration>
std::optional<Enumeration> valueNamed(const CMap& names, const Value& name) {
    if (name.isText()) {
        const Value word = lowerCase(name.text());
        if (names.Exists(word)) {
            return static_cast<Enumeration>(static_cast<std::int32_t>(names.Item(word).number()));
        }
    }
    return std::nullopt;
}

}  // namespace

Vocabulary::Vocabulary() {
    fill(longForms_, longForms);
    fill(keys_[static_cast<std::size_t>(NodeKind::Row)], rowKeys);
    fill(keys_[static_cast<std::size_t>(NodeKind::Cell)], cellKeys);
    fill(keys_[static_cast<std::size_t>(NodeKind::Para)], paraKeys);
    fill(keys_[static_cast<std::size_t>(NodeKind::Doc)], docKeys);
    fill(colorKeys_, colorKeys);
    fill(borderKeys_, borderKeys);
    fill(textOrNumberKeys_, textOrNumberKeys);
    fill(colors_, colors);
    fill(borders_, borders);
    fill(alignments_, alignments);
}

std::string Vocabulary::expand(std::string_view word) const {
    const Value key(word);
    return longForms_.Exists(key) ? longForms_.Item(key).text() : std::string(word);
}

std::string_view Vocabulary::shorten(std::string_view word) const {
    const auto* found = std::find_if(std::begin(longForms), std::end(longForms),
                                     [&](const auto& forms) { return forms.second == word; });
    return found == std::end(longForms) ? word : std::string_view(found->first);
}

NodeKind Vocabulary::nodeKind(std::string_view name) const {
    const std::string longName = expand(lowerCase(name));
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
    return keys_.at(static_cast<std::size_t>(kind)).Exists(key);
}

std::optional<tColorIndex> Vocabulary::colorNamed(const Value& name) const {
    return valueNamed<tColorIndex>(colors_, name);
}

std::optional<tBorderWidth> Vocabulary::borderNamed(const Value& name) const {
    return valueNamed<tBorderWidth>(borders_, name);
}

std::optional<tCellAlign> Vocabulary::alignmentNamed(const Value& name) const {
    return valueNamed<tCellAlign>(alignments_, name);
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
