#include "quorvane/base/text/utf8.h"

#include <cstddef>

namespace quorvane {

namespace {

unsigned byteAt(std::string_view text, std::size_t position) {
    return static_cast<unsigned char>(text[position]);
}

bool isAscii(unsigned byte) {
    return byte < 0x80;
}

constexpr std::size_t blockSize = 64;

// No branch in the loop, so that the compiler takes many bytes at a time.
bool isBlockAscii(const char* block) {
    unsigned char all = 0;
    for (std::size_t i = 0; i < blockSize; ++i) {
        all |= static_cast<unsigned char>(block[i]);
    }
    return isAscii(all);
}

// Bytes that a lead byte announces; 0 when it is not a lead byte.
std::size_t announcedLength(unsigned lead) {
    if (lead >= 0xC2 && lead <= 0xDF) {
        return 2;
    }
    if (lead >= 0xE0 && lead <= 0xEF) {
        return 3;
    }
    if (lead >= 0xF0 && lead <= 0xF4) {
        return 4;
    }
    return 0;
}

char32_t smallestCode(std::size_t length) {
    return length == 2 ? 0x80 : length == 3 ? 0x800 : 0x10000;
}

}  // namespace

Utf8Character utf8CharacterAt(std::string_view text, std::size_t position) {
    const unsigned lead = byteAt(text, position);
    if (isAscii(lead)) {
        return {lead, 1};
    }
    const Utf8Character stray{strayByte + lead, 1};
    const std::size_t length = announcedLength(lead);
    if (length == 0 || length > text.size() - position) {
        return stray;
    }
    char32_t code = lead & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const unsigned next = byteAt(text, position + i);
        if ((next & 0xC0) != 0x80) {
            return stray;
        }
        code = (code << 6) | (next & 0x3F);
    }
    if (code < smallestCode(length) || code >= strayByte) {
        return stray;
    }
    return {code, length};
}

void appendUtf8(char32_t code, std::string& text) {
    const auto append = [&text](char32_t byte) { text.push_back(static_cast<char>(byte)); };
    if (code < 0x80) {
        append(code);
    } else if (code < 0x800) {
        append(0xC0 | (code >> 6));
        append(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
        append(0xE0 | (code >> 12));
        append(0x80 | ((code >> 6) & 0x3F));
        append(0x80 | (code & 0x3F));
    } else if (code < strayByte) {
        append(0xF0 | (code >> 18));
        append(0x80 | ((code >> 12) & 0x3F));
        append(0x80 | ((code >> 6) & 0x3F));
        append(0x80 | (code & 0x3F));
    } else {
        append(code - strayByte);
    }
}

std::size_t characterCount(std::string_view text) {
    std::size_t count = 0;
    std::size_t position = 0;
    while (position < text.size()) {
        const std::size_t runEnd = asciiRunEnd(text, position);
        count += runEnd - position;
        position = runEnd;
        if (position < text.size()) {
            position += utf8CharacterAt(text, position).length;
            ++count;
        }
    }
    return count;
}

std::size_t asciiRunEnd(std::string_view text, std::size_t position) {
    // Many bytes at a time: most texts are nothing but ASCII, and some are very long.
    while (text.size() - position >= blockSize && isBlockAscii(text.data() + position)) {
        position += blockSize;
    }
    while (position < text.size() && isAscii(byteAt(text, position))) {
        ++position;
    }
    return position;
}

}  // namespace quorvane
