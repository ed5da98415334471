#pragma once

namespace quorvane {

class CRtfDoc;
class CRtfTableRows;
class CRtfTableRow;
class CRtfTableCells;
class CRtfTableCell;
class CRtfParagraphs;
class CRtfParagraph;

// How references to the objects of a document are counted. An owner holds its children strongly, a
// child knows its owner weakly; a cell's paragraphs and a row's cells are part of their owner, so
// holding the collection holds the owner.

void retain(CRtfDoc* document) noexcept;
void release(CRtfDoc* document) noexcept;

void retain(CRtfTableRows* rows) noexcept;
void release(CRtfTableRows* rows) noexcept;

void retain(CRtfTableRow* row) noexcept;
void release(CRtfTableRow* row) noexcept;
void retainWeak(CRtfTableRow* row) noexcept;
void releaseWeak(CRtfTableRow* row) noexcept;
bool isAlive(const CRtfTableRow* row) noexcept;

void retain(CRtfTableCells* cells) noexcept;
void release(CRtfTableCells* cells) noexcept;

void retain(CRtfTableCell* cell) noexcept;
void release(CRtfTableCell* cell) noexcept;
void retainWeak(CRtfTableCell* cell) noexcept;
void releaseWeak(CRtfTableCell* cell) noexcept;
bool isAlive(const CRtfTableCell* cell) noexcept;

void retain(CRtfParagraphs* paragraphs) noexcept;
void release(CRtfParagraphs* paragraphs) noexcept;

void retain(CRtfParagraph* paragraph) noexcept;
void release(CRtfParagraph* paragraph) noexcept;

}  // namespace quorvane
