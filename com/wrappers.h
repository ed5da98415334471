#pragma once

#include "quorvane/base/memory/Ref.h"
#include "quorvane/docmodel/references.h"
#include "quorvaneInterfaces.h"

namespace quorvane::com {

// The interface of the COM object that stands for an object of a document, counted for the caller;
// null for null.

::_CRtfDoc* wrap(Ref<CRtfDoc> document);
::_CRtfTableRows* wrap(Ref<CRtfTableRows> rows);
::_CRtfTableRow* wrap(Ref<CRtfTableRow> row);
::_CRtfTableCells* wrap(Ref<CRtfTableCells> cells);
::_CRtfTableCell* wrap(Ref<CRtfTableCell> cell);
::_CRtfParagraphs* wrap(Ref<CRtfParagraphs> paragraphs);
::_CRtfParagraph* wrap(Ref<CRtfParagraph> paragraph);

}  // namespace quorvane::com
