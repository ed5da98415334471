#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/docmodel/CRtfParagraph.h"
#include "quorvane/driver/Dialect.h"
#include "quorvane/driver/LeafApplication.h"
#include "quorvane/driver/PictureSource.h"
#include "quorvane/driver/literalText.h"

namespace quorvane {

/// Fills paragraphs with what a language with literal texts has for them: raw control words, the
/// text, and a picture.
class LiteralParagraphs {
public:
    /// All that is given must outlive the object. Without a source, pictures are left out.
    LiteralParagraphs(const CRtfDoc& document, const Dialect& dialect, PictureSource pictures,
                      LeafApplication& apply)
        : dialect_(dialect),
          pictures_(std::move(pictures)),
          apply_(apply),
          wordsOf_(
              [&document](std::string_view name) { return document.GetCharacterStyle(name); }) {}
    LiteralParagraphs(const LiteralParagraphs&) = delete;
    LiteralParagraphs& operator=(const LiteralParagraphs&) = delete;

    void fill(CRtfParagraph& paragraph, DescriptionNode& node);

private:
    void setText(CRtfParagraph& paragraph, DescriptionNode& node);
    void setPicture(CRtfParagraph& paragraph, DescriptionNode& node);
    RtfPicture pictureNamed(const std::string& name, std::int32_t width, std::int32_t height);
    void appendText(const Leaf& leaf);

    const Dialect& dialect_;
    PictureSource pictures_;
    LeafApplication& apply_;
    CharacterStyleWords wordsOf_;
    // The text of one paragraph. It keeps its memory for the next one.
    std::string rtf_;
    // Those that were read, by their names: a logo can stand in every row.
    std::map<std::string, RtfPicture> picturesRead_;
};

}  // namespace quorvane
