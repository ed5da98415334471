#pragma once

#include <quorvane.h>

#include "capi/HandleError.h"
#include "capi/arguments.h"
#include "quorvane/compose/Document.h"

/// A document and its error.
struct quorvane_document {
    quorvane::Document document{};
    quorvane::Margins margins{};
    quorvane::capi::HandleError error{};
};

namespace quorvane::capi {

/// A combination of sides, or an error.
inline int sidesArgument(int sides) {
    if (sides <= 0 || sides > QUORVANE_ALL_SIDES) {
        throw CallError("The sides are not made of QUORVANE_LEFT, _RIGHT, _TOP and _BOTTOM.");
    }
    return sides;
}

/// Sets the borders of a row or a cell on some sides.
template <class Element>
void setBorders(const Element& element, int sides, int width) {
    const int wanted = sidesArgument(sides);
    const auto border = static_cast<tBorderWidth>(width);
    if (width != QUORVANE_BORDER_NONE && width <= 0) {
        throw CallError("A border is QUORVANE_BORDER_NONE or has a width above 0.");
    }
    if ((wanted & QUORVANE_LEFT) != 0) {
        element.setLeftBorder(border);
    }
    if ((wanted & QUORVANE_RIGHT) != 0) {
        element.setRightBorder(border);
    }
    if ((wanted & QUORVANE_TOP) != 0) {
        element.setTopBorder(border);
    }
    if ((wanted & QUORVANE_BOTTOM) != 0) {
        element.setBottomBorder(border);
    }
}

/// The alignment of an argument.
inline tCellAlign alignArgument(int align) {
    return static_cast<tCellAlign>(enumArgument(align, QUORVANE_ALIGN_JUSTIFIED, "align"));
}

/// Returns a number where the caller wants it.
inline void setResult(std::size_t* result, std::size_t value) {
    if (result) {
        *result = value;
    }
}

}  // namespace quorvane::capi
