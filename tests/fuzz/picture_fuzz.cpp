// Any bytes as a picture: they are refused with error 5, or give a document that holds exactly
// these bytes and that the check of RTF files finds nothing in. One input in two is made a PNG file
// with right checksums, so that more of them are taken.

#include <cstddef>
#include <cstdint>
#include <string>

#include "quorvane/diagnostics/rtf/RtfCheck.h"
#include "quorvane/docmodel/CRtfParagraph.h"
#include "quorvane/docmodel/CRtfParagraphs.h"
#include "quorvane/docmodel/CRtfTableCell.h"
#include "quorvane/docmodel/RtfPicture.h"
#include "tests/docmodel/picture/pictureFiles.h"
#include "tests/fuzz/FuzzInput.h"
#include "tests/fuzz/documentChecks.h"

namespace quorvane {
namespace {

std::string pngWithChecksums(FuzzInput& input) {
    static constexpr const char* types[] = {"IHDR", "IDAT", "IEND", "pHYs", "tEXt"};
    std::string file = "\x89PNG\r\n\x1A\n";
    while (!input.isEmpty()) {
        const char* type = types[input.below(5)];
        file += pngChunk(type, input.text(20));
    }
    return file;
}

std::string withoutLineBreaks(std::string text) {
    std::erase_if(text, [](char c) { return c == '\r' || c == '\n'; });
    return text;
}

std::string hexadecimal(const std::string& bytes) {
    std::string text;
    for (const char byte : bytes) {
        text += "0123456789abcdef"[static_cast<unsigned char>(byte) / 16];
        text += "0123456789abcdef"[static_cast<unsigned char>(byte) % 16];
    }
    return text;
}

void requireGoodDocument(const RtfPicture& picture) {
    const Ref<CRtfDoc> document = CRtfDoc::create();
    document->TableRows()->AddTail();
    const Ref<CRtfTableCells> cells = document->TableRows()->PeekTail()->TableCells();
    cells->AddTail();
    cells->PeekTail()->Paragraphs()->AddTail();
    cells->PeekTail()->Paragraphs()->PeekTail()->setPicture(picture);
    const std::string& rtf = document->Contents();
    require(checkRtf(rtf).empty(), "a document with a picture is sound");
    require(withoutLineBreaks(rtf).find(std::to_string(picture.Height()) +
                                        hexadecimal(picture.Bytes()) + "}") != std::string::npos,
            "the document holds the bytes of the picture");
}

}  // namespace
}  // namespace quorvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quorvane;
    FuzzInput input(data, size);
    const bool isPng = input.flag();
    const std::int32_t width = input.number();
    const std::int32_t height = input.number();
    const std::string bytes = isPng ? pngWithChecksums(input) : std::string(input.rest());
    const std::int32_t error = errorOfCall([&] {
        const RtfPicture picture(bytes, width, height);
        require(width <= 0 || picture.Width() == width, "a picture has the width that it is given");
        require(picture.Width() >= 1 && picture.Width() <= RtfPicture::largestSize &&
                    picture.Height() >= 1 && picture.Height() <= RtfPicture::largestSize,
                "a picture has a size that documents can hold");
        requireGoodDocument(picture);
    });
    require(error == 0 || error == 5, "a picture is taken or refused");
    return 0;
}
