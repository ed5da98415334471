#include "quorvane/formatting/upgradeStyleSheet.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <utility>

#include "quorvane/base/text/LineReader.h"
#include "quorvane/base/text/extendedMark.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/diagnostics/stylesheet/StyleSheetCheck.h"
#include "quorvane/formatting/OriginalStyle.h"
#include "quorvane/formatting/UpgradedFormat.h"
#include "quorvane/formatting/UpgradedLines.h"
#include "quorvane/formatting/formatStyleSheet.h"
#include "quorvane/formatting/lineEndOf.h"
#include "quorvane/formatting/messageWithHint.h"
#include "quorvane/rtfgroups/CRtfGrpColorTable.h"
#include "quorvane/stylesheet/ExtendedDefinition.h"
#include "quorvane/stylesheet/LineNumbers.h"
#include "quorvane/stylesheet/StyleList.h"
#include "quorvane/stylesheet/stylesheetSyntax.h"

namespace quorvane {

namespace {

std::vector<UpgradeRemark> styleSheetErrors(std::string_view text) {
    std::vector<UpgradeRemark> errors;
    for (const Diagnostic& diagnostic : checkStyleSheet(text, TextEncoding::Utf8)) {
        if (diagnostic.severity == Severity::Error) {
            errors.push_back({static_cast<int>(diagnostic.place.line),
                              messageWithHint(diagnostic) + " (correct this before the upgrade)"});
        }
    }
    if (const std::string_view brace = findLoneBrace(text); errors.empty() && !brace.empty()) {
        errors.push_back({LineNumbers(text).lineOf(brace),
                          "This brace is not one of a pair (correct this before the upgrade)"});
    }
    return errors;
}

/// The first paragraph style, if paragraphs without a style would lose its format; null otherwise.
const OriginalStyle* findStyleInPlaceOfNone(const std::vector<OriginalStyle>& styles) {
    const auto isParagraphStyle = [](const OriginalStyle& style) {
        return style.kind == StyleKind::Paragraph && !style.names.empty();
    };
    const auto first = std::find_if(styles.begin(), styles.end(), isParagraphStyle);
    if (first == styles.end()) {
        return nullptr;
    }
    const bool isKept = std::any_of(first, styles.end(), [&](const OriginalStyle& style) {
        return isParagraphStyle(style) && style.format == first->format &&
               std::any_of(style.names.begin(), style.names.end(),
                           [](std::string_view name) { return lowerCase(name) == normalStyle; });
    });
    return isKept ? nullptr : &*first;
}

/// Upgrades one stylesheet, which has no errors.
class StyleSheetUpgrade {
public:
    explicit StyleSheetUpgrade(std::string_view text)
        : text_(text),
          styles_(readOriginalStyles(text)),
          lineNumbers_(text),
          upgraded_(lineEndOf(text)) {}

    Upgrade run() && {
        findNames();
        readFormats();
        for (std::size_t i = 0; i < styles_.size(); ++i) {
            inherit(i);
        }
        write();
        if (errors_.empty()) {
            findErrorsAfter();
        }
        if (!errors_.empty()) {
            return {.errors = std::move(errors_)};
        }
        noteStyleInPlaceOfNone();
        return {.text = formattedStyleSheet(upgraded_.text()), .notes = std::move(notes_)};
    }

private:
    static constexpr std::size_t none = SIZE_MAX;

    /// What becomes of a style.
    struct Upgraded {
        /// All that the style has, and what it says itself.
        UpgradedItems items;
        UpgradedItems written;
        std::size_t base = none;
        bool isWaiting = false;
        bool isWhole = false;
    };

    void findNames() {
        for (std::size_t i = 0; i < styles_.size(); ++i) {
            for (const std::string_view name : styles_[i].names) {
                positionsOf(styles_[i].kind).emplace(lowerCase(name), i);
            }
        }
        for (const OriginalStyle& style : styles_) {
            for (const std::string& name : {style.basedOn, style.next}) {
                const std::size_t position = find(style.kind, name);
                if (style.kind != StyleKind::Cell && position != none) {
                    referenced_.push_back(position);
                }
            }
        }
    }

