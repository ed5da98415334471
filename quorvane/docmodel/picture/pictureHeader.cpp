#include "quorvane/docmodel/picture/pictureHeader.h"

#include "quorvane/docmodel/picture/jpegHeader.h"
#include "quorvane/docmodel/picture/pictureErrors.h"
#include "quorvane/docmodel/picture/pngHeader.h"

namespace quorvane {

namespace {

// What programs assume where a file does not say it.
constexpr double usualResolution = 96;

PictureHeader headerByFormat(std::string_view bytes) {
    if (isPng(bytes)) {
        return readPngHeader(bytes);
    }
    if (isJpeg(bytes)) {
        return readJpegHeader(bytes);
    }
    refusePicture("The picture is neither a PNG nor a JPEG file.");
}

}  // namespace

PictureHeader readPictureHeader(std::string_view bytes) {
    PictureHeader header = headerByFormat(bytes);
    if (header.horizontalResolution <= 0 || header.verticalResolution <= 0) {
        header.horizontalResolution = usualResolution;
        header.verticalResolution = usualResolution;
    }
    return header;
}

}  // namespace quorvane
