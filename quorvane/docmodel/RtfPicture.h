#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace quorvane {

/// A picture for a paragraph (`CRtfParagraph::setPicture`): a PNG or JPEG file and the size at
/// which documents show it. Copies share the bytes of the file.
class RtfPicture {
public:
    /// The largest file, in bytes, and the largest width and height, in twips.
    static constexpr std::size_t largestFile = 50'000'000;
    static constexpr std::int32_t largestSize = 32767;

    /// Takes the bytes of a whole PNG or JPEG file, and the width and the height in twips. With 0
    /// for one of them, the picture keeps its proportions. With 0 for both, it has the size that
    /// follows from its pixels and its resolution: that of the file (pHYs in PNG, JFIF in JPEG), or
    /// 96 pixels per inch where there is none.
    ///
    /// Error 5 for bytes that are not such a file, a file that is damaged or cut off, more than
    /// `largestFile` bytes, and a size below 0 or above `largestSize`. The description says which.
    explicit RtfPicture(std::string bytes, std::int32_t width = 0, std::int32_t height = 0);

    /// Returns the same picture with another size, given as for the constructor. Error 5 for a
    /// size below 0 or above `largestSize`.
    RtfPicture resized(std::int32_t width, std::int32_t height) const;

    /// Returns the width and the height in twips, at least 1.
    std::int32_t Width() const noexcept { return width_; }
    std::int32_t Height() const noexcept { return height_; }

    /// Returns the width and the height in pixels, at least 1.
    std::int32_t PixelWidth() const noexcept { return pixelWidth_; }
    std::int32_t PixelHeight() const noexcept { return pixelHeight_; }

    /// Returns whether the file is a JPEG file; otherwise it is a PNG file.
    bool IsJpeg() const noexcept { return isJpeg_; }

    /// Returns the bytes of the file.
    const std::string& Bytes() const noexcept { return *bytes_; }

private:
    void setSize(std::int32_t width, std::int32_t height);

    std::shared_ptr<const std::string> bytes_;
    bool isJpeg_ = false;
    std::int32_t pixelWidth_ = 0;
    std::int32_t pixelHeight_ = 0;
    std::int32_t width_ = 0;
    std::int32_t height_ = 0;
};

}  // namespace quorvane
