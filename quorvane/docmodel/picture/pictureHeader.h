#pragma once

#include <cstdint>
#include <string_view>

namespace quorvane {

enum class PictureFormat : std::uint8_t { Png, Jpeg };

/// What a picture file says about itself.
struct PictureHeader {
    PictureFormat format = PictureFormat::Png;
    /// In pixels, at least 1.
    std::int32_t width = 0;
    std::int32_t height = 0;
    /// Pixels of an inch.
    double horizontalResolution = 0;
    double verticalResolution = 0;
};

/// Reads the header of a PNG or JPEG file, and the file's structure to its end. Error 5 with a
/// description if it is neither, or is damaged or cut off.
PictureHeader readPictureHeader(std::string_view bytes);

}  // namespace quorvane
