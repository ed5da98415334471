#pragma once

#include <string>

#include "quorvane/base/values/Value.h"
#include "quorvane/docmodel/TableDocument.h"

namespace quorvane {

/// The digits of a marked field's data, see `GTextMarkedFields::fieldData`. The characters that are
/// lost are reported to the document; null for none.
std::string markedFieldData(const Value& data, TableDocument* document);

}  // namespace quorvane
