#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "tests/com/host/ComPtr.h"
#include "tests/com/host/Component.h"
#include "tests/com/host/LateBound.h"
#include "tests/com/host/interfaces.h"
#include "tests/com/host/text.h"

namespace quorvane::host {
namespace {

/// A document as scripts see it: all calls by name.
class Dispatch : public testing::Test {
protected:
    /// The keys of the rows, which the borders show: row n was given the top border n.
    std::vector<long> order() const {
        std::vector<long> borders;
        const long count = rows_.get("Count").value.number();
        for (long i = 1; i <= count; ++i) {
            borders.push_back(rows_.object("Item", {i}).get("TopBorder").value.number());
        }
        return borders;
    }
    void addRows(long count) const {
        for (long i = 1; i <= count; ++i) {
            ASSERT_TRUE(rows_.call("AddTail", {"row" + std::to_string(i)}).succeeded());
            ASSERT_TRUE(rows_.call("PeekTail").value.object());
            LateBound(rows_.call("PeekTail").value.object()).set("TopBorder", {i});
        }
    }
    LateBound paragraph() const {
        rows_.call("AddTail");
        const LateBound cells = rows_.object("Item", {1}).object("TableCells");
        cells.call("AddTail");
        const LateBound paragraphs = cells.object("Item", {1}).object("Paragraphs");
        paragraphs.call("AddTail");
        return paragraphs.object("Item", {1});
    }

    Component component_;
    LateBound document_{component_.create<IDispatch>(__uuidof(::CRtfDoc))};
    LateBound rows_ = document_.object("TableRows");
};

Variant currency(LONGLONG tenThousandths) {
    return Variant::ofType(VT_CY, tenThousandths);
}

Variant decimal(ULONG number) {
    VARIANT value{};
    value.decVal.Lo64 = number;
    value.vt = VT_DECIMAL;
    return Variant(value);
}

TEST_F(Dispatch, FindsNamesInAnyCase) {
    EXPECT_EQ(document_.idOf("PAGEWIDTH"), document_.idOf("PageWidth"));
    EXPECT_EQ(rows_.idOf("REMOVETAIL"), 12);
}

TEST_F(Dispatch, DoesNotFindUnknownNames) {
    std::wstring name = L"NoSuchMember";
    LPOLESTR names[] = {name.data()};
    DISPID id = 0;

    EXPECT_EQ(document_.get()->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id),
              DISP_E_UNKNOWNNAME);

