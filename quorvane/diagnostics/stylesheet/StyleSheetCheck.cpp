#include "quorvane/diagnostics/stylesheet/StyleSheetCheck.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/diagnostics/description/misreadCharacters.h"
#include "quorvane/diagnostics/description/rtfText.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/SourceText.h"
#include "quorvane/diagnostics/engine/ignoreComments.h"
#include "quorvane/diagnostics/engine/nearestWord.h"
#include "quorvane/diagnostics/fileEncoding.h"
#include "quorvane/diagnostics/languageOf.h"
#include "quorvane/diagnostics/stylesheet/StyleSheetOutline.h"
#include "quorvane/rtfgroups/CRtfGrpColorTable.h"
#include "quorvane/stylesheet/stylesheetParser.h"

namespace quorvane {

namespace {

constexpr std::string_view keywords[] = {"style-def", "format", "based-on", "next", "additive"};
constexpr int colorCount = 57;

bool isKeyword(std::string_view word) {
    return std::find(std::begin(keywords), std::end(keywords), word) != std::end(keywords);
}

/// What to say of a value that goes on with another item, such as "n, style-def: s"; empty for any
/// other value.
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
        if (last != std::string_view::npos && isKeyword(word)) {
            return "items are separated by ; which is missing before " + word;
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
        for (int number = 1; number <= colorCount; ++number) {
            list.push_back(CRtfGrpColorTable::colorName(number));
        }
        return list;
    }();
    return names;
}

StyleKind kindNearly(const std::string& word) {
    return word == "s" || word.starts_with("p")     ? StyleKind::Paragraph
           : word == "cs" || word.starts_with("ch") ? StyleKind::Character
                                                    : StyleKind::Cell;
}

StyleKind kindOf(const SheetDefinition& definition) {
    for (std::size_t i = 1; i < definition.items.size(); ++i) {
        if (definition.items[i].keyword == "style-def") {
            return kindNearly(lowerCase(definition.items[i].value));
        }
    }
    return StyleKind::Cell;
}

/// The names of a definition; none where its first item is not "name".
std::vector<std::string_view> namesOf(const SheetDefinition& definition) {
    return !definition.items.empty() && definition.items.front().keyword == "name"
               ? namesIn(definition.items.front().value)
               : std::vector<std::string_view>();
}

class SheetFindings {
public:
    SheetFindings(const SourceText& source, DiagnosticEngine& engine)
        : source_(source),
          engine_(engine),
          outline_(readStyleSheetOutline(source.text())),
          styles_(source.text()) {}

    void find() {
        const std::string_view opening = openingOfDescription(source_.text());
        if (!opening.empty()) {
            report(DiagnosticId::DescriptionAsStyleSheet, opening, {},
                   "were the names of the two files swapped?");
        } else {
            findKeywordWithoutBraces();
        }
        findBraces();
        for (const SheetDefinition& definition : outline_.definitions) {
            findErrors(definition);
            findWarnings(definition);
        }
        for (const SheetDefinition& definition : outline_.definitions) {
            findReferences(definition);
        }
    }

private:
    void report(DiagnosticId id, std::string_view part,
                std::initializer_list<std::string_view> arguments = {}, Hint hint = {}) {
        engine_.report(id, source_.placeOf(part), arguments, std::move(hint));
    }

    /// What stands outside of braces says nothing: without any, a text that means to say something
    /// has no styles, and neither has an empty one.
    void findKeywordWithoutBraces() {
        const std::string_view text = source_.text();
        if (trimWhitespace(behindByteOrderMark(text)).empty()) {
            report(
                DiagnosticId::NoStyles, text.substr(0, 0), {},
                "the file is empty; a style is defined in braces: { name: ...; style-def: ... }");
            return;
        }
        if (text.find_first_of("{}") != std::string_view::npos) {
            return;
        }
        for (const SourceText::Line& bounds : source_.lines()) {
            std::string_view line = text.substr(bounds.start, bounds.end - bounds.start);
            if (trimWhitespace(line).starts_with(';')) {
                continue;
            }
            const std::string_view word = trimWhitespace(line.substr(0, line.find(':')));
            const std::string keyword = lowerCase(word);
            const bool isKeyword =
                line.find(':') != std::string_view::npos &&
                (keyword == "name" || std::find(std::begin(keywords), std::end(keywords),
                                                keyword) != std::end(keywords));
            if (isKeyword) {
                report(DiagnosticId::NoStyles, word, {},
                       "a definition stands in braces: { name: ...; style-def: ... }");
                return;
            }
        }
    }

