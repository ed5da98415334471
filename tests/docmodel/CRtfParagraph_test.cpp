#include "quorvane/docmodel/CRtfParagraph.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "quorvane/support/currentError.h"
#include "tests/docmodel/documentParts.h"

namespace quorvane {
namespace {

class Paragraph : public testing::Test, protected CellDocument {
protected:
    Paragraph() : CellDocument{"abc"} {}

    // What the paragraph itself gives: two line breaks stand before it, the cell's and that of the
    // paragraphs.
    std::string text() const { return contentText().substr(4); }

    Ref<CRtfParagraph> first = paragraph(1);
};

TEST_F(Paragraph, HasItsDefaults) {
    paragraphs->AddTail();
    const Ref<CRtfParagraph> fresh = paragraphs->PeekTail();

    EXPECT_EQ(fresh->Text(), "");
    EXPECT_EQ(fresh->Style(), "");
    EXPECT_EQ(fresh->ForeColor(), eNoColor);
    EXPECT_EQ(fresh->Align(), eNoDefault);
}

TEST_F(Paragraph, HoldsItsText) {
    first->setText("caf\xC3\xA9 \\line\r\nx");

    EXPECT_EQ(first->Text(), "caf\xC3\xA9 \\line\r\nx");
}

TEST_F(Paragraph, HoldsTextsWithCharactersOfCodeZero) {
    using namespace std::string_view_literals;
    first->setText("a\0b"sv);

    EXPECT_EQ(first->Text(), "a\0b"sv);
    EXPECT_EQ(text(), "\r\n\\pard\\plain\\intbl a\0b"sv);
}

TEST_F(Paragraph, KeepsItsTextWhenAnEmptyOneIsSet) {
    EXPECT_FALSE(marksChanged(*document, [&] { first->setText(""); }));

    EXPECT_EQ(first->Text(), "abc");
}

TEST_F(Paragraph, IsChangedByEveryOtherText) {
    EXPECT_TRUE(marksChanged(*document, [&] { first->setText("x"); }));
    EXPECT_TRUE(marksChanged(*document, [&] { first->setText("x"); }));
    EXPECT_TRUE(marksChanged(*document, [&] { first->setText(" "); }));
}

TEST_F(Paragraph, CanBeGivenItsOwnText) {
    first->setText(first->Text());

    EXPECT_EQ(first->Text(), "abc");
}

TEST_F(Paragraph, IsChangedByEveryStyle) {
    EXPECT_TRUE(marksChanged(*document, [&] { first->setStyle("title"); }));
    EXPECT_TRUE(marksChanged(*document, [&] { first->setStyle("title"); }));
    EXPECT_EQ(first->Style(), "title");
    EXPECT_TRUE(marksChanged(*document, [&] { first->setStyle(""); }));
    EXPECT_EQ(first->Style(), "");
}

TEST_F(Paragraph, KeepsEachOfManyStylesApart) {
    for (int i = 0; i < 200; ++i) {
        paragraphs->AddTail();
        paragraphs->PeekTail()->setStyle("style" + std::to_string(i));
    }
    for (int i = 0; i < 200; ++i) {
        EXPECT_EQ(paragraph(i + 2)->Style(), "style" + std::to_string(i));
    }
}

TEST_F(Paragraph, IsChangedByEveryColor) {
    EXPECT_TRUE(marksChanged(*document, [&] { first->setForeColor(eRed); }));
    EXPECT_TRUE(marksChanged(*document, [&] { first->setForeColor(eRed); }));
    EXPECT_EQ(first->ForeColor(), eRed);
}

TEST_F(Paragraph, IsNotChangedByAnAlignment) {
    EXPECT_FALSE(marksChanged(*document, [&] { first->setAlign(eCentered); }));
    EXPECT_EQ(first->Align(), eCentered);
}

TEST_F(Paragraph, IsNotChangedByBecomingAMarkedField) {
    EXPECT_FALSE(marksChanged(*document, [&] {
        first->asMarkedField("x");
        first->asMarkedField(2.0);
    }));
}

TEST_F(Paragraph, IsNotChangedByReading) {
    EXPECT_FALSE(marksChanged(*document, [&] {
        (void)first->Parent();
        (void)first->Text();
        (void)first->Style();
        (void)first->ForeColor();
        (void)first->Align();
    }));
}

TEST_F(Paragraph, MarksTheDocumentChangedAfterItWasRemoved) {
    paragraphs->Remove(1);

    EXPECT_TRUE(marksChanged(*document, [&] { first->setText("x"); }));
}

TEST_F(Paragraph, WritesABlankForItsStyleWithoutAStylesheet) {
    EXPECT_EQ(text(), "\r\n\\pard\\plain\\intbl abc");

    first->setStyle("title");
    EXPECT_EQ(text(), "\r\n\\pard\\plain\\intbl abc");
}

TEST_F(Paragraph, WritesTheWordsOfItsStyle) {
    document->LoadStyleSheetFromMemmory(
        "{name: normal; style-def: s; format: \\f9}{name: title; style-def: s; format: \\b\\fs28}");

    first->setStyle("Title");
    EXPECT_EQ(text(), "\r\n\\pard\\plain\\intbl\\s101\\b\\fs28 abc");
    first->setStyle("normal");
    EXPECT_EQ(text(), "\r\n\\pard\\plain\\intbl\\s100\\f9 abc");
    first->setStyle("nosuch");
    EXPECT_EQ(text(), "\r\n\\pard\\plain\\intbl\\s0\\f9 abc");
    first->setStyle("");
    EXPECT_EQ(text(), "\r\n\\pard\\plain\\intbl\\s0\\f9 abc");
}

TEST_F(Paragraph, WritesItsColor) {
    first->setForeColor(eDarkRed);
    EXPECT_EQ(text(), "\r\n\\pard\\plain\\intbl \\cf12 abc");

    for (const std::int32_t number : {58, -3, INT32_MAX, INT32_MIN}) {
        first->setForeColor(static_cast<tColorIndex>(number));
        EXPECT_EQ(text(), "\r\n\\pard\\plain\\intbl \\cf" + std::to_string(number) + " abc");
    }
}

TEST_F(Paragraph, WritesNoColorZero) {
    first->setForeColor(eRed);
    first->setForeColor(eNoColor);

    EXPECT_EQ(text(), "\r\n\\pard\\plain\\intbl abc");
}

TEST_F(Paragraph, WritesItsAlignment) {
    first->setAlign(eCentered);
    EXPECT_EQ(text(), "\r\n\\pard\\plain\\intbl \\qc abc");
    first->setAlign(eLeft);
    EXPECT_EQ(text(), "\r\n\\pard\\plain\\intbl \\ql abc");
    first->setAlign(eRight);
    EXPECT_EQ(text(), "\r\n\\pard\\plain\\intbl \\qr abc");
    first->setAlign(eJustified);
    EXPECT_EQ(text(), "\r\n\\pard\\plain\\intbl \\qj abc");
}

TEST_F(Paragraph, WritesNoOtherAlignment) {
    for (const std::int32_t align : {0, 5, -1, INT32_MAX, INT32_MIN}) {
        first->setAlign(static_cast<tCellAlign>(align));
        EXPECT_EQ(first->Align(), align);
        EXPECT_EQ(text(), "\r\n\\pard\\plain\\intbl abc");
    }
}

TEST_F(Paragraph, WritesColorThenAlignmentThenText) {
    document->LoadStyleSheetFromMemmory("{name: a; style-def: s; format: \\b}");
    first->setStyle("a");
    first->setAlign(eJustified);
    first->setForeColor(eDarkRed);

    EXPECT_EQ(text(), "\r\n\\pard\\plain\\intbl\\s100\\b \\cf12 \\qj abc");
}

TEST_F(Paragraph, WritesNothingWithoutText) {
    paragraphs->RemoveHead();
    paragraphs->AddTail();
    first = paragraphs->PeekTail();
    first->setStyle("title");
    first->setForeColor(eRed);
    first->setAlign(eRight);

    EXPECT_EQ(text(), "");
}

TEST_F(Paragraph, EndsTheParagraphBeforeItWhenItIsNotTheFirst) {
    paragraphs->AddHead();

    EXPECT_EQ(contentText(), "\r\n\r\n\r\n\r\n\\par\\pard\\plain\\intbl abc");
}

TEST_F(Paragraph, ReplacesItsInlineStyles) {
    document->LoadStyleSheetFromMemmory("{name: bold-red; style-def: cs; format: \\b\\cf30}");
    first->setText("Sum <bold-red=Total>!");

    EXPECT_EQ(text(), "\r\n\\pard\\plain\\intbl Sum {\\cs100\\b\\cf30 Total}!");
    EXPECT_EQ(first->Text(), "Sum <bold-red=Total>!");
}

TEST_F(Paragraph, ReplacesInlineStylesAfterColorAndAlignment) {
    document->LoadStyleSheetFromMemmory("{name: b; style-def: cs; format: \\b}");
    first->setForeColor(eRed);
    first->setAlign(eCentered);
    first->setText("<b=x>");

    EXPECT_EQ(text(), "\r\n\\pard\\plain\\intbl \\cf30 \\qc {\\cs100\\b x}");
}

TEST_F(Paragraph, EnclosesItselfInAMarkedField) {
    first->setText("Hi");
    first->asMarkedField("AB");

    EXPECT_EQ(text(),
              "{\\*\\txfieldstart\\txfieldtype0\\txfieldflags128\\txfieldbin\\txfielddata 4142}"
              "\r\n\\pard\\plain\\intbl Hi{\\*\\txfieldend}");
}

TEST_F(Paragraph, WritesAMarkedFieldWithoutText) {
    paragraphs->RemoveHead();
    paragraphs->AddTail();

    paragraphs->PeekTail()->asMarkedField(5);

    EXPECT_EQ(text(),
              "{\\*\\txfieldstart\\txfieldtype0\\txfieldflags128\\txfieldbin\\txfielddata 35}"
              "{\\*\\txfieldend}");
}

TEST_F(Paragraph, WritesAMarkedFieldWithoutData) {
    first->asMarkedField("");

    EXPECT_EQ(text(),
              "{\\*\\txfieldstart\\txfieldtype0\\txfieldflags128\\txfieldbin}"
              "\r\n\\pard\\plain\\intbl abc{\\*\\txfieldend}");
}

TEST_F(Paragraph, TakesTextsAndWholeNumbersForData) {
    const auto data = [this](const Value& value) {
        first->asMarkedField(value);
        const std::string all = text();
        const std::string word = "\\txfielddata ";
        const std::size_t begin = all.find(word) + word.size();
        return all.substr(begin, all.find('}') - begin);
    };

    EXPECT_EQ(data("caf\xC3\xA9\n"), "636166E9A");
    EXPECT_EQ(data(0), "30");
    EXPECT_EQ(data(-5), "2D35");
    EXPECT_EQ(data(std::int16_t{7}), "37");
    EXPECT_EQ(data(INT32_MIN), "2D32313437343833363438");
}

const std::vector<Value>& refusedData() {
    static const std::vector<Value> data{
        Value(2.0),     Value(2.0F),   Value(Date{2}),   Value(true),
        Value(Empty{}), Value(Null{}), Value(Missing{}), Value(std::make_shared<Object>())};
    return data;
}

TEST_F(Paragraph, BecomesAMarkedFieldWhenItsDataIsRefusedToo) {
    for (const Value& value : refusedData()) {
        paragraphs->RemoveHead();
        paragraphs->AddTail();
        paragraphs->PeekTail()->setText("x");
        paragraphs->PeekTail()->asMarkedField(value);

        EXPECT_EQ(text(),
                  "{\\*\\txfieldstart\\txfieldtype0\\txfieldflags128\\txfieldbin}"
                  "\r\n\\pard\\plain\\intbl x{\\*\\txfieldend}");
    }
}

TEST_F(Paragraph, KeepsItsDataWhenOtherDataIsRefused) {
    first->asMarkedField("AB");
    const std::string before = text();

    for (const Value& value : refusedData()) {
        first->asMarkedField(value);
        EXPECT_EQ(text(), before);
    }
}

TEST_F(Paragraph, ReportsNoErrorForDataThatItRefuses) {
    int absorbed = 0;
    document->setAbsorbedErrorObserver([&absorbed](const AbsorbedError&) { ++absorbed; });

    first->asMarkedField(2.0);

    EXPECT_EQ(absorbed, 0);
}

TEST_F(Paragraph, ForgetsTheLastErrorWithEveryCallThatCanFail) {
    const auto expectForgotten = [](auto call) {
        setCurrentError(RtfError(RunTimeError::Overflow));
        call();
        EXPECT_EQ(currentError(), nullptr);
    };

    expectForgotten([&] { first->setText(""); });
    expectForgotten([&] { first->setStyle(""); });
    expectForgotten([&] { first->setForeColor(eRed); });
    expectForgotten([&] { first->asMarkedField(""); });
}

}  // namespace
}  // namespace quorvane
