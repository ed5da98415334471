#pragma once

#include <quorvane.h>

#include <string_view>

#include "quorvane/compose/Document.h"

namespace quorvane::capi {

/// Writes a document through a callback.
void writeDocument(Document& document, quorvane_write_callback write, void* user);

}  // namespace quorvane::capi