    void findBraces() {
        const std::string_view text = source_.text();
        const auto opened = std::count(text.begin(), text.end(), '{');
        const auto closed = std::count(text.begin(), text.end(), '}');
        if (opened != closed) {
            report(opened < closed ? DiagnosticId::BracesUnderflow : DiagnosticId::BracesOverflow,
                   outline_.loneBrace, {},
                   outline_.loneBrace == "{" ? "its } is missing" : "its { is missing");
        }
    }

    void findErrors(const SheetDefinition& definition) {
        if (definition.items.empty() && !outline_.loneBrace.empty()) {
            // That a brace is missing is told already.
            return;
        }
        if (definition.items.empty()) {
            report(DiagnosticId::BadKeyword, definition.brace, {""},
                   "a definition begins with name:");
            return;
        }
        const SheetItem& first = definition.items.front();
        if (first.keyword != "name") {
            report(DiagnosticId::BadKeyword, first.writtenKeyword, {first.keyword},
                   firstKeywordHint(first));
        }
        for (std::size_t i = 1; i < definition.items.size(); ++i) {
            findItemError(definition.items[i]);
        }
    }

    static Hint firstKeywordHint(const SheetItem& first) {
        constexpr std::string_view name[] = {"name"};
        if (first.keyword.starts_with("name") && first.value.empty()) {
            return "a : follows the keyword name";
        }
        Hint hint("a definition begins with name:");
        if (!certainWord(first.keyword, name).empty()) {
            hint.replacement = "name";
        }
        return hint;
    }

    void findItemError(const SheetItem& item) {
        const std::string value = lowerCase(item.value);
        if (item.keyword == "style-def") {
            constexpr std::string_view kinds[] = {"s", "cs", "cell"};
            if (value != "s" && value != "cs" && value != "cell") {
                const std::string separator = separatorHint(item.value);
                report(DiagnosticId::BadStyleKind, item.value, {value},
                       separator.empty() ? kindHint(value, kinds) : Hint(separator));
            }
        } else if (item.keyword == "additive") {
            if (value != "yes" && value != "no") {
                const std::string separator = separatorHint(item.value);
                report(DiagnosticId::BadAdditive, item.value, {value},
                       separator.empty() ? "write yes or no" : separator);
            }
        } else if (!isKeyword(item.keyword)) {
            report(DiagnosticId::BadKeyword, item.writtenKeyword, {item.keyword},
                   keywordHint(item.keyword));
        }
    }

    static Hint keywordHint(std::string_view keyword) {
        if (keyword.empty()) {
            return "one ; stands between two items";
        }
        if (keyword == "name") {
            return "name is the first item of a definition";
        }
        const std::string_view word = keyword.substr(0, keyword.find_first_of(" \t\r\n="));
        if (word.size() < keyword.size() && isKeyword(word)) {
            return "a : follows the keyword " + std::string(word);
        }
        return spellingHint(keyword, keywords);
    }

    static Hint kindHint(const std::string& value, std::span<const std::string_view> kinds) {
        if (value.empty()) {
            return "write s, cs or cell";
        }
        if (value.starts_with("p")) {
            return "a paragraph style is s";
        }
        if (value.starts_with("ch")) {
            return "a character style is cs";
        }
        return spellingHint(value, kinds);
    }

