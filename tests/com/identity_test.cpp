#include <gtest/gtest.h>
#include <oaidl.h>
#include <ocidl.h>
#include <windows.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "tests/com/host/ComPtr.h"
#include "tests/com/host/Component.h"
#include "tests/com/host/LateBound.h"
#include "tests/com/host/Variant.h"
#include "tests/com/host/interfaces.h"
#include "tests/com/host/text.h"

namespace quorvane::host {
namespace {

/// A document of one row with one cell with one paragraph, and all objects on the way.
class Identity : public testing::Test {
protected:
    void SetUp() override {
        document_->get_TableRows(rows_.out());
        Variant key("row");
        rows_->AddTail(key.reference());
        rows_->PeekTail(row_.out());
        row_->get_TableCells(cells_.out());
        cells_->AddTail(nullptr);
        cells_->PeekTail(cell_.out());
        cell_->get_Paragraphs(paragraphs_.out());
        paragraphs_->AddTail(nullptr);
        paragraphs_->PeekTail(paragraph_.out());
        paragraph_->put_Text(Bstr(L"text").get());
    }

    template <class Interface>
    static IUnknown* identityOf(const ComPtr<Interface>& object) {
        return object.template as<IUnknown>().get();
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

TEST_F(Identity, IsTheSameHoweverAnObjectIsReached) {
    ComPtr<_CRtfTableRow> byPosition;
    ComPtr<_CRtfTableRow> byKey;
    ComPtr<_CRtfTableRow> head;
    ComPtr<_CRtfTableRow> byParent;
    ComPtr<_CRtfDoc> parent;
    ComPtr<_CRtfTableRows> rows;
    rows_->get_Item(Variant(1).get(), byPosition.out());
    rows_->get_Item(Variant("ROW").get(), byKey.out());
    rows_->PeekHead(head.out());
    cells_->get_Parent(byParent.out());
    row_->get_Parent(parent.out());
    document_->get_TableRows(rows.out());

    EXPECT_EQ(identityOf(byPosition), identityOf(row_));
    EXPECT_EQ(identityOf(byKey), identityOf(row_));
    EXPECT_EQ(identityOf(head), identityOf(row_));
    EXPECT_EQ(identityOf(byParent), identityOf(row_));
    EXPECT_EQ(identityOf(parent), identityOf(document_));
    EXPECT_EQ(identityOf(rows), identityOf(rows_));
    EXPECT_EQ(byKey.get(), row_.get());
}

TEST_F(Identity, OfTheDriversDocumentStays) {
    const auto driver = component_.create<_CRtfDriver>(__uuidof(::CRtfDriver));
    ComPtr<_CRtfDoc> before;
    ComPtr<_CRtfDoc> after;
    driver->get_RtfObject(before.out());
    driver->ParseFromMemmory(Bstr(L"(doc\n(r\n(c\nc)\nr)\ndoc)").get());
    driver->get_RtfObject(after.out());

    EXPECT_EQ(identityOf(before), identityOf(after));
}

TEST_F(Identity, OfTheRowsEndsWhenTheStructureIsCleared) {
    ComPtr<_CRtfTableRows> rows;
    document_->ClearStructure();
    document_->get_TableRows(rows.out());
    LONG count = 0;

    EXPECT_NE(identityOf(rows), identityOf(rows_));
    EXPECT_EQ(rows_->get_Count(&count), S_OK);
    EXPECT_EQ(count, 1);
}

TEST_F(Identity, IsOneForAllInterfacesOfAnObject) {
    const auto driver = component_.create<_CRtfDriver>(__uuidof(::CRtfDriver));
    IUnknown* const identity = identityOf(driver);

    EXPECT_EQ(identityOf(driver.as<IDispatch>()), identity);
    EXPECT_EQ(identityOf(driver.as<ISupportErrorInfo>()), identity);
    EXPECT_EQ(identityOf(driver.as<IProvideClassInfo>()), identity);
    EXPECT_EQ(identityOf(driver.as<IProvideClassInfo2>()), identity);
    EXPECT_EQ(identityOf(driver.as<IConnectionPointContainer>()), identity);
    EXPECT_EQ(driver.as<IConnectionPointContainer>().as<_CRtfDriver>().get(), driver.get());
    EXPECT_EQ(driver.as<ISupportErrorInfo>().as<IProvideClassInfo2>().as<IDispatch>().get(),
              driver.as<IDispatch>().get());
    EXPECT_FALSE(driver.as<_CRtfDoc>());
    EXPECT_FALSE(driver.as<IPersist>());
}

TEST_F(Identity, IsKeptByAnObjectThatLeftItsCollection) {
    rows_->RemoveHead();
    LONG count = 99;
    ComPtr<_CRtfDoc> parent;

    EXPECT_EQ(rows_->get_Count(&count), S_OK);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(row_->get_Parent(parent.out()), S_OK);
    EXPECT_EQ(identityOf(parent), identityOf(document_));
    EXPECT_EQ(row_->put_BackColor(eBlue), S_OK);
}

TEST_F(Identity, RefusesNullPointers) {
    EXPECT_EQ(document_->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
    EXPECT_EQ(row_->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
    EXPECT_EQ(document_->GetTypeInfoCount(nullptr), E_POINTER);
    EXPECT_EQ(document_->GetTypeInfo(0, 0, nullptr), E_POINTER);
    EXPECT_EQ(
        document_->Invoke(1, IID_NULL, 0, DISPATCH_METHOD, nullptr, nullptr, nullptr, nullptr),
        E_INVALIDARG);
    EXPECT_EQ(document_.as<IProvideClassInfo>()->GetClassInfo(nullptr), E_POINTER);
    EXPECT_EQ(
        document_.as<IProvideClassInfo2>()->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, nullptr),
        E_POINTER);
}

TEST_F(Identity, ReportsTheClassOfEveryObject) {
    const auto classOf = [](const auto& object) {
        ComPtr<ITypeInfo> info;
        Bstr name;
        const auto provider = object.template as<IProvideClassInfo>();
        if (provider && provider->GetClassInfo(info.out()) == S_OK) {
            info->GetDocumentation(MEMBERID_NIL, name.out(), nullptr, nullptr, nullptr);
        }
        return name.utf8();
    };
    EXPECT_EQ(classOf(document_), "CRtfDoc");
    EXPECT_EQ(classOf(rows_), "CRtfTableRows");
    EXPECT_EQ(classOf(row_), "CRtfTableRow");
    EXPECT_EQ(classOf(cells_), "CRtfTableCells");
    EXPECT_EQ(classOf(cell_), "CRtfTableCell");
    EXPECT_EQ(classOf(paragraphs_), "CRtfParagraphs");
    EXPECT_EQ(classOf(paragraph_), "CRtfParagraph");
}

TEST_F(Identity, OfAChildOutlivesItsDocument) {
    document_.reset();
    ComPtr<_CRtfDoc> parent;
    Bstr text;

    EXPECT_EQ(row_->get_Parent(parent.out()), S_OK);
    EXPECT_FALSE(parent);
    EXPECT_EQ(paragraph_->get_Text(text.out()), S_OK);
    EXPECT_EQ(text.utf8(), "text");
}

TEST_F(Identity, OfTheDocumentOutlivesItsDriver) {
    auto driver = component_.create<_CRtfDriver>(__uuidof(::CRtfDriver));
    ComPtr<_CRtfDoc> document;
    ComPtr<_CRtfTableRows> rows;
    LONG count = 0;
    driver->get_RtfObject(document.out());
    driver->ParseFromMemmory(Bstr(L"(doc\n(r\n(c\nc)\nr)\ndoc)").get());
    driver.reset();

    EXPECT_EQ(document->get_TableRows(rows.out()), S_OK);
    EXPECT_EQ(rows->get_Count(&count), S_OK);
    EXPECT_EQ(count, 1);
}

TEST(Lifetime, EndsWithTheLastReference) {
    const Component component;
    auto document = component.create<_CRtfDoc>(__uuidof(::CRtfDoc));

    EXPECT_EQ(document->AddRef(), 2U);
    EXPECT_EQ(document->Release(), 1U);
    EXPECT_EQ(document.detach()->Release(), 0U);
    EXPECT_EQ(component.canUnloadNow(), S_OK);
}

/// A driver and what can be reached from it, each object held once.
std::array<ComPtr<IUnknown>, 7> heldObjects(const Component& component) {
    const LateBound driver(component.create<IDispatch>(__uuidof(::CRtfDriver)));
    const LateBound document = driver.object("RtfObject");
    const LateBound rows = document.object("TableRows");
    rows.call("AddTail");
    const LateBound row = rows.object("Item", {1});
    const LateBound cells = row.object("TableCells");
    cells.call("AddTail");
    const LateBound cell = cells.object("Item", {1});
    const Outcome enumerator = cells.get("NewEnum");
    const auto held = [](const LateBound& object) { return ComPtr<IUnknown>(object.get()); };
    return {held(driver),
            held(document),
            held(rows),
            held(row),
            held(cells),
            held(cell),
            ComPtr<IUnknown>(enumerator.value.get().punkVal)};
}

TEST(Lifetime, OfObjectsEndsInAnyOrder) {
    const Component component;
    std::array<std::size_t, 7> order = {0, 1, 2, 3, 4, 5, 6};
    do {
        std::array<ComPtr<IUnknown>, 7> objects = heldObjects(component);
        for (const std::size_t each : order) {
            objects[each].reset();
        }
        ASSERT_EQ(component.canUnloadNow(), S_OK);
    } while (std::next_permutation(order.begin(), order.end()));
}

}  // namespace
}  // namespace quorvane::host
