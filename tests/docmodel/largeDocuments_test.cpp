#include <gtest/gtest.h>

#include "tests/docmodel/documentParts.h"

namespace quorvane {
namespace {

// These finish in time only because no call walks over what is there already.

std::size_t occurrences(const std::string& text, std::string_view word) {
    std::size_t count = 0;
    for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1)) {
        ++count;
    }
    return count;
}

TEST(LargeDocument, HoldsManyRows) {
    const Ref<CRtfDoc> document = CRtfDoc::create();
    const Ref<CRtfTableRows> rows = document->TableRows();
    for (int i = 0; i < 100'000; ++i) {
        rows->AddTail();
        rows->AddHead();
    }

    EXPECT_EQ(rows->Count(), 200'000);
    EXPECT_EQ(occurrences(document->Contents(), "\\row}"), 200'000U);
}

TEST(LargeDocument, HoldsManyRowsWithKeys) {
    const Ref<CRtfDoc> document = CRtfDoc::create();
    const Ref<CRtfTableRows> rows = document->TableRows();
    for (int i = 0; i < 100'000; ++i) {
        rows->AddTail(std::to_string(i));
        rows->PeekTail()->setBackColor(static_cast<tColorIndex>(i));
    }
    for (int i = 0; i < 100'000; ++i) {
        ASSERT_EQ(rows->Item(std::to_string(i))->BackColor(), i);
        ASSERT_EQ(rows->Item(i + 1)->BackColor(), i);
    }
}

TEST(LargeDocument, LosesItsRowsAtBothEnds) {
    const Ref<CRtfDoc> document = CRtfDoc::create();
    const Ref<CRtfTableRows> rows = document->TableRows();
    for (int i = 0; i < 200'000; ++i) {
        rows->AddTail();
    }
    for (int i = 0; i < 100'000; ++i) {
        rows->RemoveHead();
        rows->removeTail();
    }

    EXPECT_EQ(rows->Count(), 0);
}

TEST(LargeDocument, HoldsManyCellsInARow) {
    const RowDocument parts;
    for (int i = 0; i < 100'000; ++i) {
        parts.cells->AddTail();
    }

    EXPECT_EQ(parts.cell(100'000)->Width(eTwips), 200);
    const std::string text = parts.cellsText();
    EXPECT_EQ(occurrences(text, "\\cell "), 99'999U);
    EXPECT_NE(text.find("\\cellx20000000 \r\n\\cell"), std::string::npos);
}

TEST(LargeDocument, SetsTheWidthOfEachOfManyCells) {
    const RowDocument parts;
    for (int i = 0; i < 100'000; ++i) {
        parts.cells->AddTail();
    }
    for (int i = 100'000; i > 1; --i) {
        parts.cell(i)->setWidth(eTwips, 200);
        ASSERT_EQ(parts.cell(i)->Width(eTwips), 200);
    }
}

TEST(LargeDocument, SetsTheWidthOfEachCellAsItIsAdded) {
    const RowDocument parts;
    for (int i = 0; i < 100'000; ++i) {
        parts.cells->AddTail();
        parts.cells->PeekTail()->setWidth(ePercent, 1);
    }

    EXPECT_EQ(parts.cells->Count(), 100'000);
}

TEST(LargeDocument, AddsAndRemovesCellsInTurns) {
    const RowDocument parts;
    for (int i = 0; i < 100'000; ++i) {
        parts.cells->AddTail();
    }
    for (int i = 0; i < 50'000; ++i) {
        parts.cells->AddHead();
        parts.cells->removeTail();
        parts.cells->AddTail();
        parts.cells->RemoveHead();
    }

    EXPECT_EQ(parts.cells->Count(), 100'000);
    EXPECT_EQ(parts.cell(1)->Width(eTwips), 400);
}

TEST(LargeDocument, HoldsManyParagraphsInACell) {
    const CellDocument parts;
    for (int i = 0; i < 100'000; ++i) {
        parts.paragraphs->AddTail();
        parts.paragraphs->PeekTail()->setText("x");
    }

    const std::string text = parts.contentText();
    EXPECT_EQ(occurrences(text, "\r\n\\par\\pard\\plain\\intbl x"), 99'999U);
    EXPECT_EQ(parts.paragraphs->indexOf(parts.paragraphs->PeekTail().get()), 100'000);
}

TEST(LargeDocument, AddsManyParagraphsAtTheHead) {
    const CellDocument parts;
    for (int i = 0; i < 100'000; ++i) {
        parts.paragraphs->AddHead(std::to_string(i));
    }

    EXPECT_EQ(parts.paragraphs->Item("0"), parts.paragraphs->PeekTail());
    EXPECT_EQ(parts.paragraphs->Item("99999"), parts.paragraphs->PeekHead());
}

TEST(LargeDocument, RefilesEachOfManyRows) {
    const Ref<CRtfDoc> document = CRtfDoc::create();
    const Ref<CRtfTableRows> rows = document->TableRows();
    for (int i = 1; i <= 50'000; ++i) {
        rows->AddTail(std::to_string(i));
    }
    for (int i = 1; i <= 50'000; ++i) {
        rows->refile(rows->Item(std::to_string(i)), "new" + std::to_string(i));
    }

    EXPECT_EQ(rows->Item("new50000"), rows->PeekTail());
}

TEST(LargeDocument, LooksTheStylesOfManyParagraphsUp) {
    const CellDocument parts;
    std::string sheet;
    for (int i = 1; i <= 1000; ++i) {
        const std::string number = std::to_string(i);
        sheet += "{name: p" + number + "; style-def: s; format: \\fs" + number + "}{name: c" +
                 number + "; style-def: cs; format: \\b}";
    }
    parts.document->LoadStyleSheetFromMemmory(sheet);
    for (int i = 0; i < 50'000; ++i) {
        const std::string number = std::to_string(i % 1000 + 1);
        parts.paragraphs->AddTail();
        parts.paragraphs->PeekTail()->setStyle("P" + number);
        parts.paragraphs->PeekTail()->setText("<c" + number + "=x>");
    }

    EXPECT_TRUE(parts.contentText().ends_with("\\intbl\\s1099\\fs1000 {\\cs1099\\b x}"));
}

TEST(LargeDocument, HoldsALongText) {
    const CellDocument parts;
    parts.paragraphs->AddTail();
    parts.paragraph(1)->setText(std::string(5'000'000, 'x'));

    EXPECT_EQ(parts.contentText().size(), 5'000'000 + std::string_view("\r\n\r\n\r\n").size() +
                                              std::string_view("\\pard\\plain\\intbl ").size());
}

}  // namespace
}  // namespace quorvane
