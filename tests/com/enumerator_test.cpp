#include <gtest/gtest.h>
#include <oaidl.h>
#include <windows.h>

#include <array>
#include <vector>

#include "tests/com/host/ComPtr.h"
#include "tests/com/host/Component.h"
#include "tests/com/host/Variant.h"
#include "tests/com/host/interfaces.h"

namespace quorvane::host {
namespace {

/// A row of four cells, whose borders are their numbers.
class EnumeratedCells : public testing::Test {
protected:
    void SetUp() override {
        document_->get_TableRows(rows_.out());
        rows_->AddTail(nullptr);
        ComPtr<_CRtfTableRow> row;
        rows_->PeekTail(row.out());
        row->get_TableCells(cells_.out());
        for (int i = 1; i <= 4; ++i) {
            ComPtr<_CRtfTableCell> cell;
            cells_->AddTail(nullptr);
            cells_->PeekTail(cell.out());
            cell->put_TopBorder(static_cast<tBorderWidth>(i));
        }
    }

    ComPtr<IEnumVARIANT> enumerator() const {
        ComPtr<IUnknown> enumerator;
        EXPECT_EQ(cells_->get_NewEnum(enumerator.out()), S_OK);
        return enumerator.as<IEnumVARIANT>();
    }
    static long numberOf(const Variant& element) {
        tBorderWidth border{};
        const auto cell = element.object().as<_CRtfTableCell>();
        return cell && cell->get_TopBorder(&border) == S_OK ? border : -99;
    }
    /// The numbers of all that an enumerator still passes.
    static std::vector<long> rest(IEnumVARIANT& enumerator) {
        std::vector<long> numbers;
        Variant element;
        while (enumerator.Next(1, element.out(), nullptr) == S_OK) {
            numbers.push_back(numberOf(element));
        }
        return numbers;
    }

