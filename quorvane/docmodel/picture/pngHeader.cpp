#include "quorvane/docmodel/picture/pngHeader.h"

#include <array>
#include <cstddef>
#include <string>

#include "quorvane/docmodel/picture/ByteReader.h"
#include "quorvane/docmodel/picture/pictureErrors.h"

namespace quorvane {

namespace {

constexpr std::string_view signature("\x89PNG\r\n\x1A\n", 8);
constexpr std::size_t lengthSize = 4;
constexpr std::size_t typeSize = 4;
constexpr std::size_t checksumSize = 4;
constexpr double metersPerInch = 0.0254;

constexpr auto makeChecksumTable() {
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t byte = 0; byte < table.size(); ++byte) {
        std::uint32_t value = byte;
        for (int bit = 0; bit < 8; ++bit) {
            value = (value >> 1U) ^ ((value & 1U) != 0 ? 0xEDB88320U : 0U);
        }
        table[byte] = value;
    }
    return table;
}

constexpr std::array<std::uint32_t, 256> checksumTable = makeChecksumTable();

std::uint32_t checksumOf(std::string_view bytes) {
    std::uint32_t value = 0xFFFFFFFFU;
    for (const char byte : bytes) {
        value = checksumTable[(value ^ static_cast<unsigned char>(byte)) & 0xFFU] ^ value >> 8U;
    }
    return ~value;
}

/// Reads one chunk after the other.
class PngChunks {
public:
    explicit PngChunks(std::string_view bytes) : reader_(bytes) {}

    PictureHeader readAll() {
        do {
            readChunk();
        } while (type_ != "IEND");
        if (!hasImage_) {
            refusePicture("The PNG file has no image data.");
        }
        return header_;
    }

private:
    void readChunk() {
        const std::size_t length = reader_.number32(at_);
        const std::size_t data = at_ + lengthSize + typeSize;
        if (data + checksumSize > reader_.size() || length > reader_.size() - data - checksumSize) {
            refusePicture("The PNG file is cut off after " + std::to_string(reader_.size()) +
                          " bytes.");
        }
        type_ = reader_.bytes(at_ + lengthSize, typeSize);
        if (checksumOf(reader_.bytes(at_ + lengthSize, typeSize + length)) !=
            reader_.number32(data + length)) {
            refusePicture("The PNG file is damaged: wrong checksum of the data from byte " +
                          std::to_string(at_ + 1) + ".");
        }
        takeChunk(data, length);
        at_ = data + length + checksumSize;
    }

    void takeChunk(std::size_t data, std::size_t length) {
        if (header_.width == 0) {
            takeHeader(data, length);
        } else if (type_ == "pHYs" && length == 9 && reader_.byte(data + 8) == 1) {
            header_.horizontalResolution = reader_.number32(data) * metersPerInch;
            header_.verticalResolution = reader_.number32(data + 4) * metersPerInch;
        } else if (type_ == "IDAT") {
            hasImage_ = true;
        }
    }

    void takeHeader(std::size_t data, std::size_t length) {
        const std::uint32_t width = reader_.number32(data);
        const std::uint32_t height = reader_.number32(data + 4);
        if (type_ != "IHDR" || length != 13 || width == 0 || height == 0 || width > INT32_MAX ||
            height > INT32_MAX) {
            refusePicture("The PNG file is damaged: it does not begin with the size of an image.");
        }
        header_.width = static_cast<std::int32_t>(width);
        header_.height = static_cast<std::int32_t>(height);
    }

    ByteReader reader_;
    std::size_t at_ = signature.size();
    std::string_view type_;
    bool hasImage_ = false;
    PictureHeader header_{.format = PictureFormat::Png};
};

}  // namespace

bool isPng(std::string_view bytes) {
    return bytes.starts_with(signature);
}

PictureHeader readPngHeader(std::string_view bytes) {
    return PngChunks(bytes).readAll();
}

}  // namespace quorvane
