#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tests/support/errorNumberOf.h"

namespace quorvane {

/// A PNG file of two red pixels beside each other.
inline const std::string twoPixels(
    "\x89PNG\r\n\x1A\n"
    "\0\0\0\x0DIHDR\0\0\0\x02\0\0\0\x01\x08\x02\0\0\0\x7B\x40\xE8\xDD"
    "\0\0\0\x0DIDAT\x78\xDA\x63\xF8\xCF\xC0\0\x44\0\x08\xFE\x01\xFF\x19\xC0\x6B\xE7"
    "\0\0\0\0IEND\xAE\x42\x60\x82",
    70);

/// The checksum of PNG files, bit by bit.
inline std::uint32_t pngChecksum(std::string_view bytes) {
    std::uint32_t value = 0xFFFFFFFFU;
    for (const char byte : bytes) {
        value ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            value = (value & 1U) != 0 ? value >> 1U ^ 0xEDB88320U : value >> 1U;
        }
    }
    return ~value;
}

inline std::string bigEndian(std::uint32_t number) {
    std::string bytes;
    for (int shift = 24; shift >= 0; shift -= 8) {
        bytes += static_cast<char>(number >> shift & 0xFFU);
    }
    return bytes;
}

inline std::string pngChunk(const std::string& type, const std::string& data) {
    return bigEndian(static_cast<std::uint32_t>(data.size())) + type + data +
           bigEndian(pngChecksum(type + data));
}

/// A PNG file of this size, whose image data nobody decodes. What is added stands before that.
inline std::string pngOf(std::uint32_t width, std::uint32_t height, const std::string& added = {}) {
    return "\x89PNG\r\n\x1A\n" +
           pngChunk("IHDR",
                    bigEndian(width) + bigEndian(height) + std::string("\x08\x02\0\0\0", 5)) +
           added + pngChunk("IDAT", "data") + pngChunk("IEND", "");
}

/// The chunk that says how many pixels a meter has.
inline std::string pngResolution(std::uint32_t horizontal, std::uint32_t vertical, char unit = 1) {
    return pngChunk("pHYs", bigEndian(horizontal) + bigEndian(vertical) + unit);
}

/// The segment of a JPEG file with this data.
inline std::string jpegSegment(char marker, const std::string& data) {
    const std::size_t length = data.size() + 2;
    return std::string("\xFF") + marker + static_cast<char>(length >> 8U) +
           static_cast<char>(length & 0xFFU) + data;
}

/// The segment that says the resolution; unit 1 is the inch, 2 the centimeter.
inline std::string jpegResolution(char unit, char horizontal, char vertical) {
    return jpegSegment('\xE0', std::string("JFIF\0\x01\x02", 7) + unit + '\0' + horizontal + '\0' +
                                   vertical + std::string(2, '\0'));
}

inline std::string jpegFrame(std::uint16_t width, std::uint16_t height) {
    return jpegSegment('\xC0', '\x08' + bigEndian(height).substr(2) + bigEndian(width).substr(2) +
                                   std::string("\x01\x01\x11\0", 4));
}

inline std::string jpegScan() {
    return jpegSegment('\xDA', std::string("\x01\x01\0\0\x3F\0", 6)) +
           std::string("da\xFF\0ta\xFF\xD0more", 12);
}

/// A JPEG file of this size, whose image data nobody decodes.
inline std::string jpegOf(std::uint16_t width, std::uint16_t height,
                          const std::string& added = {}) {
    return "\xFF\xD8" + added + jpegFrame(width, height) + jpegScan() + "\xFF\xD9";
}

/// The error that a call raises, with its number; empty if it raises none.
template <class Call>
std::string errorOf(const Call& call) {
    try {
        call();
    } catch (const RtfError& error) {
        return std::to_string(error.number) + " " + error.description;
    }
    return {};
}

}  // namespace quorvane
