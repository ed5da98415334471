// What a host holds after what it belonged to is gone, early and late bound.

#include <gtest/gtest.h>
#include <windows.h>

#include "tests/com/host/ComPtr.h"
#include "tests/com/host/Component.h"
#include "tests/com/host/LateBound.h"
#include "tests/com/host/Outcome.h"
#include "tests/com/host/Variant.h"
#include "tests/com/host/interfaces.h"
#include "tests/com/host/text.h"

namespace quorvane::host {
namespace {

constexpr HRESULT noObject = runTimeError(91);

/// Two objects are one when their IUnknown is.
template <class First, class Second>
bool isSame(const ComPtr<First>& first, const ComPtr<Second>& second) {
    return first && first.template as<IUnknown>().get() == second.template as<IUnknown>().get();
}

LateBound late(IDispatch* object) {
    return LateBound(ComPtr<IDispatch>(object));
}

LONG countOf(IDispatch* collection) {
    return late(collection).get("Count").value.number();
}

/// True when a late-bound property holds no object.
bool isNothing(const Outcome& outcome) {
    const VARIANT& value = outcome.value.get();
    return outcome.succeeded() && value.vt == VT_DISPATCH && !value.pdispVal;
}

/// A document of one row with one cell with one paragraph. Each of them is held.
class HeldObjects : public testing::Test {
protected:
    void SetUp() override {
        document_->get_TableRows(rows_.out());
        rows_->AddTail(nullptr);
        rows_->PeekTail(row_.out());
        row_->get_TableCells(cells_.out());
        cells_->AddTail(nullptr);
        cells_->PeekTail(cell_.out());
        cell_->get_Paragraphs(paragraphs_.out());
        paragraphs_->AddTail(nullptr);
        paragraphs_->PeekTail(paragraph_.out());
    }

    /// Ends what the host holds, and with it all objects of the component.
    void TearDown() override {
        paragraph_.reset();
        paragraphs_.reset();
        cell_.reset();
        cells_.reset();
        row_.reset();
        rows_.reset();
        document_.reset();
        EXPECT_EQ(component_.canUnloadNow(), S_OK);
    }

    bool isChanged() const {
        VARIANT_BOOL changed = VARIANT_FALSE;
        EXPECT_EQ(document_->get_Changed(&changed), S_OK);
        return changed != VARIANT_FALSE;
    }

    Component component_;
    ComPtr<_CRtfDoc> document_ = component_.create<_CRtfDoc>(__uuidof(::CRtfDoc));
    ComPtr<_CRtfTableRows> rows_;
    ComPtr<_CRtfTableRow> row_;
    ComPtr<_CRtfTableCells> cells_;
    ComPtr<_CRtfTableCell> cell_;
    ComPtr<_CRtfParagraphs> paragraphs_;
    ComPtr<_CRtfParagraph> paragraph_;
};

TEST_F(HeldObjects, OfARemovedCellAreItsParagraphAndThroughItTheCell) {
    cell_->put_BackColor(eBlue);
    cell_.reset();
    paragraphs_.reset();
    EXPECT_EQ(cells_->Remove(Variant(1).get()), S_OK);
    ComPtr<_CRtfTableCell> cell;
    ComPtr<_CRtfTableRow> row;
    ::tColorIndex color{};

    ASSERT_EQ(paragraph_->get_Parent(cell.out()), S_OK);
    ASSERT_TRUE(cell);
    EXPECT_EQ(cell->get_BackColor(&color), S_OK);
    EXPECT_EQ(color, eBlue);
    EXPECT_EQ(cell->get_Parent(row.out()), S_OK);
    EXPECT_TRUE(isSame(row, row_));
    const LateBound lateCell = late(paragraph_.get()).object("Parent");
    EXPECT_TRUE(isSame(ComPtr<IDispatch>(lateCell.get()), cell));
    EXPECT_TRUE(isSame(ComPtr<IDispatch>(lateCell.object("Parent").get()), row_));
}

TEST_F(HeldObjects, OfARemovedCellMarkTheDocumentChangedWhenTheTextIsSet) {
    cell_.reset();
    paragraphs_.reset();
    cells_->Remove(Variant(1).get());
    Bstr text;

    document_->put_Changed(VARIANT_FALSE);
    EXPECT_EQ(paragraph_->put_Text(Bstr(L"early").get()), S_OK);
    EXPECT_TRUE(isChanged());
    document_->put_Changed(VARIANT_FALSE);
    EXPECT_EQ(late(paragraph_.get()).set("Text", {"late"}).error, HostError{});
    EXPECT_TRUE(isChanged());
    EXPECT_EQ(paragraph_->get_Text(text.out()), S_OK);
    EXPECT_EQ(text.utf8(), "late");
}

TEST_F(HeldObjects, OfARemovedCellAreItsParagraphsAndThroughThemTheCell) {
    cell_.reset();
    paragraph_.reset();
    cells_->Remove(Variant(1).get());
    ComPtr<_CRtfTableCell> cell;
    ComPtr<_CRtfTableRow> row;
    LONG count = 0;

    ASSERT_EQ(paragraphs_->get_Parent(cell.out()), S_OK);
    ASSERT_TRUE(cell);
    EXPECT_EQ(cell->get_Parent(row.out()), S_OK);
    EXPECT_TRUE(isSame(row, row_));
    EXPECT_EQ(paragraphs_->get_Count(&count), S_OK);
    EXPECT_EQ(count, 1);
    EXPECT_TRUE(isSame(ComPtr<IDispatch>(late(paragraphs_.get()).object("Parent").get()), cell));
    EXPECT_EQ(countOf(paragraphs_.get()), 1);
}

TEST_F(HeldObjects, OfADocumentThatIsGoneAreRowsWithoutElements) {
    row_.reset();
    document_.reset();
    LONG count = 99;
    ComPtr<_CRtfDoc> parent;
    ComPtr<_CRtfTableRow> tail;

    EXPECT_EQ(rows_->get_Count(&count), S_OK);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(rows_->get_Parent(parent.out()), S_OK);
    EXPECT_FALSE(parent);
    EXPECT_EQ(rows_->PeekTail(tail.out()), S_OK);
    EXPECT_FALSE(tail);
    EXPECT_EQ(rows_->AddTail(nullptr), noObject);
    EXPECT_EQ(countOf(rows_.get()), 0);
    EXPECT_TRUE(isNothing(late(rows_.get()).get("Parent")));
    EXPECT_EQ(late(rows_.get()).call("AddTail").error.number, noObject);
}

TEST_F(HeldObjects, OfARowThatIsGoneAreCellsWithoutElements) {
    row_.reset();
    EXPECT_EQ(rows_->Remove(Variant(1).get()), S_OK);
    LONG count = 99;
    ComPtr<_CRtfTableRow> parent;
    ComPtr<_CRtfTableCell> tail;

    EXPECT_EQ(cells_->get_Count(&count), S_OK);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(cells_->get_Parent(parent.out()), S_OK);
    EXPECT_FALSE(parent);
    EXPECT_EQ(cells_->PeekTail(tail.out()), S_OK);
    EXPECT_FALSE(tail);
    EXPECT_EQ(cells_->AddTail(nullptr), noObject);
    EXPECT_EQ(cell_->get_Parent(parent.out()), S_OK);
    EXPECT_FALSE(parent);
    EXPECT_EQ(countOf(cells_.get()), 0);
    EXPECT_TRUE(isNothing(late(cells_.get()).get("Parent")));
    EXPECT_EQ(late(cells_.get()).call("AddTail").error.number, noObject);
}

}  // namespace
}  // namespace quorvane::host