    std::map<std::string, std::size_t>& positionsOf(StyleKind kind) {
        return positions_[static_cast<std::size_t>(kind)];
    }

    std::size_t find(StyleKind kind, const std::string& name) {
        const auto found = positionsOf(kind).find(name);
        return found == positionsOf(kind).end() ? none : found->second;
    }

    void readFormats() {
        for (const OriginalStyle& style : styles_) {
            Upgraded& upgraded = upgradedStyles_.emplace_back();
            if (style.kind == StyleKind::Cell) {
                const bool isColor = CRtfGrpColorTable::colorNumber(style.format) > 0;
                upgraded.items = {
                    {findStyleProperty("background"), isColor ? style.format : "none"}};
            } else {
                UpgradedFormat format = upgradedFormat(style.format, style.kind);
                if (!format.error.empty() && !style.names.empty()) {
                    errors_.push_back({lineOf(style), cannotExpress(format.error)});
                }
                upgraded.items = std::move(format.items);
                upgraded.base = style.names.empty() ? none : find(style.kind, style.basedOn);
            }
            upgraded.written = upgraded.items;
        }
    }

    /// Without recursion: a style may be based on another one over any number of steps.
    void inherit(std::size_t position) {
        std::vector<std::size_t> chain;
        for (std::size_t at = position; at != none && !upgradedStyles_[at].isWhole;) {
            Upgraded& style = upgradedStyles_[at];
            if (style.isWaiting) {
                // A circle ends where it began.
                upgradedStyles_[chain.back()].base = none;
                break;
            }
            style.isWaiting = true;
            chain.push_back(at);
            at = style.base;
        }
        for (auto at = chain.rbegin(); at != chain.rend(); ++at) {
            upgradedStyles_[*at].isWhole = true;
            if (upgradedStyles_[*at].base != none) {
                takeFromBase(*at);
            }
        }
    }

    void takeFromBase(std::size_t position) {
        Upgraded& style = upgradedStyles_[position];
        InheritedItems inherited = inheritItems(upgradedStyles_[style.base].items, style.items);
        for (const std::string_view word : inherited.unset) {
            const std::string name(styles_[position].names.front());
            notes_.push_back({lineOf(styles_[position]),
                              name + " does not set " + std::string(word) + ", which " +
                                  std::string(styles_[style.base].names.front()) +
                                  " sets. Some word processors inherited it; now none does"});
        }
        if (inherited.canInherit) {
            style.items = std::move(inherited.all);
            style.written = std::move(inherited.written);
        } else {
            style.base = none;
        }
    }

    void write() {
        upgraded_.add(extendedMark, 1);
        std::size_t end = 0;
        for (std::size_t i = 0; i < styles_.size(); ++i) {
            writeText(end, styles_[i].open);
            if (!styles_[i].names.empty() && !isReserved(i)) {
                upgraded_.add(definitionOf(i), lineOf(styles_[i]));
            }
            end = styles_[i].close + 1;
        }
        writeText(end, text_.size());
    }

    /// Text outside the braces is a comment.
    void writeText(std::size_t begin, std::size_t end) {
        const std::string_view text = text_.substr(begin, end - begin);
        for (LineReader lines(text); !lines.atEnd();) {
            const std::string_view line = trimWhitespace(lines.next());
            const bool isRestOfLine = line.data() == text.data() && begin > 0;
            if (line.empty() && !isRestOfLine) {
                upgraded_.add({}, 1);
            } else if (!line.empty()) {
                upgraded_.add((line.starts_with(';') ? "" : "; ") + std::string(line),
                              lineNumbers_.lineOf(line));
            }
        }
    }

