#pragma once

#include "quorvane/docmodel/references.h"

namespace quorvane {

class InnerDocument;
class InnerRows;
class InnerRow;
class InnerCells;
class InnerCell;
class InnerParagraphs;
class InnerParagraph;

// What a program holds is a `CRtfTableCell`; what it refers to is always an `InnerCell`, which adds
// the data, and so on for the others. How their references are counted: see `references.h`. The
// functions here are for where the inner class is only declared.

void retain(InnerRow* row) noexcept;
void release(InnerRow* row) noexcept;
void retainWeak(InnerRow* row) noexcept;
void releaseWeak(InnerRow* row) noexcept;
bool isAlive(const InnerRow* row) noexcept;

void retain(InnerCell* cell) noexcept;
void release(InnerCell* cell) noexcept;

}  // namespace quorvane
