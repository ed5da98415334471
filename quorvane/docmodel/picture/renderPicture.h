#pragma once

#include "quorvane/base/text/TextOutput.h"
#include "quorvane/docmodel/RtfPicture.h"

namespace quorvane {

/// Writes the group of a picture.
void renderPicture(const RtfPicture& picture, TextOutput& out);

}  // namespace quorvane
