#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "tests/docmodel/documentParts.h"
#include "tests/support/errorNumberOf.h"

namespace quorvane {
namespace {

// A document with one row of one cell of one paragraph, each of them held by the host.
struct Held {
    Ref<CRtfDoc> document = CRtfDoc::create();
    Ref<CRtfTableRows> rows = document->TableRows();
    Ref<CRtfTableRow> row = (rows->AddTail("row"), rows->PeekTail());
    Ref<CRtfTableCells> cells = row->TableCells();
    Ref<CRtfTableCell> cell = (cells->AddTail("cell"), cells->PeekTail());
    Ref<CRtfParagraphs> paragraphs = cell->Paragraphs();
    Ref<CRtfParagraph> paragraph = (paragraphs->AddTail("para"), paragraphs->PeekTail());

    Held() { paragraph->setText("text"); }
};

TEST(Lifetimes, EndInAnyOrder) {
    std::vector<int> order{0, 1, 2, 3, 4, 5, 6};
    do {
        Held held;
        const std::vector<std::function<void()>> release{
            [&] { held.document = nullptr; }, [&] { held.rows = nullptr; },
            [&] { held.row = nullptr; },      [&] { held.cells = nullptr; },
            [&] { held.cell = nullptr; },     [&] { held.paragraphs = nullptr; },
            [&] { held.paragraph = nullptr; }};
        for (const int which : order) {
            release[static_cast<std::size_t>(which)]();
            const bool rowIsThere = held.document || held.row;
            if (held.paragraph) {
                ASSERT_EQ(held.paragraph->Text(), "text");
                ASSERT_EQ(held.paragraph->Parent()->Paragraphs()->Count(), 1);
                ASSERT_EQ(errorNumberOf([&] { held.paragraph->setText("text"); }),
                          held.document ? 0 : 91);
            }
            if (held.paragraphs) {
                ASSERT_NE(held.paragraphs->Parent(), nullptr);
                ASSERT_EQ(held.paragraphs->Count(), 1);
            }
            if (held.cells) {
                ASSERT_EQ(held.cells->Parent() != nullptr, rowIsThere);
                ASSERT_EQ(held.cells->Count(), rowIsThere ? 1 : 0);
            }
            if (held.rows) {
                ASSERT_EQ(held.rows->Parent(), held.document);
                ASSERT_EQ(held.rows->Count(), held.document ? 1 : 0);
            }
        }
    } while (std::next_permutation(order.begin(), order.end()));
}

TEST(Lifetimes, OfChildrenLastAsLongAsTheDocument) {
    const Ref<CRtfDoc> document = CRtfDoc::create();
    document->TableRows()->AddTail();
    document->TableRows()->Item(1)->TableCells()->AddTail();
    document->TableRows()->Item(1)->TableCells()->Item(1)->Paragraphs()->AddTail();

    const Ref<CRtfParagraph> paragraph =
        document->TableRows()->Item(1)->TableCells()->Item(1)->Paragraphs()->Item(1);

    EXPECT_EQ(paragraph->Parent()->Parent()->Parent(), document);
}

TEST(Lifetimes, OfTheDocumentAreNotProlongedByItsChildren) {
    Held held;

    held.document = nullptr;

    EXPECT_EQ(held.rows->Parent(), nullptr);
    EXPECT_EQ(held.row->Parent(), nullptr);
    EXPECT_EQ(held.cell->Parent(), held.row);
    EXPECT_EQ(held.paragraph->Parent(), held.cell);
}

TEST(Lifetimes, OfParagraphsProlongThatOfTheirCell) {
    for (const bool isRemoved : {true, false}) {
        Held held;
        held.cell = nullptr;
        held.paragraphs = nullptr;
        if (isRemoved) {
            held.cells->Item(1)->Paragraphs()->Remove(1);
        }

        held.cells->Remove(1);

        const Ref<CRtfTableCell> cell = held.paragraph->Parent();
        ASSERT_NE(cell, nullptr);
        EXPECT_EQ(cell->Parent(), held.row);
        EXPECT_EQ(cell->Paragraphs()->Count(), isRemoved ? 0 : 1);
        EXPECT_TRUE(marksChanged(*held.document, [&] { held.paragraph->setText("new"); }));
        EXPECT_EQ(held.paragraph->Text(), "new");
    }
}

TEST(Lifetimes, OfACollectionOfParagraphsProlongThatOfItsCell) {
    Held held;
    held.cell = nullptr;
    held.paragraph = nullptr;

    held.cells->Remove(1);

    EXPECT_EQ(held.paragraphs->Parent()->Parent(), held.row);
    EXPECT_EQ(held.paragraphs->Count(), 1);
}

TEST(Lifetimes, OfACollectionOfCellsDoNotProlongThatOfItsRow) {
    Held held;
    held.row = nullptr;

    held.rows->Remove(1);

    EXPECT_EQ(held.cells->Parent(), nullptr);
    EXPECT_EQ(held.cells->Count(), 0);
    EXPECT_EQ(held.cells->PeekHead(), nullptr);
    EXPECT_EQ(errorNumberOf([&] { held.cells->Item(1); }), 5);
    EXPECT_EQ(errorNumberOf([&] { held.cells->AddTail(); }), 91);
    EXPECT_EQ(errorNumberOf([&] { held.cells->SetUniformWidths(); }), 91);
    EXPECT_EQ(held.cell->Paragraphs()->Count(), 1);
}

TEST(Lifetimes, OfADocumentEndThoseOfItsRows) {
    Held held;
    held.row = nullptr;

    held.document = nullptr;

    EXPECT_EQ(held.rows->Count(), 0);
    EXPECT_EQ(held.rows->PeekTail(), nullptr);
    EXPECT_EQ(errorNumberOf([&] { held.rows->Item("row"); }), 5);
    EXPECT_EQ(held.cells->Count(), 0);
    EXPECT_EQ(held.cell->Parent(), nullptr);
}

// A leak, or a use of what is gone, shows under the address sanitizer.
TEST(Lifetimes, EndInAnyOrderWhateverWasRemovedAndRefiled) {
    std::mt19937 random(1);
    const auto below = [&random](std::size_t count) { return random() % count; };
    for (int round = 0; round < 2000; ++round) {
        Ref<CRtfDoc> document = CRtfDoc::create();
        std::vector<std::function<void()>> held;
        const auto hold = [&held](auto reference) {
            held.emplace_back([reference] { (void)reference->Parent(); });
        };
        for (int step = 0; step < 12; ++step) {
            const Ref<CRtfTableRows> rows = document->TableRows();
            rows->AddTail();
            const Ref<CRtfTableRow> row = rows->Item(1);
            row->TableCells()->AddHead();
            const Ref<CRtfTableCell> cell = row->TableCells()->Item(1);
            cell->Paragraphs()->AddTail();
            Ref<CRtfParagraph> paragraph = cell->Paragraphs()->Item(1);
            const std::string key = std::to_string(step);
            switch (below(9)) {
                case 0:
                    cell->Paragraphs()->RemoveHead();
                    break;
                case 1:
                    row->TableCells()->RemoveHead();
                    break;
                case 2:
                    rows->RemoveHead();
                    break;
                case 3:
                    paragraph = cell->Paragraphs()->refile(paragraph, key);
                    break;
                case 4:
                    hold(row->TableCells()->refile(cell, key));
                    break;
                case 5:
                    hold(rows->refile(row, key));
                    break;
                case 6:
                    document->ClearStructure();
                    break;
                default:
                    break;
            }
            switch (below(6)) {
                case 0:
                    hold(paragraph);
                    break;
                case 1:
                    hold(cell);
                    break;
                case 2:
                    hold(row->TableCells());
                    break;
                case 3:
                    hold(cell->Paragraphs());
                    break;
                case 4:
                    hold(row);
                    break;
                default:
                    hold(rows);
            }
        }
        document = nullptr;
        while (!held.empty()) {
            for (const auto& use : held) {
                use();
            }
            held.erase(held.begin() + static_cast<std::ptrdiff_t>(below(held.size())));
        }
    }
}

TEST(Lifetimes, OfTheHostsReferencesDoNotMatterToTheText) {
    Held held;
    const std::string text = rowsText(*held.document);

    held.rows = nullptr;
    held.row = nullptr;
    held.cells = nullptr;
    held.cell = nullptr;
    held.paragraphs = nullptr;
    held.paragraph = nullptr;

    EXPECT_EQ(rowsText(*held.document), text);
}

TEST(RemovedChildren, KeepTheirParents) {
    const Held held;

    held.paragraphs->Remove(1);
    EXPECT_EQ(held.paragraph->Parent(), held.cell);
    held.cells->Remove(1);
    EXPECT_EQ(held.cell->Parent(), held.row);
    held.rows->Remove(1);
    EXPECT_EQ(held.row->Parent(), held.document);
}

TEST(RemovedChildren, KeepWhatTheyHold) {
    const Held held;
    held.row->setBackColor(eRed);
    held.paragraph->setAlign(eLeft);
    held.rows->Remove(1);
    held.cells->Remove(1);
    held.paragraphs->Remove(1);

    EXPECT_EQ(held.row->BackColor(), eRed);
    EXPECT_EQ(held.cell->BackColor(), eRed);
    EXPECT_EQ(held.paragraph->Text(), "text");
    EXPECT_EQ(held.paragraph->Align(), eLeft);
}

TEST(RemovedChildren, CanBeUsedAndMarkTheDocumentChanged) {
    const Held held;
    held.rows->Remove(1);

    EXPECT_TRUE(marksChanged(*held.document, [&] { held.cells->AddTail(); }));
    EXPECT_TRUE(marksChanged(*held.document, [&] { held.cell->setWidth(eTwips, 1000); }));
    EXPECT_EQ(held.cell->Width(eTwips), 1000);
    EXPECT_TRUE(marksChanged(*held.document, [&] { held.paragraph->setText("x"); }));
    EXPECT_EQ(rowsText(*held.document), "");
}

TEST(RemovedChildren, ReleaseWhatNobodyHolds) {
    Held held;
    held.cells = nullptr;
    held.cell = nullptr;
    held.paragraphs = nullptr;
    held.row = nullptr;

    held.rows->Remove(1);

    EXPECT_EQ(held.paragraph->Parent()->Parent(), nullptr);
    EXPECT_EQ(held.paragraph->Text(), "text");
    EXPECT_FALSE(marksChanged(*held.document, [&] {
        EXPECT_EQ(errorNumberOf([&] { held.paragraph->setText("x"); }), 91);
    }));
    EXPECT_EQ(held.paragraph->Text(), "x");
}

TEST(RemovedChildren, HaveNoRowOnceItIsGone) {
    Held held;
    held.cells = nullptr;
    held.row = nullptr;

    held.rows->Remove(1);

    EXPECT_EQ(held.cell->Parent(), nullptr);
    EXPECT_EQ(held.paragraph->Parent(), held.cell);
    EXPECT_EQ(errorNumberOf([&] { (void)held.cell->Width(eTwips); }), 91);
    EXPECT_EQ(errorNumberOf([&] { held.cell->setWidth(eTwips, 300); }), 91);
    EXPECT_EQ(errorNumberOf([&] { held.cell->setTopBorder(eThin); }), 91);
    EXPECT_EQ(held.cell->TopBorder(), eThin);
}

// What is left when the document is gone and the host holds everything else.
class Orphans : public testing::Test, protected Held {
protected:
    Orphans() {
        row->setTopBorder(eHair);
        document = nullptr;
    }

