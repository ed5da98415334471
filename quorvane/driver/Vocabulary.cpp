#include "quorvane/driver/Vocabulary.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <span>
#include <utility>

#include "quorvane/base/text/textCase.h"

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

using enum DescriptionKey;

struct KnownKey {
    std::string_view name;
    DescriptionKey key;
};

constexpr KnownKey docKeys[] = {
    {"paper-height", PaperHeight},
    {"paper-width", PaperWidth},
    {"page-number-start", PageNumberStart},
    {"left-margin", LeftMargin},
    {"right-margin", RightMargin},
    {"bottom-margin", BottomMargin},
    {"top-margin", TopMargin},
};

constexpr KnownKey rowKeys[] = {
    {"row-backcolor", RowBackColor},        {"row-top-border", RowTopBorder},
    {"row-bottom-border", RowBottomBorder}, {"row-left-border", RowLeftBorder},
    {"row-right-border", RowRightBorder},   {"row-key", RowKey},
};

constexpr KnownKey cellKeys[] = {
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

constexpr KnownKey paraKeys[] = {
    {"para-text", ParaText},
    {"para-style", ParaStyle},
    {"para-key", ParaKey},
    {"para-alignment", ParaAlignment},
    {"para-marked-field", ParaMarkedField},
};

constexpr KeySet setOfAll(std::initializer_list<DescriptionKey> keys) {
    KeySet set = 0;
    for (const DescriptionKey key : keys) {
        set |= setOf(key);
    }
    return set;
}

template <std::size_t count>
constexpr KeySet setOfAll(const KnownKey (&keys)[count]) {
    KeySet set = 0;
    for (const KnownKey& known : keys) {
        set |= setOf(known.key);
    }
    return set;
}

constexpr KeySet colorKeys = setOfAll({RowBackColor, CellBackColor});

constexpr KeySet borderKeys =
    setOfAll({RowTopBorder, RowBottomBorder, RowLeftBorder, RowRightBorder, CellTopBorder,
              CellBottomBorder, CellLeftBorder, CellRightBorder});

constexpr KeySet textOrNumberKeys = colorKeys | borderKeys |
                                    setOfAll({ParaText, ParaStyle, ParaAlignment, ParaMarkedField,
                                              CellAlignment, CellStyle, CellMarkedField});

/// A hash table of all keys, in their long and their short forms, that is made before the program
/// runs.
class KeyTable {
public:
    constexpr KeyTable() {
        addAll(docKeys);
        addAll(rowKeys);
        addAll(cellKeys);
        addAll(paraKeys);
    }

    /// What a word stands for; null when it is no key.
    constexpr const LeafKey* find(std::string_view word) const {
        std::size_t slot = firstSlot(word);
        while (!slots_[slot].word.empty() && slots_[slot].word != word) {
            slot = next(slot);
        }
        return slots_[slot].word.empty() ? nullptr : &slots_[slot].key;
    }

private:
    struct Slot {
        std::string_view word;
        LeafKey key;
    };

    // A power of two, several times as many as there are words.
    static constexpr std::size_t slotCount = 256;

    static constexpr std::size_t firstSlot(std::string_view word) {
        if (word.empty()) {
            return 0;
        }
        const auto code = [word](std::size_t position) {
            return static_cast<std::size_t>(static_cast<unsigned char>(word[position]));
        };
        return (code(0) * 7 + code(word.size() / 2) * 31 + code(word.size() - 1) * 3 +
                word.size() * 17) %
               slotCount;
    }
    static constexpr std::size_t next(std::size_t slot) { return (slot + 1) % slotCount; }

    constexpr void addAll(std::span<const KnownKey> keys) {
        for (const KnownKey& known : keys) {
            const LeafKey key{known.name, known.key};
            add(known.name, key);
            for (const auto& [shortForm, longForm] : longForms) {
                if (longForm == known.name) {
                    add(shortForm, key);
                }
            }
        }
    }

    constexpr void add(std::string_view word, const LeafKey& key) {
        std::size_t slot = firstSlot(word);
        while (!slots_[slot].word.empty()) {
            slot = next(slot);
        }
        slots_[slot] = {word, key};
    }

    std::array<Slot, slotCount> slots_{};
};

constexpr KeyTable keyTable;

DescriptionKey keyNamed(std::string_view name) {
    const LeafKey* key = keyTable.find(name);
    return key && key->name == name ? key->known : DescriptionKey::Unknown;
}

bool isAmong(KeySet keys, DescriptionKey key) {
    return (keys & setOf(key)) != 0;
}

/// Up to four characters as one number; letters count as small ones, which no other character
/// becomes.
constexpr std::uint32_t inOneNumber(std::string_view name) {
    constexpr std::uint32_t smallLetter = 0x20;
    std::uint32_t number = 0;
    for (const char character : name) {
        number = number << 8 | static_cast<unsigned char>(character) | smallLetter;
    }
    return number;
}

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

template <class Pairs>
std::vector<std::string_view> namesOf(const Pairs& pairs) {
    std::vector<std::string_view> names;
    std::transform(std::begin(pairs), std::end(pairs), std::back_inserter(names),
                   [](const auto& pair) { return pair.first; });
    return names;
}

template <std::size_t count>
std::vector<std::string_view> namesOf(const KnownKey (&keys)[count]) {
    std::vector<std::string_view> names;
    std::transform(std::begin(keys), std::end(keys), std::back_inserter(names),
                   [](const KnownKey& known) { return known.name; });
    return names;
}

template <class Enumeration, class Pairs>
std::optional<Enumeration> valueNamed(const Pairs& pairs, std::string_view name) {
    const std::string word = lowerCase(name);
    for (const auto& [known, value] : pairs) {
        if (known == word) {
            return static_cast<Enumeration>(value);
        }
    }
    return std::nullopt;
}

template <class Enumeration, class Pairs>
std::optional<Enumeration> valueNamed(const Pairs& pairs, const Value& name) {
    return name.isText() ? valueNamed<Enumeration>(pairs, std::string_view(name.text()))
                         : std::nullopt;
}

template <class Enumeration, class Pairs>
std::optional<Enumeration> valueNamed(const Pairs& pairs, const Leaf& leaf) {
    return leaf.kind == LeafKind::Text ? valueNamed<Enumeration>(pairs, leaf.text) : std::nullopt;
}

bool isWholeFrom(std::int32_t low, double number, std::int32_t high) {
    return number >= low && number <= high && number == std::floor(number);
}

}  // namespace

