#include "quorvane/diagnostics/languageOf.h"

#include <algorithm>

#include "quorvane/diagnostics/SourceText.h"
#include "quorvane/driver/Vocabulary.h"
#include "quorvane/driver/lineClassifier.h"
#include "quorvane/support/trimming.h"

namespace quorvane {

CheckedLanguage languageOf(std::string_view beginning) {
    constexpr std::size_t enough = 64 * 1024;
    const std::string_view text = beginning.substr(0, enough);
    if (trimWhitespace(text).starts_with("{\\")) {
        return CheckedLanguage::Rtf;
    }
    const auto braces = std::count(text.begin(), text.end(), '{');
    std::ptrdiff_t descriptionLines = 0;
    const Vocabulary vocabulary;
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
