#pragma once

namespace quorvane {

class CRtfDoc;
class CRtfTableRows;
class CRtfTableRow;
class CRtfTableCells;
class CRtfTableCell;
class CRtfParagraphs;
class CRtfParagraph;

// How references to the objects of a document are counted. An owner holds its children.
//
// - A document, its rows and a row are owners that their children know weakly: a reference to a
// child
//   does not hold the owner. A row's cells are a part of the row, and a reference to them keeps its
//   memory only: when the row goes, they are empty.
// - A paragraph holds its cell while anything but the cell refers to it, and so does the cell's
//   collection of paragraphs, which is a part of the cell. The cell's own references to its
//   paragraphs do not count, so there is no cycle: cell and paragraphs go together with the last
//   reference from outside.

void retain(CRtfDoc* document) noexcept;
void release(CRtfDoc* document) noexcept;

void retain(CRtfTableRows* rows) noexcept;
void release(CRtfTableRows* rows) noexcept;

void retain(CRtfTableRow* row) noexcept;
void release(CRtfTableRow* row) noexcept;

void retain(CRtfTableCells* cells) noexcept;
void release(CRtfTableCells* cells) noexcept;

void retain(CRtfTableCell* cell) noexcept;
void release(CRtfTableCell* cell) noexcept;

void retain(CRtfParagraphs* paragraphs) noexcept;
void release(CRtfParagraphs* paragraphs) noexcept;

void retain(CRtfParagraph* paragraph) noexcept;
void release(CRtfParagraph* paragraph) noexcept;

}  // namespace quorvane
