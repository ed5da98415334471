// Any columns, spans, settings of rows and page headers: rendering raises error 5 or 6, or gives a
// document whose rows have as many cell ends as definitions and that the check of RTF files finds
// nothing in.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "quorvane/diagnostics/rtf/RtfCheck.h"
#include "quorvane/docmodel/CRtfTableCell.h"
#include "tests/fuzz/FuzzInput.h"
#include "tests/fuzz/documentChecks.h"

namespace quorvane {
namespace {

std::vector<std::int32_t> widthsFrom(FuzzInput& input) {
    std::vector<std::int32_t> widths(input.below(6));
    for (std::int32_t& width : widths) {
        width = input.below(8) == 0 ? input.number() : input.byte() + 1;
    }
    return widths;
}

std::int32_t spanFrom(FuzzInput& input) {
    return input.below(16) == 0 ? input.number() : static_cast<std::int32_t>(input.below(3)) + 1;
}

void addCells(FuzzInput& input, CRtfTableCells& cells) {
    for (std::size_t count = input.below(5); count > 0; --count) {
        cells.AddTail();
        if (input.below(3) == 0) {
            errorOfCall([&] { cells.PeekTail()->setColumnSpan(spanFrom(input)); });
            errorOfCall([&] { cells.PeekTail()->setRowSpan(spanFrom(input)); });
        }
    }
}

void addRow(FuzzInput& input, CRtfDoc& document) {
    document.TableRows()->AddTail();
    const Ref<CRtfTableRow> row = document.TableRows()->PeekTail();
    addCells(input, *row->TableCells());
    const std::uint8_t settings = input.byte();
    row->setRepeatsAsHeading(settings % 4 == 0);
    row->setKeepTogether(settings % 8 == 1);
    row->setKeepWithNext(settings % 8 == 2);
    row->setStartsPage(settings % 8 == 3);
    if (settings > 200) {
        errorOfCall([&] { row->setColumnWidths(widthsFrom(input)); });
    }
}

void setPage(FuzzInput& input, CRtfDoc& document) {
    errorOfCall([&] { document.setColumnWidths(widthsFrom(input)); });
    document.setHeadingForm(input.flag() ? HeadingForm::PageHeader : HeadingForm::RowProperty);
    errorOfCall([&] {
        const std::string left = input.text(12);
        const std::string center = input.text(12);
        document.setPageHeader(left, center, input.text(12));
    });
    errorOfCall([&] { document.setPageFooter("", input.text(12), "{page}"); });
    document.setTopMargin(input.number());
    document.setPageWidth(input.flag() ? input.number() : document.PageWidth());
    errorOfCall([&] { document.addFont(input.text(12)); });
    document.addColor(input.byte(), input.byte(), input.byte());
}

/// The text without escaped backslashes, which would begin what looks like a word.
std::string withoutEscapes(std::string rtf) {
    for (std::size_t at = rtf.find("\\\\"); at != std::string::npos; at = rtf.find("\\\\", at)) {
        rtf.erase(at, 2);
    }
    return rtf;
}

/// A row without cells is nothing that additions make.
bool hasEmptyRow(std::string_view rtf) {
    return rtf.find("\\trleft0\\row}") != std::string_view::npos ||
           rtf.find("\\trhdr\\row}") != std::string_view::npos ||
           rtf.find("\\trkeep\\row}") != std::string_view::npos ||
           rtf.find("\\intbl\\keepn\\row}") != std::string_view::npos;
}

}  // namespace
}  // namespace quorvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quorvane;
    FuzzInput input(data, size);
    FakePlatform platform;
    const Ref<CRtfDoc> document = CRtfDoc::create(platform);
    setPage(input, *document);
    while (!input.isEmpty()) {
        // A page of absurd width has no room for cells.
        errorOfCall([&] { addRow(input, *document); });
    }
    std::string rtf;
    const std::int32_t error = errorOfCall([&] { rtf = renderedTwice(*document); });
    require(error == 0 || error == 5 || error == 6, "a layout is rendered or refused");
    if (error != 0) {
        return 0;
    }
    const std::string words = withoutEscapes(rtf);
    require(occurrencesOf("\\cellx", words) * 2 == occurrencesOf("\\cell", words),
            "every cell has its definition and its end");
    require(hasEmptyRow(rtf) || checkRtf(rtf).empty(), "the document is sound");
    document->setChanged(true);
    requireSameWhenCommitted(*document, platform);
    return 0;
}
