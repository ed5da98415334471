#include "data/recordsText.h"

#include <optional>
#include <utility>

#include "data/recordsSource.h"
#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/text/utf16.h"
#include "quorvane/base/text/utf8.h"

namespace quorvane::data {

namespace {

constexpr std::size_t blockSize = std::size_t{64} * 1024;
constexpr std::string_view utf16LittleMark = "\xFF\xFE";
constexpr std::string_view utf16BigMark = "\xFE\xFF";

/// True if more bytes could make a character of these.
bool mayGoOn(std::string_view bytes) {
    const auto first = static_cast<unsigned char>(bytes.front());
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : first >= 0xC2 ? 2 : 1;
    if (bytes.size() >= length) {
        return false;
    }
    for (const char byte : bytes.substr(1)) {
        if ((static_cast<unsigned char>(byte) & 0xC0U) != 0x80U) {
            return false;
        }
    }
    return true;
}

bool isHighSurrogate(char16_t unit) {
    return (unit & 0xFC00) == 0xD800;
}

}  // namespace

RecordsText::RecordsText(BlockReader read, EncodingChoice choice)
    : read_(std::move(read)),
      form_(choice == EncodingChoice::Auto   ? Form::Unknown
            : choice == EncodingChoice::Utf8 ? Form::Utf8
                                             : Form::Windows1252) {}

bool RecordsText::readMore() {
    readBlock();
    const bool isAtEnd = block_.empty();
    if (isAtStart_) {
        findMark();
        isAtStart_ = false;
    }
    block_.insert(0, rest_);
    rest_.clear();
    if (isAtEnd) {
        requireWholeUtf16();
        // What is left is the first part of a character in UTF-8, or a whole one otherwise.
        text_ += form_ == Form::Unknown ? utf8FromCodePage1252(block_) : block_;
        return !block_.empty();
    }
    append(block_);
    return true;
}

void RecordsText::requireWholeUtf16() const {
    const bool isUtf16 = form_ == Form::Utf16Little || form_ == Form::Utf16Big;
    if (isUtf16 && !block_.empty()) {
        throw RecordError(0,
                          "The file ends in the middle of a character: it is not whole. Copy or "
                          "export it again.",
                          false);
    }
}

/// A pipe has fewer bytes at a time, which would not show the encoding.
void RecordsText::readBlock() {
    block_.resize(blockSize);
    std::size_t size = 0;
    while (size < block_.size()) {
        const std::size_t count = read_(std::span(block_).subspan(size));
        if (count == 0) {
            break;
        }
        size += count;
    }
    block_.resize(size);
}

void RecordsText::discardBefore(std::size_t& position) {
    if (position >= blockSize) {
        discard(position);
        position = 0;
    }
}

void RecordsText::findMark() {
    const std::string_view block = block_;
    if (block.starts_with(utf8Mark)) {
        form_ = Form::Utf8;
        block_.erase(0, utf8Mark.size());
    } else if (block.starts_with(utf16LittleMark) || block.starts_with(utf16BigMark)) {
        form_ = block.starts_with(utf16LittleMark) ? Form::Utf16Little : Form::Utf16Big;
        block_.erase(0, utf16LittleMark.size());
    }
}

void RecordsText::append(std::string_view block) {
    switch (form_) {
        case Form::Unknown:
            appendUndecided(block);
            break;
        case Form::Utf8:
            text_ += block;
            break;
        case Form::Windows1252:
            text_ += utf8FromCodePage1252(block);
            break;
        default:
            appendUtf16(block);
            break;
    }
}

/// Both encodings have the same ASCII, so the first other characters decide.
void RecordsText::appendUndecided(std::string_view block) {
    const std::optional<std::size_t> wrong = findNotUtf8(block);
    if (wrong && mayGoOn(block.substr(*wrong))) {
        const std::string_view whole = block.substr(0, *wrong);
        rest_ = block.substr(*wrong);
        form_ = asciiRunEnd(whole, 0) < whole.size() ? Form::Utf8 : Form::Unknown;
        text_ += whole;
        return;
    }
    if (asciiRunEnd(block, 0) < block.size()) {
        form_ = wrong ? Form::Windows1252 : Form::Utf8;
        append(block);
    } else {
        text_ += block;
    }
}

void RecordsText::appendUtf16(std::string_view block) {
    const std::size_t high = form_ == Form::Utf16Big ? 0 : 1;
    std::u16string units;
    units.reserve(block.size() / 2);
    for (std::size_t at = 0; at + 1 < block.size(); at += 2) {
        units += static_cast<char16_t>((static_cast<unsigned char>(block[at + high]) << 8U) |
                                       static_cast<unsigned char>(block[at + 1 - high]));
    }
    std::size_t whole = units.size();
    if (whole > 0 && isHighSurrogate(units.back())) {
        --whole;
    }
    rest_ = block.substr(2 * whole);
    text_ += utf8FromUtf16(std::u16string_view(units).substr(0, whole));
}

}  // namespace quorvane::data
