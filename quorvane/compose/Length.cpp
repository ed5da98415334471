#include "quorvane/compose/Length.h"

#include "quorvane/compose/composing.h"
#include "quorvane/driver/extendedValues.h"

namespace quorvane {

Length::Length(std::string_view text) : twips_(composing([&] { return lengthOf(text); })) {}

}  // namespace quorvane
