#include "quorvane/diagnostics/languageOf.h"

#include <algorithm>
#include <optional>

#include "quorvane/diagnostics/SourceText.h"
#include "quorvane/driver/Vocabulary.h"
#include "quorvane/driver/lineClassifier.h"
#include "quorvane/support/trimming.h"

namespace quorvane {

namespace {

/// What the first line tells that is neither blank nor a comment. Texts of a description may hold
/// more braces than a stylesheet does, so that counting alone would not do.
std::optional<CheckedLanguage> languageOfFirstLine(std::string_view text,
                                                   const Vocabulary& vocabulary) {
    const SourceText source(text);
    for (const SourceText::Line& bounds : source.lines()) {
        const std::string_view line =
            trimWhitespace(text.substr(bounds.start, bounds.end - bounds.start));
        if (line.empty() || line.starts_with(';')) {
            continue;
        }
        if (isLeaf(line) || openedKind(line, vocabulary) != NodeKind::None) {
            return CheckedLanguage::Description;
        }
        if (line.starts_with('{')) {
            return CheckedLanguage::StyleSheet;
        }
        return std::nullopt;
    }
    return std::nullopt;
}

}  // namespace

CheckedLanguage languageOf(std::string_view beginning) {
    constexpr std::size_t enough = std::size_t{64} * 1024;
    const std::string_view text = beginning.substr(0, enough);
    if (trimWhitespace(text).starts_with("{\\")) {
        return CheckedLanguage::Rtf;
    }
    const Vocabulary vocabulary;
    if (const auto language = languageOfFirstLine(text, vocabulary)) {
        return *language;
    }
    const auto braces = std::count(text.begin(), text.end(), '{');
    std::ptrdiff_t descriptionLines = 0;
    const SourceText source(text);
    for (const SourceText::Line& bounds : source.lines()) {
        const std::string_view line =
            trimWhitespace(text.substr(bounds.start, bounds.end - bounds.start));
        if (!line.empty() && (isLeaf(line) || openedKind(line, vocabulary) != NodeKind::None ||
                              closedKind(line, vocabulary) != NodeKind::None)) {
            ++descriptionLines;
        }
    }
    return braces > descriptionLines ? CheckedLanguage::StyleSheet : CheckedLanguage::Description;
}

}  // namespace quorvane
