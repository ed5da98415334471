#include "quorvane/docmodel/picture/jpegHeader.h"

#include <cstddef>
#include <string>

#include "quorvane/docmodel/picture/ByteReader.h"
#include "quorvane/docmodel/picture/pictureErrors.h"

namespace quorvane {

namespace {

constexpr std::uint32_t markerBegin = 0xFF;
constexpr std::uint32_t endOfImage = 0xD9;
constexpr std::uint32_t startOfScan = 0xDA;
constexpr std::uint32_t application0 = 0xE0;
constexpr double centimetersPerInch = 2.54;

bool isFrame(std::uint32_t marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

bool isRestart(std::uint32_t marker) {
    return marker >= 0xD0 && marker <= 0xD7;
}

/// True for a marker that no length and data follow.
bool standsAlone(std::uint32_t marker) {
    return isRestart(marker) || marker == 0x01;
}

/// Reads one segment after the other.
class JpegSegments {
public:
    explicit JpegSegments(std::string_view bytes) : reader_(bytes) {}

    PictureHeader readAll() {
        for (std::uint32_t marker = readMarker(); marker != endOfImage; marker = readMarker()) {
            if (!standsAlone(marker)) {
                readSegment(marker);
            }
        }
        if (!hasScan_) {
            refusePicture("The JPEG file has no image data.");
        }
        return header_;
    }

private:
    [[noreturn]] void refuseCutOff() const {
        refusePicture("The JPEG file is cut off after " + std::to_string(reader_.size()) +
                      " bytes.");
    }

    [[noreturn]] void refuseDamaged() const {
        refusePicture("The JPEG file is damaged at byte " + std::to_string(at_ + 1) + ".");
    }

    std::uint32_t readMarker() {
        if (at_ >= reader_.size()) {
            refuseCutOff();
        }
        if (reader_.byte(at_) != markerBegin) {
            refuseDamaged();
        }
        // Any number of these bytes can stand before a marker.
        while (reader_.byte(at_) == markerBegin) {
            ++at_;
        }
        if (at_ >= reader_.size()) {
            refuseCutOff();
        }
        return reader_.byte(at_++);
    }

    void readSegment(std::uint32_t marker) {
        const std::size_t length = reader_.number16(at_);
        if (at_ + 2 > reader_.size() || length > reader_.size() - at_) {
            refuseCutOff();
        }
        if (length < 2) {
            refuseDamaged();
        }
        if (isFrame(marker)) {
            takeFrame(length);
        } else if (marker == application0) {
            takeResolution(length);
        }
        at_ += length;
        if (marker == startOfScan) {
            if (header_.width == 0) {
                refuseDamaged();
            }
            hasScan_ = true;
            skipScan();
        }
    }

    void takeFrame(std::size_t length) {
        header_.height = static_cast<std::int32_t>(reader_.number16(at_ + 3));
        header_.width = static_cast<std::int32_t>(reader_.number16(at_ + 5));
        if (length < 8 || header_.width == 0 || header_.height == 0) {
            refuseDamaged();
        }
    }

    void takeResolution(std::size_t length) {
        const double horizontal = reader_.number16(at_ + 10);
        const double vertical = reader_.number16(at_ + 12);
        if (length < 16 || reader_.bytes(at_ + 2, 5) != std::string_view("JFIF\0", 5)) {
            return;
        }
        const std::uint32_t unit = reader_.byte(at_ + 9);
        if (unit == 1 || unit == 2) {
            const double perInch = unit == 1 ? 1 : centimetersPerInch;
            header_.horizontalResolution = horizontal * perInch;
            header_.verticalResolution = vertical * perInch;
        }
    }

    /// Passes over the data of the image, up to the next marker.
    void skipScan() {
        while (at_ < reader_.size()) {
            if (reader_.byte(at_) == markerBegin) {
                const std::uint32_t next = reader_.byte(at_ + 1);
                if (next != 0 && !isRestart(next)) {
                    return;
                }
            }
            ++at_;
        }
        refuseCutOff();
    }

    ByteReader reader_;
    // After the marker that begins the file.
    std::size_t at_ = 2;
    bool hasScan_ = false;
    PictureHeader header_{.format = PictureFormat::Jpeg};
};

}  // namespace

bool isJpeg(std::string_view bytes) {
    return bytes.starts_with("\xFF\xD8\xFF");
}

PictureHeader readJpegHeader(std::string_view bytes) {
    return JpegSegments(bytes).readAll();
}

}  // namespace quorvane
