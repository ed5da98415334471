#include "quorvane/driver/LiteralParagraphs.h"

#include <string_view>

#include "quorvane/driver/extendedValues.h"
#include "quorvane/driver/literalText.h"
#include "quorvane/driver/rawRtf.h"
#include "quorvane/driver/soundLeaf.h"
#include "quorvane/driver/withoutFullStop.h"

namespace quorvane {

void LiteralParagraphs::fill(CRtfParagraph& paragraph, DescriptionNode& node) {
    setText(paragraph, node);
    setPicture(paragraph, node);
}

/// Raw control words come before the text, so that they can format it.
void LiteralParagraphs::setText(CRtfParagraph& paragraph, DescriptionNode& node) {
    std::string rtf;
    const auto append = [&](DescriptionKey key, auto text) {
        if (Leaf* const leaf = soundLeaf(node, key)) {
            apply_(*leaf, [&](const Leaf&) { rtf += text(*leaf); });
        }
    };
    append(DescriptionKey::Rtf, [](const Leaf& leaf) { return rawRtf(leaf.text); });
    append(DescriptionKey::ParaText, [this](const Leaf& leaf) {
        return literalText(
            shownText(leaf),
            [this](std::string_view name) { return document_.GetCharacterStyle(name); },
            leaf.data());
    });
    if (!rtf.empty()) {
        paragraph.setText(rtf);
    }
}

void LiteralParagraphs::setPicture(CRtfParagraph& paragraph, DescriptionNode& node) {
    std::int32_t width = 0;
    std::int32_t height = 0;
    const auto read = [&](DescriptionKey key, std::int32_t& size) {
        if (Leaf* const leaf = soundLeaf(node, key)) {
            apply_(*leaf, [&](const Leaf&) {
                if (!contains(node.keys, DescriptionKey::Picture)) {
                    throw LeafError(DriverFault::WrongValue, "There is no picture for this size");
                }
                size = lengthFrom(1, leaf->text);
            });
        }
    };
    read(DescriptionKey::PictureWidth, width);
    read(DescriptionKey::PictureHeight, height);
    Leaf* const leaf = soundLeaf(node, DescriptionKey::Picture);
    if (leaf && pictures_) {
        apply_(*leaf, [&](const Leaf&) {
            paragraph.setPicture(pictureNamed(std::string(leaf->text), width, height));
        });
    }
}

RtfPicture LiteralParagraphs::pictureNamed(const std::string& name, std::int32_t width,
                                           std::int32_t height) {
    try {
        if (const auto read = picturesRead_.find(name); read != picturesRead_.end()) {
            return read->second.resized(width, height);
        }
        return picturesRead_.try_emplace(name, pictures_(name), width, height).first->second;
    } catch (const RtfError& error) {
        throw LeafError(DriverFault::WrongPicture,
                        name + ": " + std::string(withoutFullStop(error.description)));
    }
}

/// The text of a leaf, whose value may go on over several lines.
std::string LiteralParagraphs::shownText(const Leaf& leaf) const {
    const std::string_view mark = dialect_.marks.block;
    return !leaf.filled && leaf.text.starts_with(mark) ? blockText(leaf.text, mark)
                                                       : std::string(leaf.text);
}

}  // namespace quorvane
