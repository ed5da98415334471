#include "quorvane/docmodel/CRtfParagraphs.h"

#include <gtest/gtest.h>

#include "quorvane/support/currentError.h"
#include "tests/docmodel/documentParts.h"
#include "tests/support/errorNumberOf.h"

namespace quorvane {
namespace {

TEST(Paragraphs, KnowTheirCell) {
    const CellDocument parts;

    EXPECT_EQ(parts.paragraphs->Parent(), parts.only);
}

TEST(Paragraphs, GiveEveryParagraphTheCellForAParent) {
    const CellDocument parts{"A"};

    EXPECT_EQ(parts.paragraph(1)->Parent(), parts.only);
}

TEST(Paragraphs, WriteNothingWhileThereAreNone) {
    EXPECT_EQ(CellDocument().contentText(), "\r\n");
}

TEST(Paragraphs, WriteABlankLineBetweenThem) {
    const CellDocument parts{"A", "B", "C"};

    EXPECT_EQ(parts.contentText(),
              "\r\n"
              "\r\n\r\n\\pard\\plain\\intbl A"
              "\r\n\r\n\\par\\pard\\plain\\intbl B"
              "\r\n\r\n\\par\\pard\\plain\\intbl C");
}

TEST(Paragraphs, WriteOneLineBreakForAnEmptyOne) {
    const CellDocument parts{"", "B", ""};

    EXPECT_EQ(parts.contentText(), "\r\n\r\n\r\n\r\n\\par\\pard\\plain\\intbl B\r\n");
}

TEST(Paragraphs, WriteTheirOrderAsItIsNow) {
    const CellDocument parts{"A", "B"};

    parts.paragraphs->AddHead();
    parts.paragraph(1)->setText("new");
    parts.paragraphs->Remove(2);

    EXPECT_EQ(parts.contentText(),
              "\r\n"
              "\r\n\r\n\\pard\\plain\\intbl new"
              "\r\n\r\n\\par\\pard\\plain\\intbl B");
}

TEST(Paragraphs, DoNothingWhenTheTailIsRemovedWhileEmpty) {
    const CellDocument parts;

    EXPECT_TRUE(marksChanged(*parts.document, [&] { parts.paragraphs->removeTail(); }));
    EXPECT_EQ(parts.paragraphs->Count(), 0);
}

TEST(Paragraphs, KnowThePositionOfAParagraph) {
    const CellDocument parts{"A", "B", "C"};

    EXPECT_EQ(parts.paragraphs->indexOf(parts.paragraph(1).get()), 1);
    EXPECT_EQ(parts.paragraphs->indexOf(parts.paragraph(3).get()), 3);
}

TEST(Paragraphs, KnowThePositionOfTheOnlyOne) {
    const CellDocument parts{"A"};

    EXPECT_EQ(parts.paragraphs->indexOf(parts.paragraph(1).get()), 1);
}

TEST(Paragraphs, HaveNoPositionForNull) {
    const CellDocument parts{"A"};

    try {
        (void)parts.paragraphs->indexOf(nullptr);
        FAIL();
    } catch (const RtfError& error) {
        EXPECT_EQ(error.number, 91);
        EXPECT_EQ(error.description, "The paragraph object is set to Nothing");
        EXPECT_EQ(error.source, "");
    }
}

TEST(Paragraphs, HaveNoPositionForAParagraphThatIsNotTheirs) {
    const CellDocument parts{"A", "B"};
    const CellDocument others{"C"};
    const Ref<CRtfParagraph> removed = parts.paragraph(1);
    parts.paragraphs->Remove(1);

    EXPECT_EQ(errorNumberOf([&] { (void)parts.paragraphs->indexOf(removed.get()); }), 5);
    EXPECT_EQ(errorNumberOf([&] { (void)parts.paragraphs->indexOf(others.paragraph(1).get()); }),
              5);
}

TEST(Paragraphs, PutAParagraphUnderANewKeyInThePlaceOfAnother) {
    const CellDocument parts{"A", "B", "C"};
    const Ref<CRtfParagraph> old = parts.paragraph(2);
    Ref<CRtfParagraph> fresh;

    EXPECT_TRUE(
        marksChanged(*parts.document, [&] { fresh = parts.paragraphs->refile(old, "New"); }));

    EXPECT_EQ(parts.paragraphs->Count(), 3);
    EXPECT_NE(fresh, old);
    EXPECT_EQ(parts.paragraph(2), fresh);
    EXPECT_EQ(parts.paragraphs->Item("nEW"), fresh);
    EXPECT_EQ(fresh->Parent(), parts.only);
}

TEST(Paragraphs, GiveARefiledParagraphTextAndStyleOnly) {
    const CellDocument parts{"A"};
    const Ref<CRtfParagraph> old = parts.paragraph(1);
    old->setStyle("title");
    old->setForeColor(eRed);
    old->setAlign(eCentered);
    old->asMarkedField("x");

    const Ref<CRtfParagraph> fresh = parts.paragraphs->refile(old, "new");

    EXPECT_EQ(fresh->Text(), "A");
    EXPECT_EQ(fresh->Style(), "title");
    EXPECT_EQ(fresh->ForeColor(), eNoColor);
    EXPECT_EQ(fresh->Align(), eNoDefault);
    EXPECT_EQ(parts.contentText(), "\r\n\r\n\r\n\\pard\\plain\\intbl A");
    EXPECT_EQ(old->Text(), "A");
}

TEST(Paragraphs, GiveARefiledParagraphNoColorInADarkCell) {
    const CellDocument parts{"A"};
    parts.only->setBackColor(eNavyBlue);
    ASSERT_EQ(parts.paragraph(1)->ForeColor(), eWhite);

    const Ref<CRtfParagraph> fresh = parts.paragraphs->refile(parts.paragraph(1), "new");

    EXPECT_EQ(fresh->ForeColor(), eNoColor);
}

TEST(Paragraphs, RefuseToRefileAParagraphThatIsNotTheirs) {
    const CellDocument parts{"A"};
    const Ref<CRtfParagraph> removed = parts.paragraph(1);
    parts.paragraphs->Remove(1);

    EXPECT_FALSE(marksChanged(*parts.document, [&] {
        EXPECT_EQ(errorNumberOf([&] { parts.paragraphs->refile(removed, "new"); }), 5);
    }));
}

TEST(Paragraphs, RefuseToRefileUnderAKeyThatIsThereAlready) {
    const CellDocument parts;
    parts.paragraphs->AddTail("a");
    parts.paragraphs->AddTail("b");
    const Ref<CRtfParagraph> old = parts.paragraph(1);

    EXPECT_FALSE(marksChanged(*parts.document, [&] {
        EXPECT_EQ(errorNumberOf([&] { parts.paragraphs->refile(old, "B"); }), 457);
        EXPECT_EQ(errorNumberOf([&] { parts.paragraphs->refile(old, "A"); }), 457);
    }));
    EXPECT_EQ(parts.paragraphs->Item("a"), old);
}

}  // namespace
}  // namespace quorvane