    template <class Call>
    static void expectNoDocument(Call call) {
        EXPECT_EQ(errorNumberOf(call), 91);
    }
};

TEST_F(Orphans, ReturnWhatTheyHold) {
    EXPECT_EQ(rows->Count(), 0);
    EXPECT_EQ(rows->PeekHead(), nullptr);
    EXPECT_EQ(row->TopBorder(), eHair);
    EXPECT_EQ(row->TableCells(), cells);
    EXPECT_EQ(cells->Item("cell"), cell);
    EXPECT_EQ(cells->indexOf(cell.get()), 1);
    EXPECT_EQ(cell->TopBorder(), eHair);
    EXPECT_EQ(cell->Paragraphs(), paragraphs);
    EXPECT_EQ(paragraphs->Item("para"), paragraph);
    EXPECT_EQ(paragraphs->indexOf(paragraph.get()), 1);
    EXPECT_EQ(paragraph->Text(), "text");
}

TEST_F(Orphans, CannotChangeTheirLists) {
    const auto expectUnchangeable = [](auto& list, int count) {
        expectNoDocument([&] { list->add(); });
        expectNoDocument([&] { list->add(7, 1, 1); });
        expectNoDocument([&] { list->AddHead(); });
        expectNoDocument([&] { list->AddTail(); });
        expectNoDocument([&] { list->Remove(1); });
        expectNoDocument([&] { list->Remove("nosuch"); });
        expectNoDocument([&] { list->RemoveHead(); });
        expectNoDocument([&] { list->removeTail(); });
        EXPECT_EQ(list->Count(), count);
    };

    expectUnchangeable(rows, 0);
    expectUnchangeable(cells, 1);
    expectUnchangeable(paragraphs, 1);
}

TEST_F(Orphans, CannotBeRefiled) {
    expectNoDocument([&] { rows->refile(row, "x"); });
    expectNoDocument([&] { cells->refile(cell, "x"); });
    expectNoDocument([&] { paragraphs->refile(paragraph, "x"); });
    EXPECT_EQ(cells->Item("cell"), cell);
    EXPECT_EQ(paragraphs->Item("para"), paragraph);
}

TEST_F(Orphans, TakeTheirRowsValuesAllTheSame) {
    expectNoDocument([&] { row->setBackColor(eRed); });
    expectNoDocument([&] { row->setTopBorder(eThin); });
    expectNoDocument([&] { row->setBottomBorder(eThin); });
    expectNoDocument([&] { row->setLeftBorder(eThin); });
    expectNoDocument([&] { row->setRightBorder(eThin); });

    EXPECT_EQ(row->BackColor(), eRed);
    EXPECT_EQ(row->TopBorder(), eThin);
    EXPECT_EQ(row->BottomBorder(), eThin);
    EXPECT_EQ(row->LeftBorder(), eThin);
    EXPECT_EQ(row->RightBorder(), eThin);
}

TEST_F(Orphans, TakeTheirCellsValuesAllTheSame) {
    expectNoDocument([&] { cell->setBackColor(eNavyBlue); });
    expectNoDocument([&] { cell->setTopBorder(eThin); });
    expectNoDocument([&] { cell->setBottomBorder(eThin); });
    expectNoDocument([&] { cell->setLeftBorder(eThin); });
    expectNoDocument([&] { cell->setRightBorder(eThin); });
    expectNoDocument([&] { cell->setStyle("style"); });
    cell->setAlign(eRight);

    EXPECT_EQ(cell->BackColor(), eNavyBlue);
    EXPECT_EQ(cell->TopBorder(), eThin);
    EXPECT_EQ(cell->BottomBorder(), eThin);
    EXPECT_EQ(cell->LeftBorder(), eThin);
    EXPECT_EQ(cell->RightBorder(), eThin);
    EXPECT_EQ(cell->Style(), "style");
    EXPECT_EQ(cell->Align(), eRight);
    EXPECT_EQ(paragraph->ForeColor(), eWhite);
}

TEST_F(Orphans, TakeTheirParagraphsValuesAllTheSame) {
    expectNoDocument([&] { paragraph->setText("new"); });
    expectNoDocument([&] { paragraph->setStyle("style"); });
    expectNoDocument([&] { paragraph->setForeColor(eRed); });
    paragraph->setAlign(eRight);

    EXPECT_EQ(paragraph->Text(), "new");
    EXPECT_EQ(paragraph->Style(), "style");
    EXPECT_EQ(paragraph->ForeColor(), eRed);
    EXPECT_EQ(paragraph->Align(), eRight);
}

TEST_F(Orphans, NeedNoDocumentWhereNothingChanges) {
    row->setTopBorder(eHair);
    row->setBackColor(eNoColor);
    cell->setTopBorder(eHair);
    cell->setBackColor(eNoColor);
    paragraph->setText("");

    EXPECT_EQ(paragraph->Text(), "text");
}

TEST_F(Orphans, NeedNoDocumentToBecomeMarkedFields) {
    paragraph->asMarkedField("x");
    paragraph->asMarkedField(2.0);
    cell->asMarkedField("x");
    cell->asMarkedField(2.0);

    EXPECT_EQ(paragraph->Text(), "text");
}

TEST_F(Orphans, KnowTheirWidthInTwipsOnly) {
    EXPECT_EQ(cell->Width(eTwips), 8840);
    expectNoDocument([&] { (void)cell->Width(ePercent); });
    expectNoDocument([&] { cell->setWidth(eTwips, 300); });
    expectNoDocument([&] { cell->setWidth(ePercent, 5); });
    expectNoDocument([&] { cells->SetUniformWidths(); });
    EXPECT_EQ(cell->Width(eTwips), 8840);
}

TEST_F(Orphans, HaveTheStandardDescriptionOfTheirError) {
    try {
        rows->AddTail();
        FAIL();
    } catch (const RtfError& error) {
        EXPECT_EQ(error.description, "Object variable or With block variable not set");
    }
}

TEST_F(Orphans, HaveNoTailToRemoveWithoutCells) {
    Ref<CRtfDoc> other = CRtfDoc::create();
    other->TableRows()->AddTail();
    const Ref<CRtfTableRow> empty = other->TableRows()->PeekTail();
    const Ref<CRtfTableCells> none = empty->TableCells();
    other = nullptr;

    EXPECT_EQ(errorNumberOf([&] { none->removeTail(); }), 5);
}

TEST(ClearedRows, StayUsable) {
    Held held;
    held.document->ClearStructure();

    held.rows->AddTail("second");
    held.rows->Item("second")->TableCells()->AddTail();
    held.paragraph->setText("changed");
    held.rows->Remove("row");

    EXPECT_EQ(held.rows->Count(), 1);
    EXPECT_EQ(held.rows->Item(1)->TableCells()->Count(), 1);
    EXPECT_EQ(held.paragraph->Text(), "changed");
}

TEST(ClearedRows, AreNotPartOfTheDocument) {
    Held held;
    held.document->ClearStructure();

    held.rows->AddTail();

    EXPECT_EQ(held.document->TableRows()->Count(), 0);
    EXPECT_EQ(rowsText(*held.document), "");
}

TEST(ClearedRows, StillKnowTheirDocument) {
    Held held;
    held.document->ClearStructure();

    EXPECT_EQ(held.rows->Parent(), held.document);
    EXPECT_EQ(held.row->Parent(), held.document);
    EXPECT_TRUE(marksChanged(*held.document, [&] { held.rows->AddTail(); }));
}

TEST(ClearedRows, UseThePageOfTheDocumentAsItIsThen) {
    Held held;
    held.document->setPageWidth(20000);
    held.document->ClearStructure();

    held.cells->AddTail();

    EXPECT_EQ(held.cell->Width(eTwips), 4420);
}

TEST(ClearedRows, OutliveTheDocument) {
    Held held;
    held.document->ClearStructure();

    held.document = nullptr;

    EXPECT_EQ(held.rows->Parent(), nullptr);
    EXPECT_EQ(held.rows->Count(), 1);
    EXPECT_EQ(errorNumberOf([&] { held.rows->AddTail(); }), 91);
    EXPECT_EQ(held.paragraph->Text(), "text");
}

TEST(RefiledRows, EndInAnyOrder) {
    for (const bool oldFirst : {true, false}) {
        Held held;
        Ref<CRtfTableRow> fresh = held.rows->refile(held.row, "new");
        held.document = nullptr;
        held.rows = nullptr;
        if (oldFirst) {
            held.row = nullptr;
            EXPECT_EQ(fresh->TableCells()->Item(1), held.cell);
            fresh = nullptr;
        } else {
            fresh = nullptr;
            EXPECT_EQ(held.cell->Parent(), nullptr);
            EXPECT_EQ(held.row->TableCells()->Count(), 0);
        }
        EXPECT_EQ(held.paragraph->Text(), "text");
    }
}

}  // namespace
}  // namespace quorvane
