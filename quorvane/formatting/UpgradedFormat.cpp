#include "quorvane/formatting/UpgradedFormat.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <utility>

#include "quorvane/base/text/numberText.h"
#include "quorvane/base/values/units.h"
#include "quorvane/rtf/RtfControl.h"
#include "quorvane/rtfgroups/CRtfGrpColorTable.h"
#include "quorvane/rtfgroups/CRtfGrpFontTable.h"
#include "quorvane/stylesheet/StyleValue.h"

namespace quorvane {

namespace {

constexpr std::string_view noColor = "none";

const StyleProperty& property(std::string_view word) {
    return *findStyleProperty(word);
}

std::string points(double twips) {
    return twips == 0 ? "0" : numberText(twips / pointUnit.twips) + "pt";
}

std::string colorText(std::int32_t number) {
    return number == 0 ? std::string(noColor) : CRtfGrpColorTable::colorName(number);
}

std::string languageText(std::int32_t number) {
    const auto languages = styleLanguages();
    const auto found =
        std::find_if(languages.begin(), languages.end(),
                     [number](const StyleLanguage& language) { return language.number == number; });
    return found == languages.end() ? std::string() : std::string(found->tag);
}

/// The value of an item for the number of its word; empty if there is none.
std::string valueOf(StyleValueType type, std::int32_t number) {
    switch (type) {
        case StyleValueType::Font:
            return std::string(CRtfGrpFontTable::fontName(number));
        case StyleValueType::FontSize:
            return points(number * pointUnit.twips / 2);
        case StyleValueType::Length:
            return points(number);
        case StyleValueType::Color:
            return colorText(number);
        case StyleValueType::Language:
            return languageText(number);
        default:
            return {};
    }
}

/// Reads the words of one format.
class FormatReader {
public:
    FormatReader(std::string_view words, StyleKind kind) : words_(words), kind_(kind) {}

    UpgradedFormat read() && {
        for (std::size_t at = 0; at < words_.size();) {
            if (words_[at] == '\r' || words_[at] == '\n') {
                ++at;
                continue;
            }
            RtfControl control;
            if (words_[at] == '\\') {
                readRtfControl(words_, at, control);
            }
            written_.push_back({words_.substr(at, control.shownLength), control});
            at += control.length;
            if (!readStyleValue(property("rtf"), written_.back().text)) {
                return {.error = refusal(written_.back().text)};
            }
        }
        while (next_ < written_.size()) {
            takeNext();
        }
        return {.items = rawRuns_ > 1 ? allRaw() : std::move(items_)};
    }

private:
    struct Word {
        std::string_view text;
        RtfControl control;
        bool is(std::string_view word) const { return control.word == word; }
        std::int32_t number() const { return control.number.value_or(0); }
    };

    static std::string refusal(std::string_view text) {
        return "\"" + std::string(text) + "\" cannot stand in a style; " +
               (text.starts_with('\\') ? "write control words that format text"
                                       : "it would show in every text of the style");
    }

    void takeNext() {
        if (takeChoice() || takePair() || takeTabStops() || takeNumbered()) {
            isInRaw_ = false;
            return;
        }
        const auto raw = std::find_if(items_.begin(), items_.end(), [](const UpgradedItem& item) {
            return item.property->type == StyleValueType::ControlWords;
        });
        const std::string before = raw == items_.end() ? std::string() : raw->value;
        setItem(items_, {&property("rtf"), before + std::string(word().text)});
        rawRuns_ += std::exchange(isInRaw_, true) ? 0 : 1;
        ++next_;
    }

    const Word& word(std::size_t ahead = 0) const { return written_[next_ + ahead]; }
    bool hasTwo() const { return next_ + 1 < written_.size(); }

    /// Takes so many words as an item, if its value means them.
    bool take(const StyleProperty& taken, const std::string& value, std::size_t count) {
        if (!taken.isFor(kind_) || !readStyleValue(taken, value)) {
            return false;
        }
        const bool isSaidByWord = value == "yes";
        setItem(items_, {&taken, isSaidByWord ? std::string() : value});
        next_ += count;
        return true;
    }

    bool takeChoice() {
        for (const StyleProperty& candidate : styleProperties()) {
            for (const StyleChoice& choice : candidate.choices) {
                if (choice.rtf == word().text) {
                    return take(candidate, std::string(choice.word), 1);
                }
            }
        }
        return false;
    }

    bool takeNumbered() {
        if (!word().control.number) {
            return false;
        }
        for (const StyleProperty& candidate : styleProperties()) {
            if (!candidate.rtf.empty() && word().is(candidate.rtf.substr(1))) {
                return take(candidate, valueOf(candidate.type, word().number()), 1);
            }
        }
        return word().is("cbpat") && kind_ == StyleKind::Paragraph && word().number() > 0 &&
               take(property("background"), colorText(word().number()), 1);
    }

