// Any text with inline styles, and any words of the styles in it: what the walk gives is what it
// gives when it is walked step by step. Four formats stand first, each followed by a form feed.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/utf16.h"
#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/docmodel/InnerDocument.h"
#include "tests/docmodel/withCharacterStyles.h"
#include "tests/fuzz/FuzzInput.h"
#include "tests/fuzz/documentChecks.h"

namespace {

using namespace quorvane;

using Units = std::u16string;

/// The walk counts in UTF-16, in which a stray byte has no place of its own.
std::string wellFormed(std::string_view text) {
    return utf8FromUtf16<char16_t>(utf16FromUtf8<char16_t>(text));
}

std::size_t firstFrom(const Units& body, char16_t unit, std::size_t position) {
    for (; position >= 1 && position <= body.size(); ++position) {
        if (body[position - 1] == unit) {
            return position;
        }
    }
    return 0;
}

std::string trimmed(std::string text) {
    while (text.starts_with(' ')) {
        text.erase(0, 1);
    }
    while (text.ends_with(' ')) {
        text.pop_back();
    }
    return text;
}

Units groupOf(const CRtfDoc& document, const Units& inner) {
    const std::string text = utf8FromUtf16<char16_t>(inner);
    const std::size_t equals = text.find('=');
    const std::string words(document.GetCharacterStyle(text.substr(0, equals)));
    const std::string value = text.substr(equals + 1);
    return utf16FromUtf8<char16_t>("{" + (value.empty() ? trimmed(words) : words + value) + "}");
}

/// The walk, step by step; nothing when it takes more steps than anybody waits for.
std::optional<std::string> plainWalk(const CRtfDoc& document, std::string_view text) {
    constexpr int mostSteps = 200;
    constexpr std::size_t longest = 4000;
    Units body = utf16FromUtf8<char16_t>(text);
    std::size_t open = firstFrom(body, u'<', 1);
    std::size_t close = open;
    for (int step = 0; step < mostSteps && body.size() < longest; ++step) {
        close = firstFrom(body, u'>', close + 1);
        if (open < 1 || close <= open) {
            return utf8FromUtf16<char16_t>(body);
        }
        const Units inner = body.substr(open, close - open - 1);
        if (!inner.empty() && inner[0] >= u'A' && inner[0] <= u'z' &&
            inner.find(u'=') != Units::npos) {
            const Units token = u"<" + inner + u">";
            const Units group = groupOf(document, inner);
            Units result;
            for (std::size_t at = 0; at < body.size();) {
                if (body.compare(at, token.size(), token) == 0) {
                    result += group;
                    at += token.size();
                } else {
                    result += body[at++];
                }
            }
            body = result;
        }
        open = firstFrom(body, u'<', open + 1);
    }
    return std::nullopt;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzInput input(data, size);
    const auto pieces = input.pieces('\f', 4);
    const std::string text = wellFormed(input.rest().substr(0, 1500));
    std::string sheet;
    const char* const names[] = {"a", "b", "ab", "a<b"};
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        sheet += "{name:" + std::string(names[i]) +
                 ";style-def:cs;format:" + wellFormed(pieces[i]) + "}";
    }
    const Ref<CRtfDoc> document = CRtfDoc::create();
    if (errorOfCall([&] { document->LoadStyleSheetFromMemmory(sheet); }) != 0) {
        return 0;
    }
    const std::optional<std::string> expected = plainWalk(*document, text);
    // A walk without an end is one that the unit tests take.
    if (expected) {
        std::string styled;
        require(errorOfCall([&] { styled = withCharacterStyles(inner(*document), text); }) == 0,
                "a walk that ends gives a text");
        requireEqual(styled, *expected, "a text is what the walk makes of it");
    }
    return 0;
}
