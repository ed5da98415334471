#include <gtest/gtest.h>
#include <ocidl.h>
#include <windows.h>

#include <functional>
#include <memory>
#include <string>

#include "tests/com/host/ComObject.h"
#include "tests/com/host/ComPtr.h"
#include "tests/com/host/Component.h"
#include "tests/com/host/Process.h"
#include "tests/com/host/ScarceMemory.h"
#include "tests/com/host/Variant.h"
#include "tests/com/host/heapAllocations.h"
#include "tests/com/host/interfaces.h"
#include "tests/com/host/text.h"

namespace quorvane::host {
namespace {

/// What a host does; returns the first failure of the component.
using Work = std::function<HRESULT(const Component&)>;

/// Goes from call to call as long as they succeed.
class Calls {
public:
    /// When there is one, a call that found no memory is made again after it.
    static inline std::function<void()> relief;

    template <class Call>
    Calls& operator()(Call&& call) {
        if (SUCCEEDED(result_)) {
            result_ = call();
            if (result_ == E_OUTOFMEMORY && relief) {
                relief();
                result_ = call();
            }
        }
        return *this;
    }
    HRESULT result() const { return result_; }

private:
    HRESULT result_ = S_OK;
};

template <class Interface>
HRESULT create(const Component& component, REFCLSID id, ComPtr<Interface>& object) {
    ComPtr<IClassFactory> factory;
    const HRESULT result = component.classObject(id, IID_IClassFactory, factory.outVoid());
    return FAILED(result) ? result
                          : factory->CreateInstance(nullptr, __uuidof(Interface), object.outVoid());
}

constexpr const char* styles =
    "{name: normal; style-def: s; format: \\f9\\fs20}{name: b; style-def: cs; format: \\b}"
    "{name: a shaded cell's style; style-def: cell; format: navy-blue}";
constexpr const char* text = "A text that is longer than what fits <b=anywhere> else";

/// A width that the enumeration has no name for, as hosts may give.
::tBorderWidth borderOf(int twips) {
    return static_cast<::tBorderWidth>(twips);
}

/// A file that is there as long as this lives.
class WrittenFile {
public:
    WrittenFile(const wchar_t* name, const std::string& bytes)
        : name_(temporaryFile(name)), path_(name_) {
        writeFile(name_, bytes);
    }
    WrittenFile(const WrittenFile&) = delete;
    WrittenFile& operator=(const WrittenFile&) = delete;
    ~WrittenFile() { DeleteFileW(name_.c_str()); }

