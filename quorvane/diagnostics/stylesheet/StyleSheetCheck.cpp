#include "quorvane/diagnostics/stylesheet/StyleSheetCheck.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/diagnostics/StyleSheetOutline.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/SourceText.h"
#include "quorvane/diagnostics/engine/ignoreComments.h"
#include "quorvane/diagnostics/engine/nearestWord.h"
#include "quorvane/diagnostics/fileEncoding.h"
#include "quorvane/diagnostics/languageOf.h"
#include "quorvane/diagnostics/text/mojibake.h"
#include "quorvane/diagnostics/text/rtfText.h"
#include "quorvane/rtfgroups/CRtfGrpColorTable.h"
#include "quorvane/stylesheet/stylesheetParser.h"

namespace quorvane {

namespace {

/// The hint for a value that another item follows without a ";", such as "n, style-def: s"; empty
/// for any other value.
std::string separatorHint(std::string_view value) {
    // Longer than any keyword with blanks around it: the search costs no more in a long value.
    constexpr std::size_t longestWord = 40;
    for (std::size_t colon = value.find(':'); colon != std::string_view::npos;
         colon = value.find(':', colon + 1)) {
        const std::string_view before = trimWhitespace(
            value.substr(colon - std::min(colon, longestWord), std::min(colon, longestWord)));
        const std::size_t last = before.find_last_of(" \t\r\n,");
        const std::string word =
            lowerCase(before.substr(last == std::string_view::npos ? 0 : last + 1));
        if (last != std::string_view::npos && findStyleKeyword(word)) {
            return "write a ; before " + word;
        }
    }
    return {};
}

std::vector<std::string_view> viewsOf(const std::vector<std::string>& texts) {
    return {texts.begin(), texts.end()};
}

const std::vector<std::string>& cellColorNames() {
    static const std::vector<std::string> names = [] {
        std::vector<std::string> list{"none"};
        for (int number = 1; number <= CRtfGrpColorTable::colorCount; ++number) {
            list.push_back(CRtfGrpColorTable::colorName(number));
        }
        return list;
    }();
    return names;
}

/// The kind that the word names or is most likely meant to name.
StyleKind likelyKind(const std::string& word) {
    return word.starts_with("p")    ? StyleKind::Paragraph
           : word.starts_with("ch") ? StyleKind::Character
                                    : styleKindNamed(word);
}

StyleKind kindOf(const OutlinedDefinition& definition) {
    for (std::size_t i = 1; i < definition.items.size(); ++i) {
        if (definition.items[i].keyword == "style-def") {
            return likelyKind(lowerCase(definition.items[i].value));
        }
    }
    return StyleKind::Cell;
}

class StyleSheetChecks {
public:
    StyleSheetChecks(const SourceText& source, DiagnosticEngine& engine)
        : source_(source),
          engine_(engine),
          outline_(readStyleSheetOutline(source.text())),
          styles_(source.text()) {}

    void run() {
        const std::string_view opening = openingOfDescription(source_.text());
        if (!opening.empty()) {
            report(DiagnosticId::DescriptionAsStyleSheet, opening, {},
                   "did you swap the names of the two files?");
        } else {
            findKeywordWithoutBraces();
        }
        findBraces();
        for (const OutlinedDefinition& definition : outline_.definitions) {
            findErrors(definition);
            findWarnings(definition);
        }
        for (const OutlinedDefinition& definition : outline_.definitions) {
            findReferences(definition);
        }
    }

private:
    void report(DiagnosticId id, std::string_view part,
                std::initializer_list<std::string_view> arguments = {}, Hint hint = {}) {
        engine_.report(id, source_.placeOf(part), arguments, std::move(hint));
    }

    /// Text outside braces has no meaning: a text without braces defines no styles.
    void findKeywordWithoutBraces() {
        const std::string_view text = source_.text();
        if (trimWhitespace(afterByteOrderMark(text)).empty()) {
            report(DiagnosticId::NoStyles, text.substr(0, 0), {},
                   "the file is empty; write definitions such as { name: ...; style-def: ... }");
            return;
        }
        if (text.find_first_of("{}") != std::string_view::npos) {
            return;
        }
        for (const SourceText::Line& bounds : source_.lines()) {
            const StyleItem item =
                readStyleItem(text.substr(bounds.start, bounds.end - bounds.start));
            const bool isKeyword = item.keyword == nameKeyword || item.known;
            if (isKeyword && item.hasColon()) {
                report(DiagnosticId::NoStyles, item.writtenKeyword, {},
                       "enclose the definition in braces: { name: ...; style-def: ... }");
                return;
            }
        }
    }

    void findBraces() {
        const auto [opened, closed] = countBraces(source_.text());
        if (opened != closed) {
            report(opened < closed ? DiagnosticId::BracesUnderflow : DiagnosticId::BracesOverflow,
                   outline_.loneBrace, {},
                   outline_.loneBrace == "{" ? "its } is missing" : "its { is missing");
        }
    }

