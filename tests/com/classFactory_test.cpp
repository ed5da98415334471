#include <gtest/gtest.h>
#include <windows.h>

#include "tests/com/host/ComObject.h"
#include "tests/com/host/ComPtr.h"
#include "tests/com/host/Component.h"
#include "tests/com/host/interfaces.h"

namespace quorvane::host {
namespace {

class Factory : public testing::Test {
protected:
    ComPtr<IClassFactory> factoryOf(REFCLSID id) const {
        ComPtr<IClassFactory> factory;
        EXPECT_EQ(component_.classObject(id, __uuidof(IClassFactory), factory.outVoid()), S_OK);
        return factory;
    }

    Component component_;
};

class Outer : public ComObject<IUnknown> {};

TEST_F(Factory, MakesDocumentsAndDrivers) {
    ComPtr<_CRtfDoc> document;
    ComPtr<_CRtfDriver> driver;

    EXPECT_EQ(factoryOf(__uuidof(::CRtfDoc))
                  ->CreateInstance(nullptr, __uuidof(_CRtfDoc), document.outVoid()),
              S_OK);
    EXPECT_EQ(factoryOf(__uuidof(::CRtfDriver))
                  ->CreateInstance(nullptr, __uuidof(_CRtfDriver), driver.outVoid()),
              S_OK);

    EXPECT_TRUE(document);
    EXPECT_TRUE(driver);
}

TEST_F(Factory, MakesADocumentOfItsOwnEveryTime) {
    const auto factory = factoryOf(__uuidof(::CRtfDoc));
    ComPtr<IUnknown> first;
    ComPtr<IUnknown> second;
    factory->CreateInstance(nullptr, IID_IUnknown, first.outVoid());
    factory->CreateInstance(nullptr, IID_IUnknown, second.outVoid());

    EXPECT_NE(first.get(), second.get());
}

TEST_F(Factory, IsNotThereForClassesThatOnlyTheLibraryMakes) {
    for (const GUID& id :
         {__uuidof(::CRtfTableRows), __uuidof(::CRtfTableRow), __uuidof(::CRtfTableCells),
          __uuidof(::CRtfTableCell), __uuidof(::CRtfParagraphs), __uuidof(::CRtfParagraph),
          __uuidof(::DocumentRows), __uuidof(::DocumentRow), __uuidof(::DocumentCells),
          __uuidof(::DocumentCell), __uuidof(::DocumentParagraphs), __uuidof(::DocumentParagraph),
          __uuidof(::DocumentDiagnostics), __uuidof(::DocumentDiagnostic)}) {
        void* object = this;
        EXPECT_EQ(component_.classObject(id, IID_IUnknown, &object), CLASS_E_CLASSNOTAVAILABLE);
        EXPECT_EQ(object, nullptr);
    }
}

TEST_F(Factory, IsNotThereForUnknownClasses) {
    void* object = this;

    EXPECT_EQ(component_.classObject(IID_IUnknown, IID_IUnknown, &object),
              CLASS_E_CLASSNOTAVAILABLE);

    EXPECT_EQ(object, nullptr);
}

TEST_F(Factory, HasNoOtherInterface) {
    void* object = this;

    EXPECT_EQ(component_.classObject(__uuidof(::CRtfDoc), IID_IDispatch, &object), E_NOINTERFACE);

    EXPECT_EQ(object, nullptr);
}

TEST_F(Factory, MakesNothingWithoutTheInterface) {
    void* object = this;

    EXPECT_EQ(
        factoryOf(__uuidof(::CRtfDoc))->CreateInstance(nullptr, __uuidof(_CRtfDriver), &object),
        E_NOINTERFACE);

    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(component_.canUnloadNow(), S_OK);
}

TEST_F(Factory, RefusesAggregation) {
    const auto outer = makeCom<Outer>();
    for (const GUID& id : {__uuidof(::CRtfDoc), __uuidof(::CRtfDriver), __uuidof(::Document)}) {
        void* object = this;
        EXPECT_EQ(factoryOf(id)->CreateInstance(outer.get(), IID_IUnknown, &object),
                  CLASS_E_NOAGGREGATION);
        EXPECT_EQ(object, nullptr);
    }
}

TEST_F(Factory, RefusesNullPointers) {
    const auto factory = factoryOf(__uuidof(::CRtfDoc));

    EXPECT_EQ(component_.classObject(__uuidof(::CRtfDoc), IID_IUnknown, nullptr), E_POINTER);
    EXPECT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, nullptr), E_POINTER);
    EXPECT_EQ(factory->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

TEST_F(Factory, KeepsTheComponentLoadedWhileItIsLocked) {
    auto factory = factoryOf(__uuidof(::CRtfDoc));
    factory->LockServer(TRUE);
    factory->LockServer(TRUE);
    factory->LockServer(FALSE);
    factory.reset();
    EXPECT_EQ(component_.canUnloadNow(), S_FALSE);

    factoryOf(__uuidof(::CRtfDriver))->LockServer(FALSE);

    EXPECT_EQ(component_.canUnloadNow(), S_OK);
}

TEST_F(Factory, KeepsTheComponentLoadedWhileItIsHeld) {
    EXPECT_EQ(component_.canUnloadNow(), S_OK);
    const auto factory = factoryOf(__uuidof(::CRtfDoc));
    EXPECT_EQ(component_.canUnloadNow(), S_FALSE);
}

TEST_F(Factory, LeavesTheComponentLoadedWhileAnyObjectIsHeld) {
    auto document = component_.create<_CRtfDoc>(__uuidof(::CRtfDoc));
    EXPECT_EQ(component_.canUnloadNow(), S_FALSE);
    ComPtr<_CRtfTableRows> rows;
    ComPtr<IUnknown> enumerator;
    document->get_TableRows(rows.out());
    rows->get_NewEnum(enumerator.out());

    document.reset();
    EXPECT_EQ(component_.canUnloadNow(), S_FALSE);
    rows.reset();
    EXPECT_EQ(component_.canUnloadNow(), S_FALSE);
    enumerator.reset();
    EXPECT_EQ(component_.canUnloadNow(), S_OK);
}

TEST(Loading, WorksThousandsOfTimes) {
    for (int i = 0; i < 3000; ++i) {
        const Component component;
        const auto document = component.create<_CRtfDoc>(__uuidof(::CRtfDoc));
        ASSERT_EQ(document->put_PageWidth(i), S_OK);
    }
}

TEST(Loading, WorksThousandsOfTimesWithoutMakingAnObject) {
    for (int i = 0; i < 3000; ++i) {
        const Component component;
        ASSERT_EQ(component.canUnloadNow(), S_OK);
    }
}

}  // namespace
}  // namespace quorvane::host