    BSTR path() const { return path_.get(); }
    std::string bytes() const { return bytesOfFile(name_); }

private:
    std::wstring name_;
    Bstr path_;
};

/// Rows, cells or paragraphs: adds, finds and removes elements, and leaves one, which has the key.
template <class Collection, class Element>
void fillCollection(Calls& calls, ComPtr<Collection>& collection, Variant& key,
                    ComPtr<Element>& element) {
    Variant other("another key that is long");
    ComPtr<IUnknown> enumerator;
    ComPtr<IEnumVARIANT> clone;
    Variant enumerated;
    calls([&] { return collection->AddTail(key.reference()); });
    calls([&] { return collection->add(other.reference(), key.reference(), nullptr); });
    calls([&] { return collection->AddHead(nullptr); });
    calls([&] { return collection->AddTail(nullptr); });
    calls([&] { return collection->PeekHead(element.out()); });
    calls([&] { return collection->PeekTail(element.out()); });
    calls([&] { return collection->get_NewEnum(enumerator.out()); });
    calls([&] { return enumerator.template as<IEnumVARIANT>()->Clone(clone.out()); });
    calls([&] { return clone->Next(1, enumerated.out(), nullptr); });
    calls([&] { return enumerated.object()->QueryInterface(element.out()); });
    calls([&] { return collection->RemoveHead(); });
    calls([&] { return collection->removeTail(); });
    calls([&] { return collection->Remove(other.get()); });
    calls([&] { return collection->get_Item(key.get(), element.out()); });
}

/// Builds a document, commits it and reads it, with all that can need memory on the way. `read`
/// becomes all that was read.
Work buildingByHand(std::string& read) {
    const auto styleSheet = std::make_shared<WrittenFile>(L"scarce.rtfss", styles);
    return [&read, styleSheet](const Component& component) {
        const WrittenFile document(L"scarce.rtf", "");
        const Bstr styleText((std::string(styles)));
        const Bstr paragraphText((std::string(text)));
        const Bstr paragraphStyle(std::string("normal"));
        const Bstr cellStyle(std::string("a shaded cell's style"));
        // A border of usual width needs no memory of its own.
        const ::tBorderWidth wide = borderOf(20000);
        Variant key("key");
        Bstr value;
        ::tColorIndex color = eNoColor;
        ComPtr<_CRtfDoc> doc;
        ComPtr<_CRtfTableRows> rows;
        ComPtr<_CRtfTableRow> row;
        ComPtr<_CRtfTableCells> cells;
        ComPtr<_CRtfTableCell> cell;
        ComPtr<_CRtfParagraphs> paragraphs;
        ComPtr<_CRtfParagraph> paragraph;
        Calls calls;
        read.clear();
        const auto reading = [&](auto&& call) {
            calls(call);
            read += value.utf8() + "\n";
        };
        calls([&] { return create(component, __uuidof(::CRtfDoc), doc); });
        calls([&] { return doc->put_StyleSheetFile(styleSheet->path()); });
        calls([&] { return doc->get_StyleSheetFile(value.out()); });
        read += textOf(value.get()) == textOf(styleSheet->path()) ? "its name\n" : "another name\n";
        calls([&] { return doc->LoadStyleSheetFromMemmory(styleText.get()); });
        calls([&] { return doc->getCellStyleBackColor(cellStyle.get(), &color); });
        read += std::to_string(color) + "\n";
        calls([&] { return doc->put_LeftMargin(1000); });
        calls([&] { return doc->get_TableRows(rows.out()); });
        fillCollection(calls, rows, key, row);
        calls([&] { return row->get_TableCells(cells.out()); });
        calls([&] { return cells->AddTail(nullptr); });
        fillCollection(calls, cells, key, cell);
        calls([&] { return cells->SetUniformWidths(); });
        calls([&] { return row->put_LeftBorder(wide); });
        calls([&] { return row->put_BackColor(eGold); });
        calls([&] { return cell->put_TopBorder(wide); });
        calls([&] { return cell->put_Width(eTwips, 3000); });
        calls([&] { return cell->put_Style(cellStyle.get()); });
        reading([&] { return cell->get_Style(value.out()); });
        calls([&] { return cell->asMarkedField(key.get()); });
        calls([&] { return cell->get_Paragraphs(paragraphs.out()); });
        fillCollection(calls, paragraphs, key, paragraph);
        calls([&] { return paragraph->put_Text(paragraphText.get()); });
        reading([&] { return paragraph->get_Text(value.out()); });
        calls([&] { return paragraph->put_Style(paragraphStyle.get()); });
        reading([&] { return paragraph->get_Style(value.out()); });
        calls([&] { return paragraph->asMarkedField(key.get()); });
        // What nobody holds any more is wrapped anew.
        cell.reset();
        row.reset();
        rows.reset();
        calls([&] { return paragraphs->get_Parent(cell.out()); });
        calls([&] { return cell->get_Parent(row.out()); });
        calls([&] { return doc->get_TableRows(rows.out()); });
        calls([&] { return doc->Commit(document.path()); });
        read += document.bytes() + "\n";
        reading([&] { return doc->get_Contents(value.out()); });
        calls([&] { return doc->Refresh(); });
        calls([&] { return doc->ClearStructure(); });
        reading([&] { return doc->get_Contents(value.out()); });
        return calls.result();
    };
}

/// Drives a description that has an error, from a file and from its text, with a sink of its event.
/// `read` becomes all that was read.
Work driving(std::string& read, int& events) {
    class Sink : public ComObject<IDispatch> {
    public:
        explicit Sink(int& events) : events_(events) {}
        HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
        HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override {
            return E_NOTIMPL;
        }
        HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
            return E_NOTIMPL;
        }
        HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*,
                                         EXCEPINFO*, UINT*) override {
            ++events_;
            return S_OK;
        }

