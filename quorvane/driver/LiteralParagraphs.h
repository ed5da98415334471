#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <utility>

#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/docmodel/CRtfParagraph.h"
#include "quorvane/driver/Dialect.h"
#include "quorvane/driver/LeafApplication.h"
#include "quorvane/driver/PictureSource.h"

namespace quorvane {

/// Fills paragraphs with what a language with literal texts has for them: raw control words, the
/// text, and a picture.
class LiteralParagraphs {
public:
    /// All that is given must outlive the object. Without a source, pictures are left out.
    LiteralParagraphs(const CRtfDoc& document, const Dialect& dialect, PictureSource pictures,
                      LeafApplication& apply)
        : document_(document), dialect_(dialect), pictures_(std::move(pictures)), apply_(apply) {}

    void fill(CRtfParagraph& paragraph, DescriptionNode& node);

private:
    void setText(CRtfParagraph& paragraph, DescriptionNode& node);
    void setPicture(CRtfParagraph& paragraph, DescriptionNode& node);
    RtfPicture pictureNamed(const std::string& name, std::int32_t width, std::int32_t height);
    std::string shownText(const Leaf& leaf) const;

    const CRtfDoc& document_;
    const Dialect& dialect_;
    PictureSource pictures_;
    LeafApplication& apply_;
    // Those that were read, by their names: a logo can stand in every row.
    std::map<std::string, RtfPicture> picturesRead_;
};

}  // namespace quorvane
