#pragma once

#include <string>

#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/docmodel/CRtfParagraph.h"
#include "quorvane/docmodel/CRtfParagraphs.h"
#include "quorvane/docmodel/CRtfTableCell.h"
#include "quorvane/docmodel/CRtfTableCells.h"
#include "quorvane/docmodel/CRtfTableRow.h"
#include "quorvane/docmodel/CRtfTableRows.h"
#include "tests/support/FakePlatform.h"

namespace quorvane {

/// The text that the document's rows give when it is made now, whether or not something changed.
inline std::string rowsText(CRtfDoc& document) {
    document.Refresh();
    const std::string& contents = document.Contents();
    const std::string pageEnd = "\\widowctrl\r\n";
    const std::size_t begin = contents.find(pageEnd) + pageEnd.size();
    return contents.substr(begin, contents.size() - begin - 1);
}

/// A document of one row, with the parts that tests work on.
struct RowDocument {
    explicit RowDocument(int cellCount = 0) {
        document->TableRows()->AddTail();
        row = document->TableRows()->PeekTail();
        cells = row->TableCells();
        for (int i = 0; i < cellCount; ++i) {
            cells->AddTail();
        }
        document->setChanged(false);
    }

    Ref<CRtfTableCell> cell(int position) const { return cells->Item(position); }

    /// The text of the row's cells, between the row's opening words and its end.
    std::string cellsText() const {
        const std::string text = rowsText(*document);
        const std::string begin = "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0";
        const std::string end = "\\row}";
        return text.substr(begin.size(), text.size() - begin.size() - end.size());
    }

    FakePlatform platform;
    Ref<CRtfDoc> document = CRtfDoc::create(platform);
    Ref<CRtfTableRow> row;
    Ref<CRtfTableCells> cells;
};

/// A document of one row of one cell, with paragraphs of these texts.
struct CellDocument : RowDocument {
    CellDocument() : RowDocument(1) {}
    explicit CellDocument(std::initializer_list<const char*> texts) : RowDocument(1) {
        for (const char* text : texts) {
            paragraphs->AddTail();
            paragraphs->PeekTail()->setText(text);
        }
        document->setChanged(false);
    }

    Ref<CRtfParagraph> paragraph(int position) const { return paragraphs->Item(position); }

    /// What the cell's content gives, between the blank before it and "\cell".
    std::string contentText() const {
        const std::string text = cellsText();
        const std::size_t begin = text.find(' ', text.find("\\cellx")) + 1;
        const std::string end = "\\cell";
        return text.substr(begin, text.size() - begin - end.size());
    }

    Ref<CRtfTableCell> only = cell(1);
    Ref<CRtfParagraphs> paragraphs = only->Paragraphs();
};

/// True when the action marks the document changed.
template <class Action>
bool marksChanged(CRtfDoc& document, Action action) {
    document.setChanged(false);
    action();
    return document.Changed();
}

}  // namespace quorvane