    private:
        int& events_;
    };
    const std::string lines =
        "(doc\n(r\n(c\n(cb=Crimson)\n(p\n(pt=a text)\n(ps=b)\np)\nc)\nr)\ndoc)";
    const auto file = std::make_shared<WrittenFile>(L"scarce.rtfspec", lines);
    const auto styleSheet = std::make_shared<WrittenFile>(L"scarce.rtfss", styles);
    return [&read, &events, lines, file, styleSheet](const Component& component) {
        const auto sink = makeCom<Sink>(events);
        const WrittenFile committed(L"scarce.rtf", "");
        const Bstr description(lines);
        const Bstr styleText((std::string(styles)));
        Bstr value;
        ComPtr<_CRtfDriver> driver;
        ComPtr<IConnectionPoint> point;
        ComPtr<IEnumConnections> connections;
        ComPtr<IEnumConnectionPoints> points;
        ComPtr<_CRtfDoc> document;
        DWORD cookie = 0;
        Calls calls;
        events = 0;
        read.clear();
        const auto reading = [&](auto&& call) {
            calls(call);
            read += value.utf8() + "\n";
        };
        calls([&] { return create(component, __uuidof(::CRtfDriver), driver); });
        calls([&] {
            return driver.as<IConnectionPointContainer>()->FindConnectionPoint(
                __uuidof(__CRtfDriver), point.out());
        });
        calls([&] {
            return driver.as<IConnectionPointContainer>()->EnumConnectionPoints(points.out());
        });
        calls([&] { return point->Advise(sink.get(), &cookie); });
        calls([&] { return point->EnumConnections(connections.out()); });
        calls([&] { return driver->put_ErroneousInput(VARIANT_TRUE); });
        calls([&] { return driver->put_StyleSheetFile(styleSheet->path()); });
        calls([&] { return driver->get_StyleSheetFile(value.out()); });
        read += textOf(value.get()) == textOf(styleSheet->path()) ? "its name\n" : "another name\n";
        calls([&] { return driver->ParseFile(file->path()); });
        reading([&] { return driver->get_Contents(value.out()); });
        calls([&] { return driver->LoadStyleSheetFromMemmory(styleText.get()); });
        calls([&] { return driver->ParseFromMemmory(description.get()); });
        calls([&] { return driver->Commit(committed.path()); });
        read += committed.bytes() + "\n";
        calls([&] { return driver->get_RtfObject(document.out()); });
        reading([&] { return document->get_Contents(value.out()); });
        calls([&] { return cookie != 0 ? point->Unadvise(cookie) : S_OK; });
        return calls.result();
    };
}

/// Builds documents for scripts in every way. `read` becomes all that was read.
Work buildingForScripts(std::string& read) {
    return [&read](const Component& component) {
        Variant widths("40 60");
        Variant given("a text that takes memory of its own");
        const Variant table("Name,Price\nVase with a long name,12\n");
        const Bstr description(std::string(
            "; quorvane 2\n(doc\n(row\n(cell\n(para\n(pt={{name}})\npara)\ncell)\nrow)\ndoc)\n"));
        const Bstr json(std::string(R"({"name": "a name that takes memory of its own"})"));
        const Bstr color(std::string("#f2f6fa"));
        Bstr value;
        ComPtr<_Document> document;
        ComPtr<_DocumentRow> row;
        ComPtr<_DocumentCells> cells;
        ComPtr<_DocumentCell> cell;
        ComPtr<_DocumentDiagnostics> diagnostics;
        Calls calls;
        read.clear();
        const auto reading = [&](auto&& call) {
            calls(call);
            read += value.utf8() + "\n";
        };
        calls([&] { return create(component, __uuidof(::Document), document); });
        calls([&] { return document->put_Columns(widths.get()); });
        calls([&] { return document->AddRow(given.reference(), nullptr, row.out()); });
        calls([&] { return row->put_BackColor(color.get()); });
        calls([&] { return row->get_Cells(cells.out()); });
        calls([&] { return cells->get_Item(1, cell.out()); });
        reading([&] { return document->get_Rtf(value.out()); });
        calls([&] { return document->Table(table.get(), nullptr, nullptr, nullptr); });
        reading([&] { return document->get_Rtf(value.out()); });
        calls([&] { return document->RenderData(description.get(), nullptr, json.get()); });
        reading([&] { return document->get_Rtf(value.out()); });
        calls([&] { return document->get_Diagnostics(diagnostics.out()); });
        return calls.result();
    };
}

