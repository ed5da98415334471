#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "tests/com/host/ComPtr.h"
#include "tests/com/host/Component.h"
#include "tests/com/host/EventConnection.h"
#include "tests/com/host/LateBound.h"
#include "tests/com/host/interfaces.h"
#include "tests/com/host/text.h"

namespace quorvane::host {
namespace {

/// Hosts that give what no host should.
class HostileHost : public testing::Test {
protected:
    HRESULT idsOf(LPOLESTR* names, UINT count, DISPID* ids) const {
        return rows_.get()->GetIDsOfNames(IID_NULL, names, count, LOCALE_USER_DEFAULT, ids);
    }
    HRESULT invoke(DISPID id, WORD kind, DISPPARAMS parameters) const {
        return rows_.get()->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters, nullptr,
                                   nullptr, nullptr);
    }

    Component component_;
    LateBound document_{component_.create<IDispatch>(__uuidof(::CRtfDoc))};
    LateBound rows_ = document_.object("TableRows");
};

TEST_F(HostileHost, GivesNoName) {
    std::wstring add = L"add";
    LPOLESTR names[] = {add.data(), nullptr};
    LPOLESTR none[] = {nullptr};
    DISPID ids[2] = {};

    EXPECT_EQ(idsOf(none, 1, ids), E_INVALIDARG);
    EXPECT_EQ(idsOf(names, 2, ids), E_INVALIDARG);
    EXPECT_EQ(idsOf(nullptr, 1, ids), E_INVALIDARG);
    EXPECT_EQ(idsOf(names, 0, ids), E_INVALIDARG);
    EXPECT_EQ(idsOf(names, 1, nullptr), E_INVALIDARG);
    EXPECT_EQ(idsOf(names, 1, ids), S_OK);
}

TEST_F(HostileHost, GivesAnotherInterfaceThanTheReservedOne) {
    std::wstring name = L"Count";
    LPOLESTR names[] = {name.data()};
    DISPID id = 0;
    DISPPARAMS parameters{};

    EXPECT_EQ(rows_.get()->GetIDsOfNames(IID_IDispatch, names, 1, LOCALE_USER_DEFAULT, &id),
              DISP_E_UNKNOWNINTERFACE);
    EXPECT_EQ(rows_.get()->Invoke(id, IID_IDispatch, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET,
                                  &parameters, nullptr, nullptr, nullptr),
              DISP_E_UNKNOWNINTERFACE);
}

TEST_F(HostileHost, GivesANullPointerForTheReservedInterface) {
    std::wstring name = L"Count";
    LPOLESTR names[] = {name.data()};
    DISPID id = 0;
    DISPPARAMS parameters{};
    Variant count;
    const IID* volatile null = nullptr;

    EXPECT_EQ(rows_.get()->GetIDsOfNames(*null, names, 1, LOCALE_USER_DEFAULT, &id), S_OK);
    EXPECT_EQ(rows_.get()->Invoke(id, *null, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &parameters,
                                  count.out(), nullptr, nullptr),
              S_OK);
    EXPECT_EQ(count.number(), 0);
}

TEST_F(HostileHost, GivesNoArgumentsWhereItSaysThatThereAreSome) {
    VARIANT argument;
    VariantInit(&argument);

    EXPECT_EQ(rows_.get()->Invoke(rows_.idOf("Count"), IID_NULL, LOCALE_USER_DEFAULT,
                                  DISPATCH_PROPERTYGET, nullptr, nullptr, nullptr, nullptr),
              E_INVALIDARG);
    EXPECT_EQ(invoke(rows_.idOf("AddTail"), DISPATCH_METHOD, {nullptr, nullptr, 1, 0}),
              E_INVALIDARG);
    EXPECT_EQ(invoke(rows_.idOf("AddTail"), DISPATCH_METHOD, {&argument, nullptr, 1, 1}),
              E_INVALIDARG);
    EXPECT_EQ(rows_.get("Count").value.number(), 0);
}

TEST_F(HostileHost, GivesValuesOfEveryTypeThatHoldNothing) {
    const auto rows = ComPtr<IDispatch>(rows_.get()).as<_CRtfTableRows>();
    const LateBound row = [this] {
        rows_.call("AddTail");
        return rows_.object("Item", {1});
    }();
    row.object("TableCells").call("AddTail");
    const LateBound cell = row.object("TableCells").object("Item", {1});
    constexpr VARTYPE mostTypes = 75;
    for (VARTYPE base = 0; base < mostTypes; ++base) {
        for (const VARTYPE flags : {VARTYPE{0}, VARTYPE{VT_BYREF}, VARTYPE{VT_ARRAY},
                                    static_cast<VARTYPE>(VT_BYREF | VT_ARRAY)}) {
            VARIANT value{};
            value.vt = base | flags;
            // Not as a Variant of the tests, which would copy it.
            DISPPARAMS one{&value, nullptr, 1, 0};
            DISPID put = DISPID_PROPERTYPUT;
            DISPPARAMS putOne{&value, &put, 1, 1};
            ComPtr<_CRtfTableRow> found;
            VARIANT out{};
            for (const char* name : {"Item", "Remove", "add", "AddHead", "AddTail"}) {
                invoke(rows_.idOf(name), DISPATCH_METHOD, one);
            }
            rows->get_Item(value, found.out());
            rows->Remove(value);
            rows->add(&value, &value, &value);
            rows->AddTail(&value);
            for (const char* name : {"PageWidth", "StyleSheetFile", "Changed"}) {
                document_.get()->Invoke(document_.idOf(name), IID_NULL, LOCALE_USER_DEFAULT,
                                        DISPATCH_PROPERTYPUT, &putOne, nullptr, nullptr, nullptr);
            }
            for (const char* name : {"Width", "asMarkedField"}) {
                cell.get()->Invoke(cell.idOf(name), IID_NULL, LOCALE_USER_DEFAULT,
                                   DISPATCH_METHOD | DISPATCH_PROPERTYGET, &one, &out, nullptr,
                                   nullptr);
            }
        }
    }

    EXPECT_TRUE(rows_.call("AddTail", {"still there"}).succeeded());
    EXPECT_TRUE(rows_.get("Item", {"still there"}).succeeded());
}

/// What a document for scripts and its parts offer to hosts.
struct ScriptMember {
    DISPID id;
    WORD kind;
    UINT arguments;
};

/// All members but those that remove a part, start a new document, or write a file whose name is
/// what a value becomes as a text.
std::vector<ScriptMember> membersToTry(const LateBound& object) {
    ComPtr<ITypeInfo> info;
    TYPEATTR* attributes = nullptr;
    EXPECT_EQ(object.get()->GetTypeInfo(0, LOCALE_USER_DEFAULT, info.out()), S_OK);
    EXPECT_EQ(info->GetTypeAttr(&attributes), S_OK);
    const std::vector<DISPID> left{object.idOf("Remove"), object.idOf("Clear"),
                                   object.idOf("Save")};
    std::vector<ScriptMember> members;
    for (UINT i = 0; i < attributes->cFuncs; ++i) {
        FUNCDESC* function = nullptr;
        EXPECT_EQ(info->GetFuncDesc(i, &function), S_OK);
        const bool isOfAutomation = (function->wFuncFlags & FUNCFLAG_FRESTRICTED) != 0;
        if (!isOfAutomation && std::find(left.begin(), left.end(), function->memid) == left.end()) {
            members.push_back({function->memid, static_cast<WORD>(function->invkind),
                               static_cast<UINT>(function->cParams)});
        }
        info->ReleaseFuncDesc(function);
    }
    info->ReleaseTypeAttr(attributes);
    return members;
}

void tryMember(const LateBound& object, const ScriptMember& member, const VARIANT& value) {
    // Not as Variants of the tests, which would copy the value.
    std::vector<VARIANT> values(member.arguments, value);
    DISPID put = DISPID_PROPERTYPUT;
    const bool isPut = member.kind == DISPATCH_PROPERTYPUT;
    DISPPARAMS parameters{values.data(), isPut ? &put : nullptr, member.arguments, isPut ? 1U : 0U};
    Variant out;
    object.get()->Invoke(member.id, IID_NULL, LOCALE_USER_DEFAULT, member.kind, &parameters,
                         out.out(), nullptr, nullptr);
}

TEST_F(HostileHost, GivesADocumentForScriptsValuesOfEveryTypeThatHoldNothing) {
    const LateBound document(component_.create<IDispatch>(__uuidof(::Document)));
    document.call("AddRow", {"x"});
    const LateBound row = document.object("Rows", {1});
    const LateBound cell = row.object("Cells", {1});
    const std::vector<LateBound> objects{document,
                                         document.object("Rows"),
                                         row,
                                         row.object("Cells"),
                                         cell,
                                         cell.object("Paragraphs"),
                                         cell.object("Paragraphs", {1}),
                                         document.object("Diagnostics")};
    VARIANT self{};
    self.vt = VT_BYREF | VT_VARIANT;
    self.pvarVal = &self;
    std::size_t tried = 0;
    for (const LateBound& object : objects) {
        for (const ScriptMember& member : membersToTry(object)) {
            constexpr VARTYPE mostTypes = 75;
            for (VARTYPE base = 0; base < mostTypes; ++base) {
                for (const int flags : {0, int{VT_BYREF}, int{VT_ARRAY}, VT_BYREF | VT_ARRAY}) {
                    VARIANT value{};
                    value.vt = static_cast<VARTYPE>(base | flags);
                    tryMember(object, member, value);
                    VARIANT reference{};
                    reference.vt = VT_BYREF | VT_VARIANT;
                    reference.pvarVal = &value;
                    tryMember(object, member, reference);
                }
            }
            tryMember(object, member, self);
            ++tried;
        }
    }

    EXPECT_GT(tried, 90U);
    EXPECT_TRUE(document.call("Clear").succeeded());
    EXPECT_TRUE(document.call("AddRow", {"still there"}).succeeded());
    EXPECT_NE(document.get("Rtf").value.text().find("still there"), std::string::npos);
}

TEST_F(HostileHost, GivesReferencesToNothing) {
    for (const VARTYPE type : {VT_I2, VT_I4, VT_R8, VT_BSTR, VT_VARIANT, VT_DISPATCH}) {
        VARIANT value{};
        value.vt = static_cast<VARTYPE>(type | VT_BYREF);
        DISPID put = DISPID_PROPERTYPUT;
        DISPPARAMS parameters{&value, &put, 1, 1};

        EXPECT_EQ(
            document_.get()->Invoke(document_.idOf("PageWidth"), IID_NULL, LOCALE_USER_DEFAULT,
                                    DISPATCH_PROPERTYPUT, &parameters, nullptr, nullptr, nullptr),
            type == VT_VARIANT ? DISP_E_PARAMNOTOPTIONAL : DISP_E_TYPEMISMATCH)
            << type;
    }
}

TEST_F(HostileHost, DoesEverythingInTheHandlerOfTheEvent) {
    LateBound driver(component_.create<IDispatch>(__uuidof(::CRtfDriver)));
    int depth = 0;
    int events = 0;
    const EventConnection connection(driver.get(), [&](const std::wstring&, DISPPARAMS& arguments) {
        const LateBound sender(ComPtr<IDispatch>(arguments.rgvarg[0].pdispVal));
        const LateBound document = sender.object("RtfObject");
        ++events;
        document.call("ClearStructure");
        document.object("TableRows").call("AddTail");
        document.object("TableRows").call("RemoveHead");
        sender.call("LoadStyleSheetFromMemmory", {"{name: x; nosuch: 1}"});
        sender.call("LoadStyleSheetFromMemmory", {"{name: n; style-def: s; format: \\b}"});
        sender.set("ErroneousInput", {events % 2 == 0});
        if (depth < 3) {
            ++depth;
            sender.call("ParseFromMemmory", {"(doc\n(row\n(bogus=1)\nrow)\ndoc)"});
            --depth;
        }
        sender.get("Contents");
        document.call("Refresh");
        return S_OK;
    });

    driver.call("ParseFromMemmory", {"(doc\n(row\n(cell\n(bogus=1)\ncell)\nrow)\n(row\ndoc)"});

    EXPECT_GT(events, 3);
    driver.call("ParseFromMemmory", {"(doc\n(row\n(cell\n(para\n(pt=again)\npara)\ncell)\nrow)\n"
                                     "doc)"});
    EXPECT_NE(driver.get("Contents").value.text().find("again"), std::string::npos);
}

}  // namespace
}  // namespace quorvane::host
