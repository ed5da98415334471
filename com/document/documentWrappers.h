#pragma once

#include <windows.h>

#include <oleauto.h>

#include <cstddef>

#include "com/document/DocumentState.h"
#include "com/document/ReportedDiagnostics.h"
#include "quorvane/compose/Cell.h"
#include "quorvane/compose/Paragraph.h"
#include "quorvane/compose/Row.h"
#include "quorvaneInterfaces.h"

namespace quorvane::com {

/// The rows of a document, the cells of a row and the paragraphs of a cell, for `give`.
struct RowsOf {
    Ref<DocumentState> state;
};
struct CellsOf {
    Row row;
};
struct ParagraphsOf {
    Cell cell;
};

// Writes the COM object that stands for a part of a document, counted for the caller.

void give(::_DocumentRows** result, const RowsOf& rows);
void give(::_DocumentRow** result, const Row& row);
void give(::_DocumentCells** result, const CellsOf& cells);
void give(::_DocumentCell** result, const Cell& cell);
void give(::_DocumentParagraphs** result, const ParagraphsOf& paragraphs);
void give(::_DocumentParagraph** result, const Paragraph& paragraph);
void give(::_DocumentDiagnostics** result, const Ref<ReportedDiagnostics>& diagnostics);
void give(::_DocumentDiagnostic** result, const Ref<ReportedDiagnostic>& diagnostic);

/// Writes a number of elements, or of an element; from 1.
inline void give(LONG* result, std::size_t number) {
    *result = static_cast<LONG>(number);
}

}  // namespace quorvane::com
