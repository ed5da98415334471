#include "quorvane/formatting/ShownTexts.h"

#include "quorvane/base/text/trimming.h"
#include "quorvane/rtf/formattingWords.h"

namespace quorvane {

namespace {

// Of a group without an effect: the brace does not count.
constexpr char32_t transparent = 1;

}  // namespace

bool ShownTexts::areAlike(std::string_view rtf, std::string_view other) {
    return partsOf(rtf) == partsOf(other);
}

std::vector<ShownTexts::Shown> ShownTexts::partsOf(std::string_view rtf) {
    format_ = 0;
    parts_.clear();
    groups_.clear();
    RtfTextReader reader(rtf);
    while (const std::optional<RtfTextPart> part = reader.next()) {
        take(*part, rtf);
    }
    // Some words format the whole paragraph, also after its text.
    parts_.push_back({.format = format_});
    std::erase_if(parts_, [](const Shown& shown) {
        return shown.kind == RtfTextPart::Kind::Open && shown.code == transparent;
    });
    return std::move(parts_);
}

void ShownTexts::take(const RtfTextPart& part, std::string_view rtf) {
    const std::string_view written = rtf.substr(part.begin, part.end - part.begin);
    switch (part.kind) {
        case RtfTextPart::Kind::Character:
            parts_.push_back({.code = part.code, .format = format_});
            break;
        case RtfTextPart::Kind::Control:
            takeControl(part, trimBlanks(written));
            break;
        case RtfTextPart::Kind::Open:
            groups_.push_back({parts_.size(), format_});
            parts_.push_back({.kind = part.kind, .written = written, .format = format_});
            break;
        case RtfTextPart::Kind::Close:
            close(written);
            break;
    }
}

void ShownTexts::takeControl(const RtfTextPart& part, std::string_view written) {
    if (part.control.word == "cs") {
        return;
    }
    if (isFormattingWord(part.control.word)) {
        format_ = formatWith(written);
    } else {
        addOpaque({.kind = part.kind, .written = written, .format = format_});
    }
}

void ShownTexts::close(std::string_view written) {
    if (groups_.empty()) {
        addOpaque({.kind = RtfTextPart::Kind::Close, .written = written, .format = format_});
        return;
    }
    const OpenGroup group = groups_.back();
    groups_.pop_back();
    if (group.isTransparent) {
        parts_[group.position].code = transparent;
    } else {
        addOpaque({.kind = RtfTextPart::Kind::Close, .written = written, .format = format_});
    }
    format_ = group.formatBefore;
}

/// The group that holds it is not one that only formats.
void ShownTexts::addOpaque(const Shown& shown) {
    parts_.push_back(shown);
    if (!groups_.empty()) {
        groups_.back().isTransparent = false;
    }
}

ShownTexts::Format ShownTexts::formatWith(std::string_view word) {
    const auto next = static_cast<Format>(formats_.size()) + 1;
    return formats_.try_emplace({format_, std::string(word)}, next).first->second;
}

}  // namespace quorvane
