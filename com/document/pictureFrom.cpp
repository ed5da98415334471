#include "com/document/pictureFrom.h"

#include "com/document/scriptValues.h"
#include "com/hostText.h"

namespace quorvane::com {

Picture pictureFrom(BSTR path, const VARIANT* width, const VARIANT* height) {
    return Picture::fromFile(textOf(path), {lengthOf(width, 0), lengthOf(height, 0)});
}

}  // namespace quorvane::com
