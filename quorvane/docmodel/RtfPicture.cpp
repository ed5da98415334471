#include "quorvane/docmodel/RtfPicture.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "quorvane/docmodel/picture/pictureErrors.h"
#include "quorvane/docmodel/picture/pictureHeader.h"

namespace quorvane {

namespace {

constexpr double twipsPerInch = 1440;

std::int32_t requiredSize(double twips, const char* side) {
    const double size = std::max(std::round(twips), 1.0);
    if (size > RtfPicture::largestSize) {
        refusePicture("The picture would be more than " + std::to_string(RtfPicture::largestSize) +
                      " twips " + side + ". Give it a smaller width or height.");
    }
    return static_cast<std::int32_t>(size);
}

void refuseNegative(std::int32_t twips, const char* side) {
    if (twips < 0) {
        refusePicture("A picture cannot be " + std::to_string(twips) + " twips " + side + ".");
    }
}

}  // namespace

RtfPicture::RtfPicture(std::string bytes, std::int32_t width, std::int32_t height) {
    refuseNegative(width, "wide");
    refuseNegative(height, "high");
    if (bytes.size() > largestFile) {
        refusePicture("The picture has " + std::to_string(bytes.size()) + " bytes. At most " +
                      std::to_string(largestFile) + " are possible.");
    }
    bytes_ = std::make_shared<const std::string>(std::move(bytes));
    setSize(width, height);
}

RtfPicture RtfPicture::resized(std::int32_t width, std::int32_t height) const {
    refuseNegative(width, "wide");
    refuseNegative(height, "high");
    RtfPicture picture = *this;
    picture.setSize(width, height);
    return picture;
}

void RtfPicture::setSize(std::int32_t width, std::int32_t height) {
    const PictureHeader header = readPictureHeader(*bytes_);
    const double naturalWidth = header.width * twipsPerInch / header.horizontalResolution;
    const double naturalHeight = header.height * twipsPerInch / header.verticalResolution;
    const double scale = width > 0 ? width / naturalWidth : height > 0 ? height / naturalHeight : 1;
    width_ = requiredSize(width > 0 ? width : naturalWidth * scale, "wide");
    height_ = requiredSize(height > 0 ? height : naturalHeight * scale, "high");
    isJpeg_ = header.format == PictureFormat::Jpeg;
    pixelWidth_ = header.width;
    pixelHeight_ = header.height;
}

}  // namespace quorvane
