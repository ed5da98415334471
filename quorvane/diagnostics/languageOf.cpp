#include "quorvane/diagnostics/languageOf.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>

#include "quorvane/base/text/byteOrderMark.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/diagnostics/engine/SourceText.h"
#include "quorvane/diagnostics/fileEncoding.h"
#include "quorvane/driver/DescriptionLine.h"
#include "quorvane/stylesheet/stylesheetSyntax.h"

namespace quorvane {

namespace {

constexpr std::size_t enough = std::size_t{64} * 1024;

bool opensNode(std::string_view line) {
    const LineType type = descriptionLine(line, originalDialect()).type;
    return type == LineType::Leaf || type == LineType::Opener;
}

/// True when a backslash follows the first brace, as in no stylesheet.
bool hasRtfBrace(std::string_view text) {
    const std::size_t brace = text.find('{');
    if (brace == std::string_view::npos) {
        return text.find("\\rtf") != std::string_view::npos;
    }
    return trimWhitespace(text.substr(brace + 1)).starts_with('\\');
}

std::optional<CheckedLanguage> languageOfName(std::string_view fileName) {
    const std::string name = lowerCase(fileName);
    return name.ends_with(".rtf")       ? std::optional(CheckedLanguage::Rtf)
           : name.ends_with(".rtfss")   ? std::optional(CheckedLanguage::StyleSheet)
           : name.ends_with(".rtfspec") ? std::optional(CheckedLanguage::Description)
                                        : std::nullopt;
}

std::ptrdiff_t countDescriptionLines(std::string_view text) {
    const SourceText source(text);
    return std::count_if(
        source.lines().begin(), source.lines().end(), [&](const SourceText::Line& bounds) {
            const std::string_view line =
                trimWhitespace(text.substr(bounds.start, bounds.end - bounds.start));
            return !line.empty() && descriptionLine(line, originalDialect()).isReadable();
        });
}

}  // namespace

std::string_view firstLineOf(std::string_view text) {
    const SourceText source(text);
    for (const SourceText::Line& bounds : source.lines()) {
        const std::string_view line =
            trimWhitespace(text.substr(bounds.start, bounds.end - bounds.start));
        if (!isEmptyOrComment(line, originalDialect())) {
            return line;
        }
    }
    return {};
}

CheckedLanguage languageOf(std::string_view beginning, std::string_view fileName) {
    if (isUtf16(beginning)) {
        std::string ascii(beginning.substr(0, enough));
        std::erase_if(ascii, [](char byte) { return byte < ' ' && byte != '\r' && byte != '\n'; });
        return languageOf(ascii, fileName);
    }
    const std::string_view text = afterByteOrderMark(beginning.substr(0, enough));
    // Texts of a description may hold more braces than a stylesheet does, so that counting alone
    // would not do.
    const std::string_view first = firstLineOf(text);
    if (opensNode(first)) {
        return CheckedLanguage::Description;
    }
    const std::optional<CheckedLanguage> named = languageOfName(fileName);
    if (hasRtfBrace(text) || named == CheckedLanguage::Rtf) {
        return CheckedLanguage::Rtf;
    }
    const std::ptrdiff_t braces = countBraces(text).opened;
    const std::ptrdiff_t lines = countDescriptionLines(text);
    if (first.starts_with('{') || (braces > lines && named != CheckedLanguage::Description)) {
        return CheckedLanguage::StyleSheet;
    }
    return lines > 0 ? CheckedLanguage::Description : named.value_or(CheckedLanguage::Description);
}

std::string_view openingOfDescription(std::string_view text) {
    const std::string_view first = firstLineOf(text.substr(0, enough));
    return opensNode(first) ? first : std::string_view();
}

}  // namespace quorvane
