#include "quorvane/formatting/TextUpgrade.h"

#include "quorvane/base/text/trimming.h"
#include "quorvane/docmodel/InnerDocument.h"
#include "quorvane/driver/LeafError.h"
#include "quorvane/driver/literalText.h"
#include "quorvane/driver/rawRtf.h"
#include "quorvane/driver/withoutFullStop.h"
#include "quorvane/formatting/Upgrade.h"
#include "quorvane/formatting/literalFromRtf.h"
#include "quorvane/formatting/literalValue.h"
#include "quorvane/formatting/plainRawRtf.h"
#include "quorvane/rtf/escape.h"
#include "quorvane/rtf/unicodeWords.h"

namespace quorvane {

TextUpgrade::TextUpgrade(CRtfDoc& document, bool hasStyleSheet)
    : document_(document), hasStyleSheet_(hasStyleSheet), inlineStyles_(inner(document)) {}

UpgradedText TextUpgrade::upgraded(std::string_view text, std::size_t indent) {
    const std::string written = withUnicodeWords(text);
    const std::string styled(inlineStyles_.replace(written));
    if (!hasStyleSheet_ && styled != written) {
        return {.error =
                    "The text has an inline style; its stylesheet is needed to write it in "
                    "the extended language"};
    }
    if (std::optional<UpgradedText> literal = literalForm(text, styled, indent)) {
        return *literal;
    }
    UpgradedText raw{.rtf = std::string(trimBlanks(plainRawRtf(styled)))};
    if (raw.rtf->empty()) {
        raw.rtf = "{}";
    }
    try {
        if (!shown_.areAlike(styled, rawRtf(*raw.rtf))) {
            return {.error = cannotExpress("no text would show the same")};
        }
    } catch (const LeafError& error) {
        return {.error = cannotExpress(withoutFullStop(error.description))};
    }
    return raw;
}

/// Nothing where a literal text would not show the same.
std::optional<UpgradedText> TextUpgrade::literalForm(std::string_view text, std::string_view styled,
                                                     std::size_t indent) {
    const auto wordsOf = [this](std::string_view name) {
        return inner(document_).GetCharacterStyle(name);
    };
    const std::size_t formatEnd = endOfLeadingFormat(text);
    const std::optional<std::string> literal = literalFromRtf(
        text.substr(formatEnd), [&](std::string_view name) { return !wordsOf(name).empty(); });
    // A paragraph with a text that shows nothing is an empty one, but one without a text is none.
    const bool isNone = literal && literal->empty() && formatEnd == 0 && !text.empty();
    if (!literal || isNone || isInvisibleText(*literal) || findUnshowable(*literal)) {
        return std::nullopt;
    }
    UpgradedText upgraded{.text = literalValue(*literal, indent)};
    if (!upgraded.text) {
        return std::nullopt;
    }
    std::string rtf;
    if (formatEnd > 0) {
        upgraded.rtf = trimBlanks(plainRawRtf(text.substr(0, formatEnd)));
        upgraded.text = literal->empty() ? std::nullopt : upgraded.text;
        rtf = rawRtf(*upgraded.rtf);
    }
    appendLiteralText(*literal, wordsOf, rtf);
    return shown_.areAlike(styled, rtf) ? std::optional(upgraded) : std::nullopt;
}

}  // namespace quorvane