/// Calls a member by its name.
HRESULT callByName(IDispatch& object, const wchar_t* name, WORD kind, DISPPARAMS& arguments,
                   VARIANT* result) {
    std::wstring writable = name;
    LPOLESTR names[] = {writable.data()};
    DISPID id = DISPID_UNKNOWN;
    EXCEPINFO exception{};
    HRESULT outcome = object.GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
    if (SUCCEEDED(outcome)) {
        outcome = object.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, kind, &arguments, result,
                                &exception, nullptr);
    }
    SysFreeString(exception.bstrSource);
    SysFreeString(exception.bstrDescription);
    return outcome == DISP_E_EXCEPTION ? exception.scode : outcome;
}

/// Uses a document late bound.
HRESULT workLateBound(const Component& component) {
    DISPPARAMS none{};
    Variant rows;
    Variant row;
    Variant contents;
    Variant key("key");
    DISPPARAMS keyOnly{key.reference(), nullptr, 1, 0};
    Variant width(700);
    DISPID value = DISPID_PROPERTYPUT;
    DISPPARAMS put{width.reference(), &value, 1, 1};
    ComPtr<IDispatch> document;
    ComPtr<ITypeInfo> info;
    Calls calls;
    calls([&] { return create(component, __uuidof(::CRtfDoc), document); });
    calls([&] {
        return callByName(*document.get(), L"PageWidth", DISPATCH_PROPERTYPUT, put, nullptr);
    });
    calls([&] {
        return callByName(*document.get(), L"TableRows", DISPATCH_PROPERTYGET, none, rows.out());
    });
    calls([&] {
        return callByName(*rows.object().get(), L"AddTail", DISPATCH_METHOD, keyOnly, nullptr);
    });
    calls([&] {
        return callByName(*rows.object().get(), L"Item", DISPATCH_PROPERTYGET, keyOnly, row.out());
    });
    calls([&] {
        return callByName(*document.get(), L"Contents", DISPATCH_PROPERTYGET, none, contents.out());
    });
    calls([&] { return document.as<IProvideClassInfo>()->GetClassInfo(info.out()); });
    return calls.result();
}

/// An error with a description and a source.
HRESULT fail(const Component& component) {
    ComPtr<_CRtfDriver> driver;
    const HRESULT result = create(component, __uuidof(::CRtfDriver), driver);
    return FAILED(result) ? result : driver->ParseFile(nullptr);
}

/// Does the work again and again, until no allocation is left that could fail.
void expectOnlyOutOfMemory(const Work& work, HRESULT usual,
                           const std::function<void()>& checkWhenDone) {
    const Component component;
    // What the thread needs once.
    ASSERT_EQ(work(component), usual);
    ScarceMemory memory(component.module());
    // In this order: the run-time library keeps a reserve for exceptions, and for its first use
    // needs a little memory.
    for (const Shortage shortage : {Shortage::Once, Shortage::Twice, Shortage::FromThenOn}) {
        int number = 0;
        for (bool failed = true; failed;) {
            memory.begin(++number, shortage);
            const HRESULT result = work(component);
            failed = memory.end();

            if (result == usual) {
                checkWhenDone();
            } else {
                EXPECT_TRUE(failed);
                EXPECT_EQ(result, E_OUTOFMEMORY) << "allocation " << number;
            }
            ASSERT_EQ(component.canUnloadNow(), S_OK) << "allocation " << number;
        }
        EXPECT_GT(number, 5);
    }
}

