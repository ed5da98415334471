#include "quorvane/docmodel/picture/renderPicture.h"

#include "quorvane/base/text/hexadecimal.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace quorvane {

namespace {

constexpr std::size_t bytesOfALine = 64;
constexpr std::string_view lineEnd = "\r\n";

/// Writes lines of hexadecimal digits, without memory for more than one.
void renderHexadecimal(std::string_view bytes, TextOutput& out) {
    constexpr std::string_view digits = lowerHexadecimalDigits;
    std::array<char, lineEnd.size() + 2 * bytesOfALine> line;
    char* const begin = std::copy(lineEnd.begin(), lineEnd.end(), line.data());
    for (std::size_t at = 0; at < bytes.size(); at += bytesOfALine) {
        char* end = begin;
        for (const char byte : bytes.substr(at, bytesOfALine)) {
            const auto value = static_cast<unsigned char>(byte);
            *end++ = digits[value >> 4U];
            *end++ = digits[value & 0xFU];
        }
        out << std::string_view(line.data(), static_cast<std::size_t>(end - line.data()));
    }
}

}  // namespace

void renderPicture(const RtfPicture& picture, TextOutput& out) {
    out << (picture.IsJpeg() ? R"({\pict\jpegblip)" : R"({\pict\pngblip)");
    out << "\\picw" << picture.PixelWidth() << "\\pich" << picture.PixelHeight() << "\\picwgoal"
        << picture.Width() << "\\pichgoal" << picture.Height();
    renderHexadecimal(picture.Bytes(), out);
    out << "}";
}

}  // namespace quorvane
