#pragma once

#include <string_view>

#include "quorvane/docmodel/picture/pictureHeader.h"

namespace quorvane {

bool isJpeg(std::string_view bytes);

/// The header of a JPEG file; see `readPictureHeader`.
PictureHeader readJpegHeader(std::string_view bytes);

}  // namespace quorvane
