#pragma once

/// The modern interface of the library: documents from rows, cells and paragraphs (`Document`),
/// from descriptions (`render`), and long tables, row by row (`TableWriter`).

#include "quorvane/compose/Document.h"
#include "quorvane/compose/Error.h"
#include "quorvane/compose/Picture.h"
#include "quorvane/compose/TableWriter.h"
#include "quorvane/compose/Text.h"
#include "quorvane/compose/render.h"
#include "quorvane/diagnostics/engine/diagnosticRules.h"
#include "quorvane/diagnostics/stylesheet/StyleSheetCheck.h"
#include "quorvane/formatting/formatDescription.h"
#include "quorvane/formatting/formatStyleSheet.h"
