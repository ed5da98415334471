#include "quorvane/diagnostics/stylesheet/StyleSheetCheck.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "quorvane/base/text/byteOrderMark.h"
#include "quorvane/base/text/extendedMark.h"
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
#include "quorvane/diagnostics/stylesheet/ExtendedStyleSheetCheck.h"
#include "quorvane/diagnostics/stylesheet/styleSheetHints.h"
#include "quorvane/diagnostics/text/mojibake.h"
#include "quorvane/diagnostics/text/rtfText.h"
#include "quorvane/rtf/unicodeWords.h"
#include "quorvane/rtfgroups/CRtfGrpColorTable.h"
#include "quorvane/stylesheet/stylesheetParser.h"

namespace quorvane {

namespace {

DiagnosticId diagnosticOf(StyleSheetFault fault) {
    switch (fault) {
        case StyleSheetFault::BracesUnderflow:
            return DiagnosticId::BracesUnderflow;
        case StyleSheetFault::BracesOverflow:
            return DiagnosticId::BracesOverflow;
        case StyleSheetFault::BadStyleKind:
            return DiagnosticId::BadStyleKind;
        case StyleSheetFault::BadAdditive:
            return DiagnosticId::BadAdditive;
        case StyleSheetFault::BadKeyword:
            break;
    }
    return DiagnosticId::BadKeyword;
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
            findUnencodable(definition);
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
        if (const auto fault = faultOf(countBraces(source_.text()))) {
            report(diagnosticOf(*fault), outline_.loneBrace, {},
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
        if (const auto fault = faultOfFirst(first)) {
            report(diagnosticOf(*fault), first.writtenKeyword, {first.keyword},
                   firstStyleKeywordHint(first));
        }
        for (std::size_t i = 1; i < definition.items.size(); ++i) {
            findItemError(definition.items[i]);
        }
    }

    void findItemError(const StyleItem& item) {
        const std::string value = lowerCase(item.value);
        const auto fault = faultOf(item, value);
        if (fault && !item.known) {
            report(diagnosticOf(*fault), item.writtenKeyword, {item.keyword},
                   styleKeywordHint(item.keyword));
        } else if (fault) {
            report(diagnosticOf(*fault), item.value, {value}, styleValueHint(item));
        }
    }

    /// In a file in Windows-1252 there is no such character.
    void findUnencodable(const OutlinedDefinition& definition) {
        if (!isUtf8(source_.encoding())) {
            return;
        }
        for (const StyleItem& item : definition.items) {
            if (const auto character = findBeyondCodePage1252(item.whole)) {
                report(DiagnosticId::UnencodableStyle, *character, {*character});
            }
        }
    }

    void findWarnings(const OutlinedDefinition& definition) {
        const StyleKind kind = kindOf(definition);
        std::unordered_set<const StyleKeyword*> seen;
        for (std::size_t i = 1; i < definition.items.size(); ++i) {
            const StyleItem& item = definition.items[i];
            if (item.known && !seen.insert(item.known).second) {
                report(DiagnosticId::RepeatedItem, item.writtenKeyword, {item.keyword});
            } else if (item.is(formatKeyword)) {
                findFormatWarningsOf(item, kind);
            }
        }
        const std::vector<std::string_view> names = namesOf(definition);
        if (!names.empty() && !seen.contains(&kindKeyword)) {
            report(DiagnosticId::NoStyleKind, definition.items.front().whole, {},
                   missingSeparatorHint(definition.items.front().value));
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
                   cellColorHint(color));
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
            const bool isWritten = (item.is(basedOnKeyword) && kind != StyleKind::Cell) ||
                                   (item.is(nextKeyword) && kind == StyleKind::Paragraph);
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

std::vector<Diagnostic> checkStyleSheet(std::string_view text, TextEncoding encoding) {
    std::vector<Diagnostic> diagnostics;
    DiagnosticEngine engine(
        [&](Diagnostic diagnostic) { diagnostics.push_back(std::move(diagnostic)); });
    if (isUtf16(text)) {
        reportUtf16(text, engine);
        return diagnostics;
    }
    const SourceText source(text, encoding);
    if (isMarkedExtended(text)) {
        checkExtendedStyleSheet(source, engine);
    } else {
        StyleSheetChecks(source, engine).run();
    }
    findWrongIgnoreComments(source, CheckedLanguage::StyleSheet, engine);
    sortByPlace(diagnostics);
    keepFirstMojibake(diagnostics);
    return diagnostics;
}

}  // namespace quorvane
