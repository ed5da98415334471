#include <gtest/gtest.h>

#include "tests/docmodel/documentParts.h"
#include "tests/docmodel/picture/pictureFiles.h"

namespace quorvane {
namespace {

class ParagraphPicture : public testing::Test, protected CellDocument {
protected:
    ParagraphPicture() { paragraphs->AddTail(); }
};

constexpr const char* twoPixelsAsText =
    "{\\pict\\pngblip\\picw2\\pich1\\picwgoal30\\pichgoal15"
    "\r\n89504e470d0a1a0a0000000d49484452000000020000000108020000007b40e8dd"
    "0000000d4944415478da63f8cfc000440008fe01ff19c06be7000000004945"
    "\r\n4e44ae426082}";

TEST_F(ParagraphPicture, IsNotThereAtFirst) {
    EXPECT_EQ(paragraph(1)->Picture(), nullptr);
}

TEST_F(ParagraphPicture, IsWrittenWithoutAText) {
    paragraph(1)->setPicture(RtfPicture(twoPixels));

    EXPECT_EQ(contentText(), "\r\n\r\n\r\n\\pard\\plain\\intbl " + std::string(twoPixelsAsText));
}

TEST_F(ParagraphPicture, StandsBeforeTheText) {
    paragraph(1)->setText("text");
    paragraph(1)->setAlign(eRight);
    paragraph(1)->setForeColor(eRed);

    paragraph(1)->setPicture(RtfPicture(twoPixels));

    EXPECT_EQ(contentText(), "\r\n\r\n\r\n\\pard\\plain\\intbl \\cf30 \\qr " +
                                 std::string(twoPixelsAsText) + "text");
}

TEST_F(ParagraphPicture, CanBeAJpegFileOfAnotherSize) {
    paragraph(1)->setPicture(RtfPicture(jpegOf(30, 20), 600));

    const std::string text = contentText();
    EXPECT_NE(text.find("{\\pict\\jpegblip\\picw30\\pich20\\picwgoal600\\pichgoal400\r\nffd8ffc0"),
              std::string::npos);
}

TEST_F(ParagraphPicture, CanBeReplacedAndRemoved) {
    paragraph(1)->setText("text");
    const std::string before = contentText();
    paragraph(1)->setPicture(RtfPicture(jpegOf(30, 20)));

    paragraph(1)->setPicture(RtfPicture(twoPixels));
    EXPECT_EQ(paragraph(1)->Picture()->Bytes(), twoPixels);

    paragraph(1)->setPicture(std::nullopt);
    EXPECT_EQ(paragraph(1)->Picture(), nullptr);
    EXPECT_EQ(contentText(), before);
}

TEST_F(ParagraphPicture, MarksTheDocumentChanged) {
    const RtfPicture picture(twoPixels);

    EXPECT_TRUE(marksChanged(*document, [&] { paragraph(1)->setPicture(picture); }));
    EXPECT_TRUE(marksChanged(*document, [&] { paragraph(1)->setPicture(picture); }));
    EXPECT_TRUE(marksChanged(*document, [&] { paragraph(1)->setPicture(std::nullopt); }));
}

TEST_F(ParagraphPicture, SharesItsBytes) {
    const RtfPicture picture(twoPixels);
    paragraphs->AddTail();

    paragraph(1)->setPicture(picture);
    paragraph(2)->setPicture(picture);

    EXPECT_EQ(&paragraph(1)->Picture()->Bytes(), &paragraph(2)->Picture()->Bytes());
}

TEST_F(ParagraphPicture, GoesWithAParagraphThatIsRefiled) {
    paragraph(1)->setPicture(RtfPicture(twoPixels));

    paragraphs->refile(paragraph(1), "new");

    EXPECT_EQ(paragraph(1)->Picture()->Bytes(), twoPixels);
}

TEST_F(ParagraphPicture, OutlivesItsDocument) {
    const Ref<CRtfParagraph> held = paragraph(1);
    held->setPicture(RtfPicture(twoPixels));

    document->TableRows()->RemoveHead();
    document = nullptr;

    EXPECT_EQ(held->Picture()->Bytes(), twoPixels);
    EXPECT_EQ(errorNumberOf([&] { held->setPicture(RtfPicture(jpegOf(1, 1))); }), 91);
    EXPECT_TRUE(held->Picture()->IsJpeg());
}

}  // namespace
}  // namespace quorvane