    void findErrors(const OutlinedDefinition& definition) {
        if (definition.items.empty() && !outline_.loneBrace.empty()) {
            // The unmatched brace is reported already.
            return;
        }
        if (definition.items.empty()) {
            report(DiagnosticId::BadKeyword, definition.brace, {""},
                   "a definition begins with name:");
            return;
        }
        const StyleItem& first = definition.items.front();
        if (faultOfFirst(first) != StyleItemFault::None) {
            report(DiagnosticId::BadKeyword, first.writtenKeyword, {first.keyword},
                   firstKeywordHint(first));
        }
        for (std::size_t i = 1; i < definition.items.size(); ++i) {
            findItemError(definition.items[i]);
        }
    }

    static Hint firstKeywordHint(const StyleItem& first) {
        constexpr std::string_view name[] = {nameKeyword};
        if (first.keyword.starts_with(nameKeyword) && first.value.empty()) {
            return "write a : after the keyword name";
        }
        Hint hint("a definition begins with name:");
        if (!certainWord(first.keyword, name).empty()) {
            hint.replacement = "name";
        }
        return hint;
    }

    void findItemError(const StyleItem& item) {
        const std::string value = lowerCase(item.value);
        switch (faultOf(item, value)) {
            case StyleItemFault::Keyword:
                report(DiagnosticId::BadKeyword, item.writtenKeyword, {item.keyword},
                       keywordHint(item.keyword));
                break;
            case StyleItemFault::Value:
                report(item.keyword == "style-def" ? DiagnosticId::BadStyleKind
                                                   : DiagnosticId::BadAdditive,
                       item.value, {value}, valueHint(item));
                break;
            case StyleItemFault::None:
                break;
        }
    }

    static Hint valueHint(const StyleItem& item) {
        if (std::string separator = separatorHint(item.value); !separator.empty()) {
            return separator;
        }
        return item.keyword == "style-def" ? kindHint(lowerCase(item.value))
                                           : Hint("write yes or no");
    }

    static Hint keywordHint(std::string_view keyword) {
        if (keyword.empty()) {
            return "write only one ; between two items";
        }
        if (keyword == nameKeyword) {
            return "name must be the first item of a definition";
        }
        const std::string_view word = keyword.substr(0, keyword.find_first_of(" \t\r\n="));
        if (word.size() < keyword.size() && findStyleKeyword(word)) {
            return "write a : after the keyword " + std::string(word);
        }
        return spellingHint(keyword, styleKeywordWords());
    }

    static Hint kindHint(const std::string& value) {
        if (value.empty()) {
            return "write s, cs or cell";
        }
        if (value.starts_with("p")) {
            return "write s for a paragraph style";
        }
        if (value.starts_with("ch")) {
            return "write cs for a character style";
        }
        return spellingHint(value, findStyleKeyword("style-def")->values);
    }

    void findWarnings(const OutlinedDefinition& definition) {
        const StyleKind kind = kindOf(definition);
        std::unordered_set<std::string> seen;
        for (std::size_t i = 1; i < definition.items.size(); ++i) {
            const StyleItem& item = definition.items[i];
            if (item.known && !seen.insert(item.keyword).second) {
                report(DiagnosticId::RepeatedItem, item.writtenKeyword, {item.keyword});
            } else if (item.keyword == "format") {
                findFormatWarningsOf(item, kind);
            }
        }
        const std::vector<std::string_view> names = namesOf(definition);
        if (!names.empty() && !seen.contains("style-def")) {
            report(DiagnosticId::NoStyleKind, definition.items.front().whole, {},
                   separatorHint(definition.items.front().value));
        }
        for (const std::string_view name : names) {
            findNameWarnings(name, kind);
        }
    }

    void findFormatWarningsOf(const StyleItem& item, StyleKind kind) {
        if (kind != StyleKind::Cell) {
            findTextWarnings(item.value, TextUse::Format, &styles_, source_, engine_);
            return;
        }
        const std::string color = lowerCase(item.value);
        if (!color.starts_with('^') && color != "none" &&
            CRtfGrpColorTable::colorNumber(color) == 0) {
            report(DiagnosticId::UnknownCellColor, item.value,
                   {color.empty() ? std::string_view("An empty format") : item.value},
                   color.empty() ? Hint("write none for no color")
                                 : spellingHint(color, viewsOf(cellColorNames())));
        }
    }

    void findNameWarnings(std::string_view name, StyleKind kind) {
        if (name.empty()) {
            report(DiagnosticId::EmptyStyleName, name);
            return;
        }
        if (kind != StyleKind::Cell) {
            findTextWarnings(name, TextUse::StyleName, &styles_, source_, engine_);
        }
        const auto [known, isNew] =
            defined_[static_cast<std::size_t>(kind)].emplace(lowerCase(name), name);
        if (!isNew) {
            report(DiagnosticId::DuplicateStyle, name,
                   {known->first, std::to_string(source_.placeOf(known->second).line)});
        }
    }