    Component component_;
    ComPtr<_CRtfDoc> document_ = component_.create<_CRtfDoc>(__uuidof(::CRtfDoc));
    ComPtr<_CRtfTableRows> rows_;
    ComPtr<_CRtfTableCells> cells_;
};

using Numbers = std::vector<long>;

TEST_F(EnumeratedCells, ComeInOrder) {
    EXPECT_EQ(rest(*enumerator().get()), (Numbers{1, 2, 3, 4}));
}

TEST_F(EnumeratedCells, ComeSeveralAtATime) {
    const auto all = enumerator();
    std::array<VARIANT, 3> values{};
    ULONG fetched = 99;

    EXPECT_EQ(all->Next(3, values.data(), &fetched), S_OK);
    EXPECT_EQ(fetched, 3U);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(values[static_cast<std::size_t>(i)].vt, VT_DISPATCH);
        EXPECT_EQ(numberOf(Variant(values[static_cast<std::size_t>(i)])), i + 1);
        VariantClear(&values[static_cast<std::size_t>(i)]);
    }
    EXPECT_EQ(all->Next(3, values.data(), &fetched), S_FALSE);
    EXPECT_EQ(fetched, 1U);
    EXPECT_EQ(numberOf(Variant(values[0])), 4);
    VariantClear(&values[0]);
    EXPECT_EQ(all->Next(3, values.data(), &fetched), S_FALSE);
    EXPECT_EQ(fetched, 0U);
}

TEST_F(EnumeratedCells, CanBeAskedForNone) {
    VARIANT value{};
    ULONG fetched = 99;

    EXPECT_EQ(enumerator()->Next(0, &value, &fetched), S_OK);

    EXPECT_EQ(fetched, 0U);
}

TEST_F(EnumeratedCells, CanBeSkipped) {
    const auto all = enumerator();
    EXPECT_EQ(all->Skip(2), S_OK);
    EXPECT_EQ(rest(*all.get()), (Numbers{3, 4}));
    EXPECT_EQ(all->Skip(1), S_FALSE);
    EXPECT_EQ(all->Skip(0), S_OK);
    EXPECT_EQ(enumerator()->Skip(5), S_FALSE);
    EXPECT_EQ(enumerator()->Skip(0xFFFFFFFF), S_FALSE);
}

TEST_F(EnumeratedCells, CanBeginAnew) {
    const auto all = enumerator();
    rest(*all.get());
    EXPECT_EQ(all->Reset(), S_OK);
    EXPECT_EQ(rest(*all.get()), (Numbers{1, 2, 3, 4}));
}

TEST_F(EnumeratedCells, CanBeClonedWhereTheyAre) {
    const auto all = enumerator();
    ComPtr<IEnumVARIANT> clone;
    all->Skip(1);

    ASSERT_EQ(all->Clone(clone.out()), S_OK);

    EXPECT_EQ(rest(*all.get()), (Numbers{2, 3, 4}));
    EXPECT_EQ(rest(*clone.get()), (Numbers{2, 3, 4}));
    EXPECT_EQ(clone->Reset(), S_OK);
    EXPECT_EQ(rest(*clone.get()), (Numbers{1, 2, 3, 4}));
    EXPECT_EQ(rest(*all.get()), Numbers{});
}

TEST_F(EnumeratedCells, AreTheCellsOfTheCollection) {
    Variant element;
    ComPtr<_CRtfTableCell> head;
    enumerator()->Next(1, element.out(), nullptr);
    cells_->PeekHead(head.out());

    EXPECT_EQ(element.object().as<IUnknown>().get(), head.as<IUnknown>().get());
}

TEST_F(EnumeratedCells, StayThoseThatWereThereWhenTheCollectionChanges) {
    const auto all = enumerator();
    Variant element;
    all->Next(1, element.out(), nullptr);

    cells_->RemoveHead();
    cells_->RemoveHead();
    cells_->AddTail(nullptr);

    EXPECT_EQ(rest(*all.get()), (Numbers{2, 3, 4}));
}

TEST_F(EnumeratedCells, CanBeSkippedClonedAndBegunAnewWhenTheCollectionHasChanged) {
    const auto all = enumerator();
    ComPtr<IEnumVARIANT> clone;
    rest(*all.get());

    cells_->RemoveHead();
    cells_->removeTail();
    cells_->AddHead(nullptr);

    EXPECT_EQ(all->Reset(), S_OK);
    EXPECT_EQ(all->Skip(1), S_OK);
    EXPECT_EQ(all->Clone(clone.out()), S_OK);
    EXPECT_EQ(rest(*all.get()), (Numbers{2, 3, 4}));
    EXPECT_EQ(rest(*clone.get()), (Numbers{2, 3, 4}));
    EXPECT_EQ(rest(*enumerator().get()), (Numbers{-1, 2, 3}));
}

TEST_F(EnumeratedCells, OutliveCollectionAndDocument) {
    const auto all = enumerator();
    cells_.reset();
    rows_.reset();
    document_.reset();

    EXPECT_EQ(rest(*all.get()), (Numbers{1, 2, 3, 4}));
}

TEST_F(EnumeratedCells, NeedPlacesToBePut) {
    const auto all = enumerator();
    std::array<VARIANT, 2> values{};
    ULONG fetched = 99;

    EXPECT_EQ(all->Next(1, nullptr, &fetched), E_POINTER);
    EXPECT_EQ(fetched, 0U);
    EXPECT_EQ(all->Next(2, values.data(), nullptr), E_POINTER);
    EXPECT_EQ(all->Clone(nullptr), E_POINTER);
    EXPECT_EQ(all->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
    EXPECT_EQ(rest(*all.get()), (Numbers{1, 2, 3, 4}));
}

TEST_F(EnumeratedCells, AreNoneInAnEmptyCollection) {
    for (int i = 0; i < 4; ++i) {
        cells_->RemoveHead();
    }
    EXPECT_EQ(rest(*enumerator().get()), Numbers{});
}

TEST(EnumeratedRows, ComeFromAnOrdinaryMember) {
    const Component component;
    const auto document = component.create<_CRtfDoc>(__uuidof(::CRtfDoc));
    ComPtr<_CRtfTableRows> rows;
    ComPtr<IUnknown> enumerator;
    document->get_TableRows(rows.out());
    rows->AddTail(nullptr);
    rows->AddTail(nullptr);
    std::array<VARIANT, 3> values{};
    ULONG fetched = 0;

    ASSERT_EQ(rows->get_NewEnum(enumerator.out()), S_OK);
    EXPECT_EQ(enumerator.as<IEnumVARIANT>()->Next(3, values.data(), &fetched), S_FALSE);

    EXPECT_EQ(fetched, 2U);
    VariantClear(&values[0]);
    VariantClear(&values[1]);
}

}  // namespace
}  // namespace quorvane::host
