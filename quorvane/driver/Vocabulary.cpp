#include "quorvane/driver/Vocabulary.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "quorvane/base/text/textCase.h"

namespace quorvane {

namespace {

constexpr VocabularyWords::NodeWord nodes[] = {
    {"row", NodeKind::Row}, {"r", NodeKind::Row},     {"cell", NodeKind::Cell},
    {"c", NodeKind::Cell},  {"para", NodeKind::Para}, {"p", NodeKind::Para},
    {"doc", NodeKind::Doc},
};

constexpr VocabularyWords::ShortForm shortForms[] = {
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

constexpr VocabularyWords::NamedValue colors[] = {
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

constexpr VocabularyWords::NamedValue borders[] = {
    {"none", eNone}, {"hair", eHair}, {"thin", eThin}, {"normal", eNormal}, {"thick", eThick},
};

constexpr VocabularyWords::NamedValue alignments[] = {
    {"left", eLeft},           {"right", eRight},    {"centered", eCentered},
    {"justified", eJustified}, {"none", eNoDefault},
};

using enum DescriptionKey;

constexpr VocabularyWords::Key docKeys[] = {
    {"paper-height", PaperHeight},
    {"paper-width", PaperWidth},
    {"page-number-start", PageNumberStart},
    {"left-margin", LeftMargin},
    {"right-margin", RightMargin},
    {"bottom-margin", BottomMargin},
    {"top-margin", TopMargin},
};

constexpr VocabularyWords::Key rowKeys[] = {
    {"row-backcolor", RowBackColor},        {"row-top-border", RowTopBorder},
    {"row-bottom-border", RowBottomBorder}, {"row-left-border", RowLeftBorder},
    {"row-right-border", RowRightBorder},   {"row-key", RowKey},
};

constexpr VocabularyWords::Key cellKeys[] = {
    {"cell-alignment", CellAlignment},
    {"cell-backcolor", CellBackColor},
    {"cell-top-border", CellTopBorder},
    {"cell-bottom-border", CellBottomBorder},
    {"cell-left-border", CellLeftBorder},
    {"cell-right-border", CellRightBorder},
    {"cell-key", CellKey},
    {"cell-width", CellWidth},
    {"cell-style", CellStyle},
    {"cell-marked-field", CellMarkedField},
};

constexpr VocabularyWords::Key paraKeys[] = {
    {"para-text", ParaText},
    {"para-style", ParaStyle},
    {"para-key", ParaKey},
    {"para-alignment", ParaAlignment},
    {"para-marked-field", ParaMarkedField},
};

using NodeNumber = VocabularyWords::NodeNumber;

/// A short text as one number; letters count as small ones, which no other character becomes.
NodeNumber inOneNumber(std::string_view name) {
    constexpr NodeNumber smallLetter = 0x20;
    NodeNumber number = 0;
    for (const char character : name) {
        number = number << 8 | static_cast<unsigned char>(character) | smallLetter;
    }
    return number;
}

std::size_t hashOf(std::string_view word) {
    if (word.empty()) {
        return 0;
    }
    const auto code = [word](std::size_t position) {
        return static_cast<std::size_t>(static_cast<unsigned char>(word[position]));
    };
    return code(0) * 7 + code(word.size() / 2) * 31 + code(word.size() - 1) * 3 + word.size() * 17;
}

template <class Enumeration>
std::optional<Enumeration> valueNamed(std::span<const VocabularyWords::NamedValue> list,
                                      std::string_view name) {
    const std::string word = lowerCase(name);
    for (const auto& [known, value] : list) {
        if (known == word) {
            return static_cast<Enumeration>(value);
        }
    }
    return std::nullopt;
}

template <class Enumeration>
std::optional<Enumeration> valueNamed(std::span<const VocabularyWords::NamedValue> list,
                                      const Leaf& leaf) {
    return leaf.kind == LeafKind::Text ? valueNamed<Enumeration>(list, leaf.text) : std::nullopt;
}

bool isWholeFrom(std::int32_t low, double number, std::int32_t high) {
    return number >= low && number <= high && number == std::floor(number);
}

bool isColor(double number) {
    return isWholeFrom(eNoColor, number, eRedBrick);
}

bool isBorder(double number) {
    constexpr std::int32_t widths[] = {eNone, eHair, eThin, eNormal, eThick};
    return std::find(std::begin(widths), std::end(widths), number) != std::end(widths);
}

bool isAlignment(double number) {
    return isWholeFrom(eNoDefault, number, eJustified);
}

/// The named value, or the number of the leaf when it is a value of the enumeration.
template <class Enumeration>
std::optional<Enumeration> namedOrNumbered(std::optional<Enumeration> named, const Leaf& leaf,
                                           bool (*isValue)(double)) {
    return !named && leaf.isNumber() && isValue(leaf.number)
               ? std::optional(static_cast<Enumeration>(static_cast<std::int32_t>(leaf.number)))
               : named;
}

}  // namespace

Vocabulary::Vocabulary(const VocabularyWords& words) : words_(words) {
    std::transform(words.nodes.begin(), words.nodes.end(), std::back_inserter(numberedNodes_),
                   [](const auto& node) {
                       return NumberedNode{inOneNumber(node.name), node.kind};
                   });
    for (const auto& [shortForm, longForm] : words.shortForms) {
        longestShortForm_ = std::max(longestShortForm_, shortForm.size());
    }
    for (const NodeKind kind : nodeKinds) {
        for (const auto& [name, key] : words.keys[indexOf(kind)]) {
            keySets_[indexOf(kind)] |= setOf(key);
            add(name, {name, key});
            if (const std::string_view shortForm = shorten(name); shortForm != name) {
                add(shortForm, {name, key});
            }
        }
    }
}

void Vocabulary::add(std::string_view word, const LeafKey& key) {
    std::size_t slot = hashOf(word) % slotCount;
    while (!slots_[slot].word.empty()) {
        slot = (slot + 1) % slotCount;
    }
    slots_[slot] = {word, key};
}

const LeafKey* Vocabulary::find(std::string_view word) const {
    std::size_t slot = hashOf(word) % slotCount;
    while (!slots_[slot].word.empty() && slots_[slot].word != word) {
        slot = (slot + 1) % slotCount;
    }
    return slots_[slot].word.empty() ? nullptr : &slots_[slot].key;
}

std::string_view Vocabulary::longForm(std::string_view word) const {
    if (word.size() <= longestShortForm_) {
        for (const auto& [shortForm, longForm] : words_.shortForms) {
            if (word == shortForm) {
                return longForm;
            }
        }
    }
    return word;
}

LeafKey Vocabulary::leafKey(std::string_view word) const {
    const LeafKey* known = find(word);
    return known ? *known : LeafKey{longForm(word)};
}

bool Vocabulary::isKey(std::string_view word) const {
    return find(word) != nullptr;
}

std::string_view Vocabulary::shorten(std::string_view word) const {
    const auto found = std::find_if(words_.shortForms.begin(), words_.shortForms.end(),
                                    [&](const auto& forms) { return forms.longForm == word; });
    return found == words_.shortForms.end() ? word : found->shortForm;
}

NodeKind Vocabulary::nodeKind(std::string_view name) const {
    if (name.empty() || name.size() > VocabularyWords::maxNodeName) {
        return NodeKind::None;
    }
    const NodeNumber number = inOneNumber(name);
    for (const auto& [known, kind] : numberedNodes_) {
        if (known == number) {
            return kind;
        }
    }
    return NodeKind::None;
}

bool Vocabulary::isKeyOf(NodeKind kind, std::string_view key) const {
    const LeafKey* known = find(key);
    return known && known->name == key && contains(keySetOf(kind), known->known);
}

std::optional<tColorIndex> Vocabulary::colorNamed(std::string_view name) const {
    return valueNamed<tColorIndex>(words_.colors, name);
}

std::optional<tBorderWidth> Vocabulary::borderNamed(std::string_view name) const {
    return valueNamed<tBorderWidth>(words_.borders, name);
}

std::optional<tCellAlign> Vocabulary::alignmentNamed(std::string_view name) const {
    return valueNamed<tCellAlign>(words_.alignments, name);
}

std::optional<tColorIndex> Vocabulary::colorNamed(const Leaf& leaf) const {
    return valueNamed<tColorIndex>(words_.colors, leaf);
}

std::optional<tBorderWidth> Vocabulary::borderNamed(const Leaf& leaf) const {
    return valueNamed<tBorderWidth>(words_.borders, leaf);
}

std::optional<tCellAlign> Vocabulary::alignmentNamed(const Leaf& leaf) const {
    return valueNamed<tCellAlign>(words_.alignments, leaf);
}

std::optional<tColorIndex> Vocabulary::colorOf(const Leaf& leaf) const {
    return namedOrNumbered(colorNamed(leaf), leaf, isColor);
}

std::optional<tBorderWidth> Vocabulary::borderOf(const Leaf& leaf) const {
    return namedOrNumbered(borderNamed(leaf), leaf, isBorder);
}

std::optional<tCellAlign> Vocabulary::alignmentOf(const Leaf& leaf) const {
    return namedOrNumbered(alignmentNamed(leaf), leaf, isAlignment);
}

std::vector<std::string_view> Vocabulary::keysOf(NodeKind kind) const {
    std::vector<std::string_view> names;
    if (kind != NodeKind::None) {
        const auto keys = words_.keys[indexOf(kind)];
        std::transform(keys.begin(), keys.end(), std::back_inserter(names),
                       [](const auto& known) { return known.name; });
    }
    return names;
}

std::vector<std::string_view> Vocabulary::namesOf(
    std::span<const VocabularyWords::NamedValue> list) {
    std::vector<std::string_view> names;
    std::transform(list.begin(), list.end(), std::back_inserter(names),
                   [](const auto& named) { return named.name; });
    return names;
}

const Vocabulary& originalVocabulary() {
    static const Vocabulary vocabulary({.nodes = nodes,
                                        .shortForms = shortForms,
                                        .keys = {rowKeys, cellKeys, paraKeys, docKeys},
                                        .colors = colors,
                                        .borders = borders,
                                        .alignments = alignments});
    return vocabulary;
}

}  // namespace quorvane