    std::string definitionOf(std::size_t position) {
        const OriginalStyle& style = styles_[position];
        const Upgraded& upgraded = upgradedStyles_[position];
        std::string text = "{ name: ";
        for (const std::string_view name : style.names) {
            text += (name.data() == style.names.front().data() ? "" : ", ") + std::string(name);
        }
        text += "; style-def: " + std::string(extendedKindWord(style.kind));
        if (upgraded.base != none) {
            text += "; based-on: " + std::string(styles_[upgraded.base].names.front());
        }
        const std::size_t next = find(style.kind, style.next);
        if (style.kind == StyleKind::Paragraph && next != none) {
            text += "; next: " + style.next;
        }
        for (const UpgradedItem& item : upgraded.written) {
            text += "; " + item.text();
        }
        return text + " }";
    }

    /// True for a style that is only there because both kinds of styles have the same numbers, as
    /// its name says.
    bool isReserved(std::size_t position) {
        const OriginalStyle& style = styles_[position];
        const std::size_t normal = find(StyleKind::Paragraph, std::string(normalStyle));
        const bool isCalledSo = std::all_of(
            style.names.begin(), style.names.end(),
            [](std::string_view name) { return lowerCase(name).starts_with("reserved"); });
        return isCalledSo && style.kind == StyleKind::Paragraph && normal != none &&
               style.format == styles_[normal].format &&
               paragraphStylesBefore(position) < positionsOf(StyleKind::Character).size() &&
               std::find(referenced_.begin(), referenced_.end(), position) == referenced_.end();
    }

    std::size_t paragraphStylesBefore(std::size_t position) const {
        std::size_t count = 0;
        for (std::size_t i = 0; i < position; ++i) {
            count += styles_[i].kind == StyleKind::Paragraph ? styles_[i].names.size() : 0;
        }
        return count;
    }

    void findErrorsAfter() {
        for (const Diagnostic& diagnostic : checkStyleSheet(upgraded_.text(), TextEncoding::Utf8)) {
            if (diagnostic.severity == Severity::Error) {
                errors_.push_back({upgraded_.originOf(diagnostic.place.line),
                                   cannotExpress(messageWithHint(diagnostic))});
            }
        }
    }

    void noteStyleInPlaceOfNone() {
        if (const OriginalStyle* const lost = findStyleInPlaceOfNone(styles_)) {
            notes_.push_back({lineOf(*lost), "Paragraphs without a style looked like " +
                                                 std::string(lost->names.front()) +
                                                 ", the first style. Now they look like normal, so "
                                                 "upgrade their descriptions with the stylesheet"});
        }
    }

    int lineOf(const OriginalStyle& style) {
        return lineNumbers_.lineOf(text_.substr(style.open, 1));
    }

    std::string_view text_;
    std::vector<OriginalStyle> styles_;
    std::vector<Upgraded> upgradedStyles_;
    LineNumbers lineNumbers_;
    UpgradedLines upgraded_;
    // By kind and name in lower case.
    std::array<std::map<std::string, std::size_t>, 3> positions_;
    // The styles that others refer to.
    std::vector<std::size_t> referenced_;
    std::vector<UpgradeRemark> errors_;
    std::vector<UpgradeRemark> notes_;
};

}  // namespace

Upgrade upgradedStyleSheet(std::string_view text) {
    if (isMarkedExtended(text)) {
        return {.text = std::string(text)};
    }
    if (std::vector<UpgradeRemark> errors = styleSheetErrors(text); !errors.empty()) {
        return {.errors = std::move(errors)};
    }
    return StyleSheetUpgrade(text).run();
}

std::string styleInPlaceOfNone(std::string_view text) {
    if (isMarkedExtended(text)) {
        return {};
    }
    try {
        const std::vector<OriginalStyle> styles = readOriginalStyles(text);
        const OriginalStyle* const style = findStyleInPlaceOfNone(styles);
        return style ? std::string(style->names.front()) : std::string();
    } catch (const RtfError&) {
        return {};
    }
}

}  // namespace quorvane
