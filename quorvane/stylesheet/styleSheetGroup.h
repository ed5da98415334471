#pragma once

#include <string>

#include "quorvane/stylesheet/StyleList.h"

namespace quorvane {

/// The text of the group of a document that lists its styles.
std::string styleSheetGroup(const StyleList& paragraphStyles, const StyleList& characterStyles,
                            const SheetForm& form);

}  // namespace quorvane