std::string Vocabulary::expand(std::string_view word) const {
    return std::string(longForm(word));
}

LeafKey Vocabulary::leafKey(std::string_view word) const {
    const LeafKey* known = keyTable.find(word);
    return known ? *known : LeafKey{longForm(word)};
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
    switch (inOneNumber(name)) {
        case inOneNumber("row"):
        case inOneNumber("r"):
            return NodeKind::Row;
        case inOneNumber("cell"):
        case inOneNumber("c"):
            return NodeKind::Cell;
        case inOneNumber("para"):
        case inOneNumber("p"):
            return NodeKind::Para;
        case inOneNumber("doc"):
            return NodeKind::Doc;
        default:
            return NodeKind::None;
    }
}

bool Vocabulary::isKeyOf(NodeKind kind, std::string_view key) const {
    return isAmong(keySetOf(kind), keyNamed(key));
}

KeySet Vocabulary::keySetOf(NodeKind kind) const {
    switch (kind) {
        case NodeKind::Doc:
            return setOfAll(docKeys);
        case NodeKind::Row:
            return setOfAll(rowKeys);
        case NodeKind::Cell:
            return setOfAll(cellKeys);
        case NodeKind::Para:
            return setOfAll(paraKeys);
        case NodeKind::None:
            break;
    }
    return 0;
}

bool Vocabulary::isColorKey(std::string_view key) const {
    return isColorKey(keyNamed(key));
}

bool Vocabulary::isColorKey(DescriptionKey key) const {
    return isAmong(colorKeys, key);
}

bool Vocabulary::isBorderKey(std::string_view key) const {
    return isBorderKey(keyNamed(key));
}

bool Vocabulary::isBorderKey(DescriptionKey key) const {
    return isAmong(borderKeys, key);
}

bool Vocabulary::isTextOrNumberKey(std::string_view key) const {
    return isTextOrNumberKey(keyNamed(key));
}

bool Vocabulary::isTextOrNumberKey(DescriptionKey key) const {
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

std::optional<tColorIndex> Vocabulary::colorNamed(const Leaf& leaf) const {
    return valueNamed<tColorIndex>(colors, leaf);
}

std::optional<tBorderWidth> Vocabulary::borderNamed(const Leaf& leaf) const {
    return valueNamed<tBorderWidth>(borders, leaf);
}

std::optional<tCellAlign> Vocabulary::alignmentNamed(const Leaf& leaf) const {
    return valueNamed<tCellAlign>(alignments, leaf);
}

bool Vocabulary::isColorNumber(double number) {
    return isWholeFrom(eNoColor, number, eRedBrick);
}

bool Vocabulary::isBorderNumber(double number) {
    constexpr std::int32_t widths[] = {eNone, eHair, eThin, eNormal, eThick};
    return std::find(std::begin(widths), std::end(widths), number) != std::end(widths);
}

bool Vocabulary::isAlignmentNumber(double number) {
    return isWholeFrom(eNoDefault, number, eJustified);
}

std::vector<std::string_view> Vocabulary::keysOf(NodeKind kind) {
    switch (kind) {
        case NodeKind::Row:
            return namesOf(rowKeys);
        case NodeKind::Cell:
            return namesOf(cellKeys);
        case NodeKind::Para:
            return namesOf(paraKeys);
        case NodeKind::Doc:
            return namesOf(docKeys);
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
