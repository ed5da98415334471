#pragma once

#include <algorithm>
#include <initializer_list>
#include <string>
#include <vector>

#include "quorvane/docmodel/CRtfDoc.h"
#include "tests/docmodel/documentParts.h"
#include "tests/support/FakePlatform.h"

namespace quorvane {

/// A document whose rows are made from the texts of their cells.
struct TextTable {
    Ref<CRtfTableRow> addRow(std::initializer_list<const char*> texts) const {
        document->TableRows()->AddTail();
        const Ref<CRtfTableRow> row = document->TableRows()->PeekTail();
        for (const char* text : texts) {
            row->TableCells()->AddTail();
            const Ref<CRtfParagraphs> paragraphs = row->TableCells()->PeekTail()->Paragraphs();
            paragraphs->AddTail();
            paragraphs->PeekTail()->setText(text);
        }
        return row;
    }

    Ref<CRtfTableRow> row(int position) const { return document->TableRows()->Item(position); }
    Ref<CRtfTableCell> cell(int row_, int position) const {
        return row(row_)->TableCells()->Item(position);
    }

    /// What stands between the page setup and the end of the document.
    std::string text() const { return rowsText(*document); }

    /// The definitions of the cells of each row, without the row's own words.
    std::vector<std::string> definitions() const {
        const std::string begin = "\\trleft0 ";
        const std::string rtf = text();
        std::vector<std::string> rows;
        for (std::size_t at = rtf.find(begin); at != std::string::npos; at = rtf.find(begin, at)) {
            at += begin.size();
            const std::size_t end = std::min(rtf.find(" \r\n", at), rtf.find(" \\pard", at));
            rows.push_back(rtf.substr(at, end - at));
        }
        return rows;
    }

    /// The description of the error that rendering raises; empty for none.
    std::string error() const {
        try {
            document->Refresh();
        } catch (const RtfError& error) {
            return std::to_string(error.number) + " " + error.description;
        }
        return {};
    }

    FakePlatform platform;
    Ref<CRtfDoc> document = CRtfDoc::create(platform);
};

/// The text of a row that has these words, definitions and contents of cells.
inline std::string rowText(const std::string& words, const std::string& definitions,
                           const std::string& contents) {
    return "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0" + words + definitions + contents +
           "\\row}";
}

/// The text of a cell with one paragraph.
inline std::string cellText(const std::string& text, const std::string& words = {}) {
    return " \r\n\r\n\r\n\\pard\\plain\\intbl" + words + " " + text + "\\cell";
}

}  // namespace quorvane
