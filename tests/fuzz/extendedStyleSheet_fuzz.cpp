// Any text as a stylesheet in the extended language, after its first line: loading it raises an
// error exactly where check reports one; its styles have numbers of their own; the document that
// uses them is sound RTF; and its canonical form means the same.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "quorvane/base/text/extendedMark.h"
#include "quorvane/diagnostics/KnownStyles.h"
#include "quorvane/diagnostics/rtf/RtfCheck.h"
#include "quorvane/diagnostics/stylesheet/StyleSheetCheck.h"
#include "quorvane/docmodel/CRtfParagraph.h"
#include "quorvane/docmodel/CRtfParagraphs.h"
#include "quorvane/docmodel/CRtfTableCell.h"
#include "quorvane/formatting/formatStyleSheet.h"
#include "quorvane/stylesheet/extendedStyleSheet.h"
#include "tests/fuzz/documentChecks.h"

namespace {

using namespace quorvane;

bool hasErrors(const std::vector<Diagnostic>& diagnostics) {
    return std::any_of(diagnostics.begin(), diagnostics.end(), [](const Diagnostic& diagnostic) {
        return diagnostic.severity == Severity::Error;
    });
}

Ref<CRtfDoc> extendedDocument(FakePlatform& platform) {
    Ref<CRtfDoc> document = CRtfDoc::create(platform);
    document->setExtendedStyleSheets(true);
    return document;
}

/// A row with a cell for each style: the cell, or the text in it, has the style.
void fill(CRtfDoc& document, const std::vector<ExtendedStyle>& styles) {
    document.TableRows()->AddTail();
    const Ref<CRtfTableCells> cells = document.TableRows()->Item(1)->TableCells();
    for (std::size_t i = 0; i < std::min<std::size_t>(styles.size(), 20); ++i) {
        const std::string name(styles[i].name);
        cells->AddTail();
        const Ref<CRtfTableCell> cell = cells->Item(static_cast<std::int32_t>(i) + 1);
        cell->Paragraphs()->AddTail();
        const Ref<CRtfParagraph> paragraph = cell->Paragraphs()->Item(1);
        paragraph->setText(styles[i].kind == StyleKind::Character ? "<" + name + "=x>" : "x");
        if (styles[i].kind == StyleKind::Paragraph) {
            paragraph->setStyle(name);
        } else if (styles[i].kind == StyleKind::Cell) {
            cell->setStyle(name);
        }
    }
}

void requireNumbersOfTheirOwn(const CRtfDoc& document, const std::vector<ExtendedStyle>& styles) {
    std::set<std::string> numbers;
    for (const ExtendedStyle& style : styles) {
        if (style.kind == StyleKind::Cell) {
            continue;
        }
        const bool isParagraph = style.kind == StyleKind::Paragraph;
        const std::string_view words = isParagraph ? document.GetParagraphStyle(style.name)
                                                   : document.GetCharacterStyle(style.name);
        const std::string_view number = words.substr(isParagraph ? 2 : 3);
        require(numbers.emplace(number.substr(0, number.find_first_not_of("0123456789"))).second,
                "no two styles have the same number");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text =
        std::string(extendedMark) + "\n" + std::string(reinterpret_cast<const char*>(data), size);
    std::size_t violations = 0;
    const std::vector<ExtendedStyle> styles =
        readExtendedStyleSheet(text, [&](const ExtendedViolation&) { ++violations; });

    FakePlatform platform;
    const Ref<CRtfDoc> document = extendedDocument(platform);
    const std::int32_t error = errorOfCall([&] { document->LoadStyleSheetFromMemmory(text); });
    require((error != 0) == (violations > 0), "a violation is an error of loading");
    require(hasErrors(checkStyleSheet(text)) == (violations > 0), "a violation is reported");
    require(document->StyleSheetOk() == (violations == 0), "a sheet without violations is loaded");

    const std::string formatted = formattedStyleSheet(text);
    requireEqual(formattedStyleSheet(formatted), formatted, "formatting again changes nothing");

    const KnownStyles known(text);
    const Ref<CRtfDoc> repaired = extendedDocument(platform);
    repaired->LoadStyleSheetFromMemmory(known.soundText());
    for (const ExtendedStyle& style : styles) {
        require(known.find(style.kind, style.name) > 0, "the styles of a wrong sheet are known");
    }
    if (violations > 0) {
        return 0;
    }
    fill(*document, styles);
    requireNumbersOfTheirOwn(*document, styles);
    const std::string rtf = renderedTwice(*document);
    if (!styles.empty()) {
        require(!hasErrors(checkRtf(codePage1252FromUtf8(rtf))), "the document is sound");
    }
    const Ref<CRtfDoc> other = extendedDocument(platform);
    other->LoadStyleSheetFromMemmory(formatted);
    fill(*other, styles);
    requireEqual(renderedTwice(*other), rtf, "the canonical form means the same");
    return 0;
}