TEST(ScarceMemory, LeavesADocumentThatIsBuiltByHandWholeOrReportsTheShortage) {
    std::string contents;
    buildingByHand(contents)(Component());
    const std::string expected = contents;

    expectOnlyOutOfMemory(buildingByHand(contents), S_OK, [&] { EXPECT_EQ(contents, expected); });
}

TEST(ScarceMemory, LeavesADescribedDocumentWholeOrReportsTheShortage) {
    std::string contents;
    int events = 0;
    driving(contents, events)(Component());
    const std::string expected = contents;
    const int expectedEvents = events;
    ASSERT_GT(expectedEvents, 0);

    expectOnlyOutOfMemory(driving(contents, events), S_OK, [&] {
        EXPECT_EQ(contents, expected);
        EXPECT_EQ(events, expectedEvents);
    });
}

TEST(ScarceMemory, LeavesDocumentsForScriptsWholeOrReportsTheShortage) {
    std::string contents;
    ASSERT_EQ(buildingForScripts(contents)(Component()), S_OK);
    const std::string expected = contents;

    expectOnlyOutOfMemory(buildingForScripts(contents), S_OK,
                          [&] { EXPECT_EQ(contents, expected); });
}

TEST(ScarceMemory, IsReportedToLateBoundHosts) {
    expectOnlyOutOfMemory(workLateBound, S_OK, [] {});
}

TEST(ScarceMemory, LetsTheNumberOfAnErrorThrough) {
    expectOnlyOutOfMemory(fail, static_cast<HRESULT>(0x80040000 + eWrongPath), [] {});
}

/// Does the work again and again; a call that finds no memory is made a second time, with memory.
/// Then all is as if it had never been short.
void expectWorkGoesOn(const Work& work, const std::function<void()>& checkWhenDone) {
    const Component component;
    ASSERT_EQ(work(component), S_OK);
    ScarceMemory memory(component.module());
    int reliefs = 0;
    Calls::relief = [&] {
        memory.end();
        ++reliefs;
    };
    for (const Shortage shortage : {Shortage::Once, Shortage::Twice, Shortage::FromThenOn}) {
        int number = 0;
        do {
            memory.begin(++number, shortage);
            ASSERT_EQ(work(component), S_OK) << "allocation " << number;
            checkWhenDone();
        } while (memory.end());
    }
    Calls::relief = nullptr;
    EXPECT_GT(reliefs, 50);
}

TEST(ScarceMemory, LeavesADocumentAsItWasBeforeTheCallThatFailed) {
    std::string contents;
    buildingByHand(contents)(Component());
    const std::string expected = contents;

    expectWorkGoesOn(buildingByHand(contents), [&] { EXPECT_EQ(contents, expected); });
}

TEST(ScarceMemory, LeavesADriverThatCanBeginAnew) {
    std::string contents;
    int events = 0;
    driving(contents, events)(Component());
    const std::string expected = contents;

    expectWorkGoesOn(driving(contents, events), [&] { EXPECT_EQ(contents, expected); });
}

TEST(ScarceMemory, TakesNothingForGood) {
    std::string contents;
    int events = 0;
    const auto failAll = [&] {
        expectOnlyOutOfMemory(buildingByHand(contents), S_OK, [] {});
        expectOnlyOutOfMemory(driving(contents, events), S_OK, [] {});
        expectOnlyOutOfMemory(workLateBound, S_OK, [] {});
    };
    failAll();
    const std::size_t before = heapAllocations().count;

    failAll();

    // One allocation kept per failure would be hundreds of them.
    EXPECT_LT(heapAllocations().count, before + 20);
}

}  // namespace
}  // namespace quorvane::host