    Hint referenceHint(StyleKind kind, std::string_view name) const {
        std::vector<std::string_view> candidates;
        const auto& names = defined_[static_cast<std::size_t>(kind)];
        if (names.size() <= maxCandidates) {
            for (const auto& [lower, written] : names) {
                candidates.push_back(written);
            }
            std::sort(candidates.begin(), candidates.end());
        }
        return spellingHint(name, candidates);
    }

    void findReferences(const OutlinedDefinition& definition) {
        const StyleKind kind = kindOf(definition);
        for (std::size_t i = 1; i < definition.items.size(); ++i) {
            const StyleItem& item = definition.items[i];
            const bool isWritten = (item.keyword == "based-on" && kind != StyleKind::Cell) ||
                                   (item.keyword == "next" && kind == StyleKind::Paragraph);
            const auto& names = defined_[static_cast<std::size_t>(kind)];
            if (isWritten && !item.value.empty() && !names.contains(lowerCase(item.value))) {
                report(DiagnosticId::UndefinedReference, item.value,
                       {item.value, styleKindName(kind)}, referenceHint(kind, item.value));
            }
        }
    }

    const SourceText& source_;
    DiagnosticEngine& engine_;
    StyleSheetOutline outline_;
    KnownStyles styles_;
    // The names of each kind in lower case, with their first places.
    std::array<std::unordered_map<std::string, std::string_view>, 3> defined_;
};

/// The description of the error that loading the text raises; nothing when it raises none.
std::optional<std::string> loadingError(std::string_view text) {
    try {
        parseStyleSheet(text, [](const StyleDefinition&) {});
        return std::nullopt;
    } catch (const RtfError& error) {
        return error.description;
    }
}

/// In UTF-16 no word is what it looks like, so the encoding is all that is reported.
void reportUtf16(std::string_view text, DiagnosticEngine& engine) {
    if (const std::optional<std::string> error = loadingError(text)) {
        engine.report(DiagnosticId::StyleSheetRejected, {}, {*error}, std::string(utf16Hint));
    } else {
        engine.report(DiagnosticId::NoStyles, {}, {}, std::string(utf16Hint));
    }
}

}  // namespace

std::vector<Diagnostic> checkStyleSheet(std::string_view text) {
    std::vector<Diagnostic> diagnostics;
    DiagnosticEngine engine(
        [&](Diagnostic diagnostic) { diagnostics.push_back(std::move(diagnostic)); });
    if (isUtf16(text)) {
        reportUtf16(text, engine);
        return diagnostics;
    }
    const SourceText source(text);
    StyleSheetChecks(source, engine).run();
    findWrongIgnoreComments(source, CheckedLanguage::StyleSheet, engine);
    sortByPlace(diagnostics);
    keepFirstMojibake(diagnostics);
    return diagnostics;
}

std::vector<Diagnostic> findUnusedStyles(const KnownStyles& styles) {
    std::vector<Diagnostic> diagnostics;
    const SourceText source(styles.text());
    DiagnosticEngine engine(
        [&](Diagnostic diagnostic) { diagnostics.push_back(std::move(diagnostic)); });
    const StyleSheetOutline outline = readStyleSheetOutline(styles.text());
    std::unordered_set<std::string> referenced;
    for (const OutlinedDefinition& definition : outline.definitions) {
        for (const StyleItem& item : definition.items) {
            if (item.keyword == "based-on" || item.keyword == "next") {
                referenced.insert(lowerCase(item.value));
            }
        }
    }
    // Paragraph styles that only keep the numbers of the character styles free need no user.
    const int reserved = std::max(1, static_cast<int>(styles.styles(StyleKind::Character).count()));
    for (const OutlinedDefinition& definition : outline.definitions) {
        const StyleKind kind = kindOf(definition);
        const std::vector<std::string_view> names = namesOf(definition);
        // A definition with several names is used when one of them is.
        const bool isUsed = std::any_of(names.begin(), names.end(), [&](std::string_view name) {
            const std::string lower = lowerCase(name);
            const bool isParagraph = kind == StyleKind::Paragraph;
            return styles.isUsed(kind, lower) ||
                   (kind != StyleKind::Cell && referenced.contains(lower)) ||
                   (isParagraph && (lower == "normal" || styles.find(kind, lower) <= reserved));
        });
        const bool isSure = std::none_of(names.begin(), names.end(), [&](std::string_view name) {
            return styles.isOfAnyKind(name);
        });
        if (!isUsed && isSure && !names.empty()) {
            engine.report(DiagnosticId::UnusedStyle, source.placeOf(names.front()),
                          {names.front()});
        }
    }
    return diagnostics;
}

}  // namespace quorvane
