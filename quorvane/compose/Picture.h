#pragma once

#include <string>

#include "quorvane/base/platform/Platform.h"
#include "quorvane/compose/Length.h"
#include "quorvane/docmodel/RtfPicture.h"

namespace quorvane {

/// How large documents show a picture. With one length the picture keeps its proportions; with none
/// it has the size of its file, at 96 pixels an inch unless the file says otherwise.
struct PictureSize {
    Length width = 0;
    Length height = 0;
};

/// A PNG or JPEG picture for paragraphs. Copies share the bytes of the file.
class Picture {
public:
    /// Takes the bytes of a whole file. Error "wrong-value" for bytes that are not such a file, one
    /// that is damaged, cut off or longer than `RtfPicture::largestFile`, and a length below 0 or
    /// above `RtfPicture::largestSize`.
    explicit Picture(std::string bytes, const PictureSize& size = {});

    /// Reads a file. Error "unreadable-file", and those of the constructor; both name the file.
    static Picture fromFile(const std::string& path, const PictureSize& size = {},
                            Platform& platform = systemPlatform());

    /// Returns the picture as the object model has it.
    const RtfPicture& native() const noexcept { return picture_; }

private:
    RtfPicture picture_;
};

}  // namespace quorvane
