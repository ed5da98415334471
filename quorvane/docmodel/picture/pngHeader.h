#pragma once

#include <string_view>

#include "quorvane/docmodel/picture/pictureHeader.h"

namespace quorvane {

bool isPng(std::string_view bytes);

/// The header of a PNG file; see `readPictureHeader`.
PictureHeader readPngHeader(std::string_view bytes);

}  // namespace quorvane