    EXPECT_EQ(id, DISPID_UNKNOWN);
}

TEST_F(Dispatch, FindsTheNamesOfArguments) {
    std::wstring texts[] = {L"add", L"After", L"key", L"Nowhere"};
    LPOLESTR names[] = {texts[0].data(), texts[1].data(), texts[2].data(), texts[3].data()};
    DISPID ids[4] = {};

    EXPECT_EQ(rows_.get()->GetIDsOfNames(IID_NULL, names, 3, LOCALE_USER_DEFAULT, ids), S_OK);
    EXPECT_EQ(ids[1], 2);
    EXPECT_EQ(ids[2], 0);

    EXPECT_EQ(rows_.get()->GetIDsOfNames(IID_NULL, names, 4, LOCALE_USER_DEFAULT, ids),
              DISP_E_UNKNOWNNAME);
    EXPECT_EQ(ids[3], DISPID_UNKNOWN);
}

TEST_F(Dispatch, HasItemAsDefaultMember) {
    addRows(2);

    const Outcome row = rows_.invoke(DISPID_VALUE, DISPATCH_METHOD | DISPATCH_PROPERTYGET, {2});

    EXPECT_EQ(LateBound(row.value.object()).get("TopBorder").value.number(), 2);
}

TEST_F(Dispatch, PassesArgumentsOfAPropertyOnToTheDefaultMember) {
    addRows(2);

    const Outcome row =
        document_.invoke(document_.idOf("TableRows"), DISPATCH_METHOD | DISPATCH_PROPERTYGET, {2});

    EXPECT_EQ(LateBound(row.value.object()).get("TopBorder").value.number(), 2);
}

TEST_F(Dispatch, HasTheStandardEnumeratorOnCellsAndParagraphsAndAnOrdinaryOneOnRows) {
    const LateBound cells = paragraph().object("Parent").object("Parent").object("TableCells");
    const LateBound paragraphs = cells.object("Item", {1}).object("Paragraphs");

    EXPECT_EQ(cells.idOf("NewEnum"), DISPID_NEWENUM);
    EXPECT_EQ(paragraphs.idOf("NewEnum"), DISPID_NEWENUM);
    EXPECT_EQ(rows_.idOf("NewEnum"), 1);
    EXPECT_EQ(rows_.invoke(DISPID_NEWENUM, DISPATCH_METHOD | DISPATCH_PROPERTYGET).error.number,
              DISP_E_MEMBERNOTFOUND);
    for (const WORD flags : {WORD{DISPATCH_METHOD}, WORD{DISPATCH_PROPERTYGET}}) {
        EXPECT_EQ(cells.invoke(DISPID_NEWENUM, flags).value.type(), VT_UNKNOWN);
    }
}

TEST_F(Dispatch, ReadsPropertiesAsScriptsDoThatTakeThemForFunctions) {
    const WORD either = DISPATCH_METHOD | DISPATCH_PROPERTYGET;

    EXPECT_EQ(document_.invoke(document_.idOf("PageWidth"), either).value.number(), 12242);
    EXPECT_EQ(document_.invoke(document_.idOf("PageWidth"), DISPATCH_METHOD).value.number(), 12242);
}

TEST_F(Dispatch, ReturnsFromMethodsThatAreCalledAsFunctions) {
    const Outcome outcome =
        rows_.invoke(rows_.idOf("AddTail"), DISPATCH_METHOD | DISPATCH_PROPERTYGET);

    EXPECT_TRUE(outcome.succeeded());
    EXPECT_EQ(outcome.value.type(), VT_EMPTY);
}

TEST_F(Dispatch, TakesNumbersOfAnyTypeAndNumbersInTexts) {
    const Variant sevenHundreds[] = {Variant(short{700}),
                                     Variant(700L),
                                     Variant(700.0),
                                     Variant::ofType(VT_UI2, 700),
                                     Variant::ofType(VT_UI4, 700),
                                     Variant::ofType(VT_I8, 700),
                                     Variant::ofType(VT_INT, 700),
                                     Variant("700"),
                                     Variant(" 7e2 "),
                                     currency(7000000),
                                     decimal(700)};
    for (const Variant& value : sevenHundreds) {
        document_.set("LeftMargin", {1000});
        EXPECT_TRUE(document_.set("LeftMargin", {value}).succeeded()) << value.type();
        EXPECT_EQ(document_.get("LeftMargin").value.number(), 700) << value.type();
    }
}

TEST_F(Dispatch, RoundsFractionsHalvesToEven) {
    document_.set("PageWidth", {700.5});
    EXPECT_EQ(document_.get("PageWidth").value.number(), 700);
    document_.set("PageWidth", {701.5});
    EXPECT_EQ(document_.get("PageWidth").value.number(), 702);
    document_.set("PageWidth", {-0.5});
    EXPECT_EQ(document_.get("PageWidth").value.number(), 0);
}

TEST_F(Dispatch, RefusesWhatIsNotANumber) {
    EXPECT_EQ(document_.set("PageWidth", {"wide"}).error.number, DISP_E_TYPEMISMATCH);
    EXPECT_EQ(document_.set("PageWidth", {Variant::null()}).error.number, DISP_E_TYPEMISMATCH);
    EXPECT_EQ(document_.set("PageWidth", {Variant(document_.get())}).error.number,
              DISP_E_TYPEMISMATCH);
    EXPECT_EQ(document_.set("PageWidth", {3e9}).error.number, DISP_E_OVERFLOW);
    EXPECT_EQ(document_.get("PageWidth").value.number(), 12242);
}

TEST_F(Dispatch, ReportsWhichArgumentIsBad) {
    const LateBound cell = paragraph().object("Parent");
    VARIANT values[2] = {};
    values[0].vt = VT_I4;
    values[0].lVal = 3000;
    values[1].vt = VT_NULL;
    DISPID named[] = {DISPID_PROPERTYPUT};
    DISPPARAMS parameters = {values, named, 2, 1};
    UINT bad = 99;

    EXPECT_EQ(cell.get()->Invoke(cell.idOf("Width"), IID_NULL, LOCALE_USER_DEFAULT,
                                 DISPATCH_PROPERTYPUT, &parameters, nullptr, nullptr, &bad),
              DISP_E_TYPEMISMATCH);

    EXPECT_EQ(bad, 1U);
}

TEST_F(Dispatch, TakesBooleansAsAnyTruth) {
    for (const Variant& truth :
         {Variant(true), Variant(1), Variant(-1), Variant(0.5), Variant("True"), Variant("-1")}) {
        document_.set("Changed", {false});
        EXPECT_TRUE(document_.set("Changed", {truth}).succeeded());
        EXPECT_EQ(describe(document_.get("Changed").value.get()), "True");
    }
    document_.set("Changed", {Variant()});
    EXPECT_EQ(describe(document_.get("Changed").value.get()), "False");
}

TEST_F(Dispatch, TakesNumbersWhereTextsAreExpected) {
    const LateBound paragraph = this->paragraph();
    paragraph.set("Text", {12});
    EXPECT_EQ(paragraph.get("Text").value.text(), "12");
    paragraph.set("Text", {1.5});
    EXPECT_EQ(paragraph.get("Text").value.text(), "1.5");
}

TEST_F(Dispatch, KeepsTextsAsTheyAre) {
    const LateBound paragraph = this->paragraph();
    const std::wstring texts[] = {L"\u20AC \u00C9\u0081", L"\xD83D\xDE00", L"\xD800 alone",
                                  std::wstring(L"a\0b", 3), std::wstring(100000, L'x')};
    for (const std::wstring& text : texts) {
        paragraph.set("Text", {text});
        EXPECT_EQ(paragraph.get("Text").value.wide(), text);
    }
}

TEST_F(Dispatch, TakesAMissingTextForAnEmptyOne) {
    ComPtr<_CRtfDoc> document = ComPtr<IDispatch>(document_.get()).as<_CRtfDoc>();

    EXPECT_EQ(document->put_StyleSheetFile(nullptr), S_OK);
    EXPECT_EQ(document->LoadStyleSheetFromMemmory(nullptr), S_OK);
}

TEST_F(Dispatch, FillsInOmittedArguments) {
    addRows(2);
    rows_.call("add");
    rows_.call("add", {"key"});
    rows_.call("add", {Variant::missing(), 1});
    rows_.call("add", {Variant::missing(), Variant::missing(), 1});

    EXPECT_EQ(order(), (std::vector<long>{-1, -1, 1, 2, -1, -1}));
    EXPECT_TRUE(rows_.get("Item", {"key"}).succeeded());
}

TEST_F(Dispatch, TakesNamedArgumentsInAnyOrder) {
    addRows(3);
    rows_.call("add", {}, {{"Before", 2}});
    rows_.object("Item", {2}).set("TopBorder", {20});
    rows_.call("add", {}, {{"After", 2}, {"Key", "named"}});
    rows_.object("Item", {"named"}).set("TopBorder", {30});
    rows_.call("add", {"mixed"}, {{"After", "row3"}});
    rows_.object("Item", {"mixed"}).set("TopBorder", {40});

    EXPECT_EQ(order(), (std::vector<long>{1, 20, 30, 2, 3, 40}));
}

TEST_F(Dispatch, TakesNamedVariables) {
    addRows(2);
    Variant place(2);
    Variant key("named");

    EXPECT_TRUE(rows_
                    .call("add", {},
                          {{"Before", Variant::byReference(*place.reference())},
                           {"Key", Variant::byReference(*key.reference())}})
                    .succeeded());

    EXPECT_EQ(order(), (std::vector<long>{1, -1, 2}));
    EXPECT_TRUE(rows_.get("Item", {"named"}).succeeded());
}

TEST_F(Dispatch, RefusesUnknownNamedArguments) {
    VARIANT value{};
    value.vt = VT_I4;
    DISPID named[] = {7};
    DISPPARAMS parameters = {&value, named, 1, 1};
    UINT bad = 99;

    EXPECT_EQ(rows_.get()->Invoke(rows_.idOf("add"), IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD,
                                  &parameters, nullptr, nullptr, &bad),
              DISP_E_PARAMNOTFOUND);

    EXPECT_EQ(bad, 0U);
    EXPECT_EQ(rows_.get("Count").value.number(), 0);
}

TEST_F(Dispatch, TakesVariablesAndLeavesThemAsTheyAre) {
    Variant key("key");
    Variant place(1);
    Variant again = Variant::byReference(*place.reference());
    addRows(1);

    EXPECT_TRUE(rows_
                    .call("add", {Variant::byReference(*key.reference()),
                                  Variant::byReference(*again.reference())})
                    .succeeded());

    EXPECT_EQ(order(), (std::vector<long>{-1, 1}));
    EXPECT_EQ(describe(key.get()), "BSTR key");
    EXPECT_EQ(describe(place.get()), "I4 1");
}

TEST_F(Dispatch, TakesTypedVariables) {
    addRows(2);
    BSTR text = SysAllocString(L"row2");
    VARIANT byText{};
    byText.vt = VT_BYREF | VT_BSTR;
    byText.pbstrVal = &text;
    short position = 1;
    VARIANT byPosition{};
    byPosition.vt = VT_BYREF | VT_I2;
    byPosition.piVal = &position;
    LONG margin = 900;
    VARIANT byMargin{};
    byMargin.vt = VT_BYREF | VT_I4;
    byMargin.plVal = &margin;

    const auto call = [](const LateBound& object, const char* name, WORD flags, VARIANT value) {
        DISPID named[] = {DISPID_PROPERTYPUT};
        DISPPARAMS parameters = {&value, named, 1, flags == DISPATCH_PROPERTYPUT ? 1U : 0U};
        return object.get()->Invoke(object.idOf(name), IID_NULL, LOCALE_USER_DEFAULT, flags,
                                    &parameters, nullptr, nullptr, nullptr);
    };
    EXPECT_EQ(call(rows_, "Remove", DISPATCH_METHOD, byText), S_OK);
    EXPECT_EQ(order(), std::vector<long>{1});
    EXPECT_EQ(call(rows_, "Remove", DISPATCH_METHOD, byPosition), S_OK);
    EXPECT_EQ(order(), std::vector<long>{});
    EXPECT_EQ(call(document_, "LeftMargin", DISPATCH_PROPERTYPUT, byMargin), S_OK);
    EXPECT_EQ(document_.get("LeftMargin").value.number(), 900);
    SysFreeString(text);
}

TEST_F(Dispatch, TakesPositionsOfEveryNumericType) {
    addRows(3);
    VARIANT single{};
    single.vt = VT_R4;
    single.fltVal = 2.0F;
    const Variant seconds[] = {Variant(short{2}),
                               Variant(2L),
                               Variant(2.0),
                               Variant(single),
                               Variant::ofType(VT_I1, 2),
                               Variant::ofType(VT_UI1, 2),
                               Variant::ofType(VT_UI2, 2),
                               Variant::ofType(VT_UI4, 2),
                               Variant::ofType(VT_I8, 2),
                               Variant::ofType(VT_UI8, 2),
                               Variant::ofType(VT_INT, 2),
                               Variant::ofType(VT_UINT, 2),
                               currency(20000),
                               decimal(2)};
    for (const Variant& position : seconds) {
        const Outcome found = rows_.get("Item", {position});
        ASSERT_TRUE(found.succeeded()) << position.type();
        EXPECT_EQ(LateBound(found.value.object()).get("TopBorder").value.number(), 2)
            << position.type();
    }
}

TEST_F(Dispatch, RefusesWhatIsNeitherPositionNorKey) {
    addRows(2);
    const Variant others[] = {Variant::null(),
                              Variant(true),
                              Variant(document_.get()),
                              Variant(static_cast<IDispatch*>(nullptr)),
                              Variant::ofType(VT_DATE, 0),
                              Variant::ofType(VT_ERROR, E_FAIL)};
    for (const Variant& other : others) {
        EXPECT_EQ(rows_.get("Item", {other}).error.number, runTimeError(13)) << other.type();
        EXPECT_EQ(rows_.call("Remove", {other}).error.number, runTimeError(13)) << other.type();
        EXPECT_EQ(rows_.call("AddTail", {other}).error.number, runTimeError(13)) << other.type();
    }
    EXPECT_EQ(order(), (std::vector<long>{1, 2}));
}

TEST_F(Dispatch, RefusesAVariableThatRefersToItself) {
    addRows(1);
    VARIANT circle{};
    circle.vt = VT_BYREF | VT_VARIANT;
    circle.pvarVal = &circle;
    DISPPARAMS parameters = {&circle, nullptr, 1, 0};

    EXPECT_EQ(rows_.get()->Invoke(rows_.idOf("Remove"), IID_NULL, LOCALE_USER_DEFAULT,
                                  DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr),
              DISP_E_EXCEPTION);

    EXPECT_EQ(order(), std::vector<long>{1});
}

TEST_F(Dispatch, CountsArguments) {
    EXPECT_EQ(document_.call("Refresh", {1}).error.number, DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(document_.call("Commit").error.number, DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(rows_.call("add", {1, 2, 3, 4}).error.number, DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(rows_.call("Remove").error.number, DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(document_.get("PageWidth", {1}).error.number, DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(paragraph().object("Parent").get("Width").error.number, DISP_E_BADPARAMCOUNT);
}

TEST_F(Dispatch, MissesAnArgumentThatIsNotOptional) {
    EXPECT_EQ(document_.call("Commit", {Variant::missing()}).error.number, DISP_E_PARAMNOTOPTIONAL);
}

TEST_F(Dispatch, HasAPropertyWithAParameter) {
    const LateBound cells = paragraph().object("Parent").object("Parent").object("TableCells");
    cells.call("AddTail");
    const LateBound cell = cells.object("Item", {1});

    EXPECT_TRUE(cell.set("Width", {1, 3000}).succeeded());

    EXPECT_EQ(cell.get("Width", {1}).value.number(), 3000);
    EXPECT_EQ(cell.get("Width", {"0"}).value.number(), 34);
    EXPECT_EQ(
        cell.invoke(cell.idOf("Width"), DISPATCH_METHOD | DISPATCH_PROPERTYGET, {1}).value.number(),
        3000);
}

TEST_F(Dispatch, DoesNotSetWhatCanOnlyBeRead) {
    EXPECT_EQ(document_.set("Contents", {"x"}).error.number, DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(rows_.set("Count", {1}).error.number, DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(document_.get("Refresh").error.number, DISP_E_MEMBERNOTFOUND);
}

TEST_F(Dispatch, HasNoOtherMembers) {
    EXPECT_EQ(document_.invoke(4711, DISPATCH_METHOD).error.number, DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(document_.invoke(DISPID_VALUE, DISPATCH_PROPERTYGET).error.number,
              DISP_E_MEMBERNOTFOUND);
}

TEST_F(Dispatch, NeedsNoPlaceForTheResult) {
    DISPPARAMS none = {nullptr, nullptr, 0, 0};
    for (const char* name : {"TableRows", "Contents", "PageWidth"}) {
        EXPECT_EQ(document_.get()->Invoke(document_.idOf(name), IID_NULL, LOCALE_USER_DEFAULT,
                                          DISPATCH_PROPERTYGET, &none, nullptr, nullptr, nullptr),
                  S_OK);
    }
}

TEST_F(Dispatch, ForgetsAnEarlierErrorWhenACallBegins) {
    ComPtr<ICreateErrorInfo> created;
    CreateErrorInfo(created.out());
    SetErrorInfo(0, created.as<IErrorInfo>().get());

    document_.get("PageWidth");

    ComPtr<IErrorInfo> left;
    EXPECT_EQ(GetErrorInfo(0, left.out()), S_FALSE);
}

TEST_F(Dispatch, DescribesItsInterface) {
    ComPtr<ITypeInfo> type;
    UINT count = 0;
    TYPEATTR* attributes = nullptr;

    EXPECT_EQ(document_.get()->GetTypeInfoCount(&count), S_OK);
    EXPECT_EQ(count, 1U);
    ASSERT_EQ(document_.get()->GetTypeInfo(0, LOCALE_USER_DEFAULT, type.out()), S_OK);
    ASSERT_EQ(type->GetTypeAttr(&attributes), S_OK);
    EXPECT_TRUE(IsEqualGUID(attributes->guid, __uuidof(_CRtfDoc)));
    type->ReleaseTypeAttr(attributes);
    EXPECT_EQ(document_.get()->GetTypeInfo(1, LOCALE_USER_DEFAULT, type.out()), DISP_E_BADINDEX);
}

TEST_F(Dispatch, TakesNoOtherReservedIdentifier) {
    std::wstring name = L"Refresh";
    LPOLESTR names[] = {name.data()};
    DISPID id = 0;
    DISPPARAMS none = {nullptr, nullptr, 0, 0};

    EXPECT_EQ(document_.get()->GetIDsOfNames(IID_IDispatch, names, 1, LOCALE_USER_DEFAULT, &id),
              DISP_E_UNKNOWNINTERFACE);
    EXPECT_EQ(document_.get()->Invoke(document_.idOf("Refresh"), IID_IDispatch, LOCALE_USER_DEFAULT,
                                      DISPATCH_METHOD, &none, nullptr, nullptr, nullptr),
              DISP_E_UNKNOWNINTERFACE);
}

}  // namespace
}  // namespace quorvane::host