    /// Words that mean something together.
    bool takePair() {
        if (!hasTwo()) {
            return false;
        }
        if (word().is("sl") && word(1).is("slmult")) {
            return takeLineHeight(word().number(), word(1).number());
        }
        return word().text == "\\chshdng0" && word(1).is("chcbpat") &&
               kind_ == StyleKind::Character && word(1).number() > 0 &&
               take(property("background"), colorText(word(1).number()), 2);
    }

    bool takeLineHeight(std::int32_t height, std::int32_t isMultiple) {
        constexpr double partsOfLine = 240;
        if (height > 0 && isMultiple == 1) {
            return take(property("line-height"), numberText(height / partsOfLine), 2);
        }
        return height < 0 && isMultiple == 0 && take(property("line-height"), points(-height), 2);
    }

    bool takeTabStops() {
        constexpr std::pair<std::string_view, std::string_view> kinds[] = {
            {"\\tqc", " center"}, {"\\tqr", " right"}, {"\\tqdec", " decimal"},
            {"\\tldot", " dots"}, {"\\tlul", " line"},
        };
        std::string stops;
        std::string kind;
        std::size_t taken = 0;
        for (std::size_t ahead = 0; next_ + ahead < written_.size(); ++ahead) {
            const auto* const known =
                std::find_if(std::begin(kinds), std::end(kinds),
                             [&](const auto& each) { return each.first == word(ahead).text; });
            if (known != std::end(kinds)) {
                kind += known->second;
            } else if (word(ahead).is("tx") && word(ahead).number() >= 0) {
                stops += (stops.empty() ? "" : ", ") + points(word(ahead).number()) +
                         std::exchange(kind, {});
                taken = ahead + 1;
            } else {
                break;
            }
        }
        const bool isFirst = std::none_of(items_.begin(), items_.end(), [](const auto& item) {
            return item.property->type == StyleValueType::TabStops;
        });
        return taken > 0 && isFirst && take(property("tab-stops"), stops, taken);
    }

    UpgradedItems allRaw() const {
        std::string raw;
        for (const Word& each : written_) {
            raw += each.text;
        }
        return {{&property("rtf"), raw}};
    }

    std::string_view words_;
    StyleKind kind_;
    std::vector<Word> written_;
    std::size_t next_ = 0;
    UpgradedItems items_;
    int rawRuns_ = 0;
    bool isInRaw_ = false;
};

/// The value of an item that sets what a text without the item has; empty if there is none.
std::string neutralValue(const StyleProperty& property) {
    switch (property.type) {
        case StyleValueType::Truth:
            return "no";
        case StyleValueType::Length:
            return "0";
        case StyleValueType::Choice:
            return property.choices.front().word == "yes" ? "no" : "left";
        case StyleValueType::Color:
            return property.word == "color" ? std::string(noColor) : std::string();
        default:
            return {};
    }
}

}  // namespace

UpgradedFormat upgradedFormat(std::string_view words, StyleKind kind) {
    return FormatReader(words, kind).read();
}

void setItem(UpgradedItems& items, const UpgradedItem& item) {
    std::erase_if(items, [&](const UpgradedItem& other) {
        return other.property->sharesGroupWith(*item.property);
    });
    items.push_back(item);
}

InheritedItems inheritItems(const UpgradedItems& base, const UpgradedItems& own) {
    // Raw words could set what is inherited, or unset.
    const bool isRaw = std::any_of(own.begin(), own.end(), [](const UpgradedItem& item) {
        return item.property->type == StyleValueType::ControlWords;
    });
    InheritedItems inherited{own, {}, {}, !isRaw};
    for (const UpgradedItem& item : base) {
        const bool isSet = std::any_of(own.begin(), own.end(), [&](const UpgradedItem& other) {
            return other.property->sharesGroupWith(*item.property);
        });
        if (isSet) {
            continue;
        }
        const std::string neutral = neutralValue(*item.property);
        inherited.canInherit = inherited.canInherit && !neutral.empty();
        inherited.all.push_back({item.property, neutral});
        if (item.value != neutral) {
            inherited.unset.push_back(item.property->word);
        }
    }
    std::copy_if(inherited.all.begin(), inherited.all.end(), std::back_inserter(inherited.written),
                 [&](const UpgradedItem& item) {
                     return std::find(base.begin(), base.end(), item) == base.end();
                 });
    return inherited;
}

}  // namespace quorvane
