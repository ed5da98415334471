#include "quorvane/driver/LiteralParagraphs.h"

#include <cstddef>

#include "quorvane/driver/extendedValues.h"
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
    rtf_.clear();
    if (Leaf* const raw = soundLeaf(node, DescriptionKey::Rtf)) {
        apply_(*raw, [this](const Leaf& leaf) { rtf_ += rawRtf(leaf.text); });
    }
    const std::size_t rawEnd = rtf_.size();
    Leaf* const text = soundLeaf(node, DescriptionKey::ParaText);
    if (text && !apply_(*text, [this](const Leaf& leaf) { appendText(leaf); })) {
        rtf_.resize(rawEnd);
    }
    if (!rtf_.empty()) {
        paragraph.setText(rtf_);
    }
}

void LiteralParagraphs::appendText(const Leaf& leaf) {
    // In a value that is filled, the marks are text.
    if (!leaf.filled && dialect_.marks.beginsBlock(leaf.text)) {
        appendLiteralText(blockText(leaf.text, dialect_.marks.block), wordsOf_, rtf_);
    } else {
        appendLiteralText(leaf.text, wordsOf_, rtf_, leaf.data());
    }
}

void LiteralParagraphs::setPicture(CRtfParagraph& paragraph, DescriptionNode& node) {
    constexpr KeySet keys = setOf(
        {DescriptionKey::Picture, DescriptionKey::PictureWidth, DescriptionKey::PictureHeight});
    if ((node.keys & keys) == 0) {
        return;
    }
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

}  // namespace quorvane