    void findWarnings(const SheetDefinition& definition) {
        const StyleKind kind = kindOf(definition);
        std::unordered_set<std::string> seen;
        for (std::size_t i = 1; i < definition.items.size(); ++i) {
            const SheetItem& item = definition.items[i];
            if (isKeyword(item.keyword) && !seen.insert(item.keyword).second) {
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

    void findFormatWarningsOf(const SheetItem& item, StyleKind kind) {
        if (kind != StyleKind::Cell) {
            findTextWarnings(item.value, TextUse::Format, &styles_, source_, engine_);
            return;
        }
        const std::string color = lowerCase(item.value);
        if (!color.starts_with('^') && color != "none" &&
            CRtfGrpColorTable::colorNumber(color) == 0) {
            report(DiagnosticId::UnknownCellColor, item.value,
                   {color.empty() ? std::string_view("An empty format") : item.value},
                   color.empty() ? Hint("write none where no color is meant")
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
        if (names.size() <= mostCandidates) {
            for (const auto& [lower, written] : names) {
                candidates.push_back(written);
            }
            std::sort(candidates.begin(), candidates.end());
        }
        return spellingHint(name, candidates);
    }

    void findReferences(const SheetDefinition& definition) {
        const StyleKind kind = kindOf(definition);
        for (std::size_t i = 1; i < definition.items.size(); ++i) {
            const SheetItem& item = definition.items[i];
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

std::vector<RtfError> loadingErrors(std::string_view text) {
    try {
        parseStyleSheet(text, [](const StyleDefinition&) {});
        return {};
    } catch (const RtfError& error) {
        return {error};
    }
}

/// In UTF-16 no word is what it looks like: that alone is told.
std::vector<Diagnostic> findingsInUtf16(std::string_view text) {
    std::vector<Diagnostic> findings;
    DiagnosticEngine engine([&](Diagnostic finding) { findings.push_back(std::move(finding)); });
    const std::vector<RtfError> errors = loadingErrors(text);
    if (errors.empty()) {
        engine.report(DiagnosticId::NoStyles, {}, {}, std::string(utf16Hint));
    } else {
        engine.report(DiagnosticId::StyleSheetRejected, {}, {errors.front().description},
                      std::string(utf16Hint));
    }
    return findings;
}

}  // namespace

std::vector<Diagnostic> findingsWithoutLoading(std::string_view text) {
    std::vector<Diagnostic> findings;
    const SourceText source(text);
    DiagnosticEngine engine([&](Diagnostic finding) { findings.push_back(std::move(finding)); });
    SheetFindings(source, engine).find();
    findWrongIgnoreComments(source, CheckedLanguage::StyleSheet, engine);
    sortByPlace(findings);
    keepFirstMisreadCharacters(findings);
    return findings;
}

std::vector<Diagnostic> checkStyleSheet(std::string_view text) {
    if (isUtf16(text)) {
        return findingsInUtf16(text);
    }
    return findingsWithoutLoading(text);
}

std::vector<Diagnostic> findUnusedStyles(const KnownStyles& styles) {
    std::vector<Diagnostic> findings;
    const SourceText source(styles.text());
    DiagnosticEngine engine([&](Diagnostic finding) { findings.push_back(std::move(finding)); });
    const StyleSheetOutline outline = readStyleSheetOutline(styles.text());
    std::unordered_set<std::string> referenced;
    for (const SheetDefinition& definition : outline.definitions) {
        for (const SheetItem& item : definition.items) {
            if (item.keyword == "based-on" || item.keyword == "next") {
                referenced.insert(lowerCase(item.value));
            }
        }
    }
    // Paragraph styles that keep the numbers of the character styles free are not for use.
    const int reserved = std::max(1, static_cast<int>(styles.styles(StyleKind::Character).count()));
    for (const SheetDefinition& definition : outline.definitions) {
        const StyleKind kind = kindOf(definition);
        const std::vector<std::string_view> names = namesOf(definition);
        // One definition under several names is used when one of them is.
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
    return findings;
}

}  // namespace quorvane
