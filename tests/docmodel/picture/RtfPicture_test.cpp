#include "quorvane/docmodel/RtfPicture.h"

#include <gtest/gtest.h>

#include "tests/docmodel/picture/pictureFiles.h"

namespace quorvane {
namespace {

std::string refusal(const std::string& bytes) {
    return errorOf([&] { RtfPicture picture(bytes); });
}

TEST(RtfPicture, HasTheSizeOfAPngFile) {
    const RtfPicture picture(twoPixels);

    EXPECT_FALSE(picture.IsJpeg());
    EXPECT_EQ(picture.PixelWidth(), 2);
    EXPECT_EQ(picture.PixelHeight(), 1);
    EXPECT_EQ(picture.Width(), 30);
    EXPECT_EQ(picture.Height(), 15);
    EXPECT_EQ(picture.Bytes(), twoPixels);
}

TEST(RtfPicture, HasTheSizeOfAJpegFile) {
    const RtfPicture picture(jpegOf(300, 200));

    EXPECT_TRUE(picture.IsJpeg());
    EXPECT_EQ(picture.PixelWidth(), 300);
    EXPECT_EQ(picture.PixelHeight(), 200);
    EXPECT_EQ(picture.Width(), 4500);
    EXPECT_EQ(picture.Height(), 3000);
}

TEST(RtfPicture, KnowsTheResolutionOfAPngFile) {
    const RtfPicture picture(pngOf(300, 150, pngResolution(11811, 5906)));

    EXPECT_EQ(picture.Width(), 1440);
    EXPECT_EQ(picture.Height(), 1440);
}

TEST(RtfPicture, IgnoresAResolutionThatIsOnlyAProportion) {
    EXPECT_EQ(RtfPicture(pngOf(96, 96, pngResolution(1, 1, 0))).Width(), 1440);
    EXPECT_EQ(RtfPicture(pngOf(96, 96, pngResolution(0, 0))).Width(), 1440);
    EXPECT_EQ(RtfPicture(jpegOf(96, 96, jpegResolution(0, 1, 1))).Width(), 1440);
    EXPECT_EQ(RtfPicture(jpegOf(96, 96, jpegResolution(1, 0, 0))).Width(), 1440);
}

TEST(RtfPicture, KnowsTheResolutionOfAJpegFile) {
    const RtfPicture inches(jpegOf(100, 100, jpegResolution(1, 100, 50)));
    const RtfPicture centimeters(jpegOf(100, 100, jpegResolution(2, 100, 50)));

    EXPECT_EQ(inches.Width(), 1440);
    EXPECT_EQ(inches.Height(), 2880);
    EXPECT_EQ(centimeters.Width(), 567);
    EXPECT_EQ(centimeters.Height(), 1134);
}

TEST(RtfPicture, KeepsItsProportions) {
    const RtfPicture wide(pngOf(200, 100), 1000);
    const RtfPicture high(pngOf(200, 100), 0, 1000);

    EXPECT_EQ(wide.Width(), 1000);
    EXPECT_EQ(wide.Height(), 500);
    EXPECT_EQ(high.Width(), 2000);
    EXPECT_EQ(high.Height(), 1000);
}

TEST(RtfPicture, TakesBothMeasures) {
    const RtfPicture picture(pngOf(200, 100), 1000, 1000);

    EXPECT_EQ(picture.Width(), 1000);
    EXPECT_EQ(picture.Height(), 1000);
}

TEST(RtfPicture, IsAtLeastOneTwipHighAndWide) {
    EXPECT_EQ(RtfPicture(pngOf(1000, 1), 100).Height(), 1);
    EXPECT_EQ(RtfPicture(pngOf(1, 1000), 0, 100).Width(), 1);
}

TEST(RtfPicture, TakesTheLargestSize) {
    EXPECT_EQ(RtfPicture(twoPixels, 32767, 32767).Height(), 32767);
}

TEST(RtfPicture, RefusesASizeThatIsTooLarge) {
    EXPECT_EQ(errorOf([] { RtfPicture picture(twoPixels, 32768, 1); }),
              "5 The picture would be more than 32767 twips wide. Give it a smaller width or "
              "height.");
    EXPECT_EQ(errorOf([] { RtfPicture picture(pngOf(1, 100'000)); }),
              "5 The picture would be more than 32767 twips high. Give it a smaller width or "
              "height.");
    EXPECT_EQ(refusal(pngOf(INT32_MAX, 1, pngResolution(1, UINT32_MAX))),
              "5 The picture would be more than 32767 twips wide. Give it a smaller width or "
              "height.");
    EXPECT_EQ(errorOf([] { RtfPicture(pngOf(1, INT32_MAX, pngResolution(UINT32_MAX, 1)), 32767); }),
              "5 The picture would be more than 32767 twips high. Give it a smaller width or "
              "height.");
}

TEST(RtfPicture, RefusesANegativeSize) {
    EXPECT_EQ(errorOf([] { RtfPicture picture(twoPixels, -1); }),
              "5 A picture cannot be -1 twips wide.");
    EXPECT_EQ(errorOf([] { RtfPicture picture(twoPixels, 0, -7); }),
              "5 A picture cannot be -7 twips high.");
}

TEST(RtfPicture, RefusesAFileThatIsTooLarge) {
    EXPECT_EQ(refusal(std::string(50'000'001, 'x')),
              "5 The picture has 50000001 bytes. At most 50000000 are possible.");
}

TEST(RtfPicture, RefusesOtherFiles) {
    EXPECT_EQ(refusal(""), "5 The picture is neither a PNG nor a JPEG file.");
    EXPECT_EQ(refusal("GIF89a"), "5 The picture is neither a PNG nor a JPEG file.");
    EXPECT_EQ(refusal(twoPixels.substr(1)), "5 The picture is neither a PNG nor a JPEG file.");
}

TEST(RtfPicture, RefusesAPngFileThatIsCutOffAnywhere) {
    for (std::size_t size = 8; size < twoPixels.size(); ++size) {
        ASSERT_EQ(refusal(twoPixels.substr(0, size)),
                  "5 The PNG file is cut off after " + std::to_string(size) + " bytes.");
    }
}

TEST(RtfPicture, RefusesAPngFileWithADamagedByteAnywhere) {
    for (std::size_t at = 0; at < twoPixels.size(); ++at) {
        std::string damaged = twoPixels;
        damaged[at] = static_cast<char>(damaged[at] ^ 1);
        ASSERT_NE(refusal(damaged), "") << at;
    }
    std::string damaged = twoPixels;
    damaged[45] = 'x';
    EXPECT_EQ(refusal(damaged),
              "5 The PNG file is damaged: wrong checksum of the data from byte 34.");
}

TEST(RtfPicture, RefusesAPngFileWithoutASize) {
    const std::string message =
        "5 The PNG file is damaged: it does not begin with the size of an image.";

    EXPECT_EQ(refusal(pngOf(0, 1)), message);
    EXPECT_EQ(refusal(pngOf(1, 0)), message);
    EXPECT_EQ(refusal(pngOf(0x80000000U, 1)), message);
    EXPECT_EQ(refusal("\x89PNG\r\n\x1A\n" + pngChunk("IDAT", "data")), message);
}

TEST(RtfPicture, RefusesAPngFileWithoutAnImage) {
    const std::string file = pngOf(1, 1);
    const std::size_t image = file.find("IDAT") - 4;

    EXPECT_EQ(refusal(file.substr(0, image) + pngChunk("IEND", "")),
              "5 The PNG file has no image data.");
}

TEST(RtfPicture, RefusesAJpegFileThatIsCutOffAnywhere) {
    const std::string file = jpegOf(10, 10, jpegResolution(1, 96, 96));
    for (std::size_t size = 3; size < file.size(); ++size) {
        ASSERT_EQ(refusal(file.substr(0, size)),
                  "5 The JPEG file is cut off after " + std::to_string(size) + " bytes.");
    }
}

TEST(RtfPicture, RefusesADamagedJpegFile) {
    const std::string begin = "\xFF\xD8";

    EXPECT_EQ(refusal(begin + jpegResolution(1, 96, 96) + "xx"),
              "5 The JPEG file is damaged at byte 21.");
    EXPECT_EQ(refusal(begin + std::string("\xFF\xE1\0\1", 4)),
              "5 The JPEG file is damaged at byte 5.");
    EXPECT_EQ(refusal(jpegOf(0, 1)), "5 The JPEG file is damaged at byte 5.");
    EXPECT_EQ(refusal(jpegOf(1, 0)), "5 The JPEG file is damaged at byte 5.");
    EXPECT_EQ(refusal(begin + jpegScan() + "\xFF\xD9"), "5 The JPEG file is damaged at byte 13.");
}

TEST(RtfPicture, RefusesAJpegFileWithoutAnImage) {
    EXPECT_EQ(refusal("\xFF\xD8" + jpegFrame(1, 1) + "\xFF\xD9"),
              "5 The JPEG file has no image data.");
}

TEST(RtfPicture, TakesAJpegFileOfSeveralScansWithFilledMarkers) {
    const std::string file = "\xFF\xD8\xFF\xFF" + jpegFrame(5, 6).substr(1) + "\xFF\x01" +
                             jpegScan() + jpegScan() + "\xFF\xFF\xD9 and more";

    EXPECT_EQ(RtfPicture(file).PixelHeight(), 6);
}

}  // namespace
}  // namespace quorvane
