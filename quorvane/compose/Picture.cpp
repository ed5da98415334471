#include "quorvane/compose/Picture.h"

#include <utility>

#include "quorvane/compose/composing.h"
#include "quorvane/compose/readWholeFile.h"

namespace quorvane {

Picture::Picture(std::string bytes, const PictureSize& size)
    : picture_(composing(
          [&] { return RtfPicture(std::move(bytes), size.width.twips(), size.height.twips()); })) {}

Picture Picture::fromFile(const std::string& path, const PictureSize& size, Platform& platform) {
    std::string bytes = readWholeFile(path, platform);
    try {
        return Picture(std::move(bytes), size);
    } catch (const Error& error) {
        throw Error({.message = error.message(), .identifier = error.identifier(), .file = path});
    }
}

}  // namespace quorvane
