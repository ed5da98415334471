#include "quorvane/compose/Document.h"

#include <ostream>

#include "quorvane/compose/ComposedDocument.h"
#include "quorvane/compose/Insertion.h"
#include "quorvane/compose/readWholeFile.h"
#include "quorvane/docmodel/InnerRow.h"
#include "quorvane/docmodel/InnerRows.h"
#include "quorvane/driver/Dialect.h"
#include "quorvane/driver/extendedValues.h"

namespace quorvane {

namespace {

/// What an empty description of the extended language sets.
Ref<CRtfDoc> newDocument(Platform& platform) {
    const PageDefaults& page = *extendedDialect().page;
    Ref<CRtfDoc> document = CRtfDoc::create(platform);
    document->setPageWidth(page.width);
    document->setPageHeight(page.height);
    document->setPageNumberStart(page.firstNumber);
    document->setEndsInSmallParagraph(true);
    return document;
}

/// Runs an operation on a file that is written.
template <class Operation>
decltype(auto) writing(const std::string& path, Operation&& operation) {
    try {
        return std::forward<Operation>(operation)();
    } catch (const RtfError& error) {
        throw fileError(path, "unwritable-file", error);
    }
}

}  // namespace

Document::Document(Platform& platform) : Document(newDocument(platform), platform) {}

Document::Document(Ref<CRtfDoc> document, Platform& platform)
    : document_(new ComposedDocument(std::move(document), platform)) {}

ComposedDocument& Document::composed() const {
    return referred(document_);
}

Row Document::addRow() {
    return insertRow(size());
}

template <class Texts>
Row Document::addRowOf(const Texts& texts, std::string_view style) {
    Row row = addRow();
    try {
        return row.addCells(texts, style);
    } catch (...) {
        row.remove();
        throw;
    }
}

Row Document::addRow(std::initializer_list<TextView> texts, std::string_view style) {
    return addRowOf(texts, style);
}

Row Document::addRow(std::span<const Text> texts, std::string_view style) {
    return addRowOf(texts, style);
}

Row Document::addRow(std::span<const std::string> texts, std::string_view style) {
    return addRowOf(texts, style);
}

Row Document::addRow(std::span<const std::string_view> texts, std::string_view style) {
    return addRowOf(texts, style);
}

Row Document::insertRow(std::size_t index) {
    return composing([&]() -> Row {
        Insertion insertion(inner(*composed().document().TableRows()), index);
        return {document_, Ref<CRtfTableRow>(&insertion.keep())};
    });
}

Row Document::row(std::string_view key) const {
    InnerRows& rows = inner(*composed().document().TableRows());
    return {document_, Ref<CRtfTableRow>(&elementWithKey(rows, key))};
}

void Document::setPage(std::string_view name) {
    composing([&] { composed().layout().setPaper(pageSizeNamed(name)); });
}

void Document::setPage(Length width, Length height) {
    composing([&] {
        composed().layout().setPaper({lengthFrom(1, std::to_string(width.twips())),
                                      lengthFrom(1, std::to_string(height.twips()))});
    });
}

void Document::setMargins(const Margins& margins) {
    composing([&] {
        composed().layout().setMargins(margins.left, margins.right, margins.top, margins.bottom);
    });
}

void Document::setPageNumberStart(std::int32_t number) {
    composing([&] {
        composed().document().setPageNumberStart(
            wholeNumber(std::to_string(number), 1, lastPageNumber));
    });
}

void Document::setColumns(std::initializer_list<Width> widths) {
    setColumns(std::span(widths.begin(), widths.size()));
}

void Document::setColumns(std::span<const Width> widths) {
    composed().layout().setColumns(widths);
}

void Document::setHeader(const PageText& text) {
    composing([&] { composed().document().setPageHeader(text.left, text.center, text.right); });
}

void Document::setFooter(const PageText& text) {
    composing([&] { composed().document().setPageFooter(text.left, text.center, text.right); });
}

void Document::setHeadingForm(HeadingForm form) {
    composing([&] { composed().document().setHeadingForm(form); });
}

void Document::setStyleSheet(std::string_view text) {
    composing([&] { composed().setStyleSheet(text, {}); });
}

void Document::setStyleSheetFile(const std::string& path) {
    composing([&] { composed().setStyleSheet(readWholeText(path, composed().platform()), path); });
}

std::int32_t Document::addFont(std::string_view name) {
    return composing([&] { return composed().document().addFont(name); });
}

std::string Document::rtf() {
    std::string bytes;
    composing([&] { composed().render([&bytes](std::string_view piece) { bytes += piece; }); });
    return bytes;
}

void Document::write(std::ostream& stream) {
    composing([&] {
        composed().render([&stream](std::string_view piece) {
            if (!stream.write(piece.data(), static_cast<std::streamsize>(piece.size()))) {
                throw Error(
                    {.message = "The stream cannot be written.", .identifier = "unwritable-file"});
            }
        });
    });
}

void Document::save(const std::string& path) {
    composing([&] {
        ComposedDocument& document = composed();
        document.fit();
        const std::unique_ptr<OutputFile> file =
            writing(path, [&] { return document.platform().replaceFile(path); });
        document.render(
            [&](std::string_view piece) { writing(path, [&] { file->write(piece); }); });
        writing(path, [&] { file->close(); });
    });
}

Ref<CRtfDoc> Document::native() const {
    return composing([&] {
        composed().fit();
        return Ref<CRtfDoc>(&composed().document());
    });
}

}  // namespace quorvane
