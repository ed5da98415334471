// Times of calls through the component, each beside the same calls to an empty object of the same
// process: com_bench COMPONENT, the path of the DLL.

#include <activscp.h>
#include <initguid.h>
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <stdexcept>
#include <string>

#include "bench/EmptyObject.h"
#include "quorvaneInterfaces.h"

namespace quorvane::bench {
namespace {

constexpr CLSID scriptEngine = {
    0xB54F3741, 0x5B07, 0x11CF, {0xA4, 0xB0, 0x00, 0xAA, 0x00, 0x4A, 0x55, 0xE8}};

void check(HRESULT outcome, const char* what) {
    if (FAILED(outcome)) {
        throw std::runtime_error(what);
    }
}

double seconds() {
    LARGE_INTEGER ticks;
    LARGE_INTEGER perSecond;
    QueryPerformanceCounter(&ticks);
    QueryPerformanceFrequency(&perSecond);
    return static_cast<double>(ticks.QuadPart) / static_cast<double>(perSecond.QuadPart);
}

struct Pair {
    double ours;
    double empty;
};

/// Nanoseconds of one of `count` calls, the best of several runs by turns.
Pair measure(int count, const std::function<void(int)>& ours,
             const std::function<void(int)>& empty) {
    const auto time = [count](const std::function<void(int)>& run) {
        const double start = seconds();
        run(count);
        return (seconds() - start) / count * 1e9;
    };
    Pair best{1e18, 1e18};
    for (int i = 0; i < 9; ++i) {
        best.ours = std::min(best.ours, time(ours));
        best.empty = std::min(best.empty, time(empty));
    }
    return best;
}

_CRtfDoc* newDocument(const char* path) {
    const HMODULE module = LoadLibraryA(path);
    if (!module) {
        throw std::runtime_error("cannot load the component");
    }
    using Function = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
    const auto classObject = reinterpret_cast<Function>(
        reinterpret_cast<void*>(GetProcAddress(module, "DllGetClassObject")));
    IClassFactory* factory = nullptr;
    _CRtfDoc* document = nullptr;
    check(classObject(__uuidof(CRtfDoc), IID_IClassFactory, reinterpret_cast<void**>(&factory)),
          "no class object");
    check(factory->CreateInstance(nullptr, __uuidof(_CRtfDoc), reinterpret_cast<void**>(&document)),
          "no document");
    factory->Release();
    return document;
}

DISPID idOf(IDispatch& object, const wchar_t* name) {
    DISPID id = 0;
    auto* asked = const_cast<LPOLESTR>(name);
    check(object.GetIDsOfNames(IID_NULL, &asked, 1, LOCALE_USER_DEFAULT, &id), "unknown name");
    return id;
}

void invoke(IDispatch& object, DISPID id, WORD flags, DISPPARAMS& arguments, VARIANT* result) {
    check(object.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &arguments, result, nullptr,
                        nullptr),
          "a call failed");
}

// What a compiled host does that knows the object by names only.

void call(IDispatch& object, const wchar_t* name) {
    DISPPARAMS none{};
    invoke(object, idOf(object, name), DISPATCH_METHOD, none, nullptr);
}

IDispatch* objectOf(IDispatch& object, const wchar_t* name) {
    DISPPARAMS none{};
    VARIANT result;
    VariantInit(&result);
    invoke(object, idOf(object, name), DISPATCH_METHOD | DISPATCH_PROPERTYGET, none, &result);
    return V_DISPATCH(&result);
}

void put(IDispatch& object, const wchar_t* name, const wchar_t* text) {
    VARIANT value;
    V_VT(&value) = VT_BSTR;
    V_BSTR(&value) = SysAllocString(text);
    DISPID kind = DISPID_PROPERTYPUT;
    DISPPARAMS arguments{&value, &kind, 1, 1};
    invoke(object, idOf(object, name), DISPATCH_PROPERTYPUT, arguments, nullptr);
    VariantClear(&value);
}

void buildRow(IDispatch& rows) {
    call(rows, L"AddTail");
    IDispatch* row = objectOf(rows, L"PeekTail");
    IDispatch* cells = objectOf(*row, L"TableCells");
    for (int i = 0; i < 5; ++i) {
        call(*cells, L"AddTail");
        IDispatch* cell = objectOf(*cells, L"PeekTail");
        IDispatch* paragraphs = objectOf(*cell, L"Paragraphs");
        call(*paragraphs, L"AddTail");
        IDispatch* paragraph = objectOf(*paragraphs, L"PeekTail");
        put(*paragraph, L"Text", L"Article 0012345 in box 3");
        put(*paragraph, L"Style", L"normal");
        paragraph->Release();
        paragraphs->Release();
        cell->Release();
    }
    cells->Release();
    row->Release();
}

constexpr const wchar_t* script =
    L"Sub build(count)\n"
    L"Dim i, j, row, cells, cell, paragraphs, paragraph\n"
    L"For i = 1 To count\n"
    L"rows.AddTail\n"
    L"Set row = rows.PeekTail\n"
    L"Set cells = row.TableCells\n"
    L"For j = 1 To 5\n"
    L"cells.AddTail\n"
    L"Set cell = cells.PeekTail\n"
    L"Set paragraphs = cell.Paragraphs\n"
    L"paragraphs.AddTail\n"
    L"Set paragraph = paragraphs.PeekTail\n"
    L"paragraph.Text = \"Article 0012345 in box 3\"\n"
    L"paragraph.Style = \"normal\"\n"
    L"Next\n"
    L"Next\n"
    L"End Sub\n";

/// A script that builds rows in the object that it knows as `rows`.
class Script : public IActiveScriptSite {
public:
    explicit Script(IDispatch& rows) : rows_(rows) {
        check(CoCreateInstance(scriptEngine, nullptr, CLSCTX_INPROC_SERVER, IID_IActiveScript,
                               reinterpret_cast<void**>(&engine_)),
              "there is no script engine");
        check(engine_->QueryInterface(__uuidof(IActiveScriptParse),
                                      reinterpret_cast<void**>(&parse_)),
              "the engine takes no text");
        check(parse_->InitNew(), "the engine does not start");
        check(engine_->SetScriptSite(this), "the engine takes no host");
        check(engine_->AddNamedItem(L"rows", SCRIPTITEM_ISVISIBLE), "the engine takes no object");
        run(script);
        check(engine_->SetScriptState(SCRIPTSTATE_CONNECTED), "the engine does not run");
    }
    Script(const Script&) = delete;
    Script& operator=(const Script&) = delete;
    ~Script() {
        parse_->Release();
        engine_->Close();
        engine_->Release();
    }

    void build(int count) { run((L"build " + std::to_wstring(count)).c_str()); }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        const bool isKnown = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IActiveScriptSite);
        *object = isKnown ? this : nullptr;
        return isKnown ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE GetLCID(LCID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetItemInfo(LPCOLESTR, DWORD wanted, IUnknown** item,
                                          ITypeInfo** info) override {
        if (wanted & SCRIPTINFO_IUNKNOWN) {
            rows_.AddRef();
            *item = &rows_;
        }
        if (wanted & SCRIPTINFO_ITYPEINFO) {
            *info = nullptr;
        }
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetDocVersionString(BSTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnScriptTerminate(const VARIANT*, const EXCEPINFO*) override {
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE OnStateChange(SCRIPTSTATE) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnScriptError(IActiveScriptError*) override {
        failed_ = true;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE OnEnterScript() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnLeaveScript() override { return S_OK; }

private:
    void run(const wchar_t* text) {
        const HRESULT outcome =
            parse_->ParseScriptText(text, nullptr, nullptr, nullptr, 0, 0, 0, nullptr, nullptr);
        if (FAILED(outcome) || failed_) {
            throw std::runtime_error("the script failed");
        }
    }

    IDispatch& rows_;
    IActiveScript* engine_ = nullptr;
    IActiveScriptParse* parse_ = nullptr;
    bool failed_ = false;
};

void printRatio(const char* what, const Pair& pair) {
    std::printf("- %s, to the empty object's: %.2f (%.1f and %.1f ns)\n", what,
                pair.ours / pair.empty, pair.ours, pair.empty);
}

void measureAll(const char* component) {
    _CRtfDoc* document = newDocument(component);
    INumber& empty = emptyObject();
    volatile long sink = 0;

    const auto early = [&sink](auto& object, int count) {
        long number = 0;
        for (int i = 0; i < count; ++i) {
            object.get_PageWidth(&number);
            sink = number;
        }
    };
    printRatio("Early-bound property get",
               measure(
                   10000000, [&](int count) { early(*document, count); },
                   [&](int count) { early(empty, count); }));

    const auto late = [&sink](IDispatch& object, int count) {
        const DISPID id = idOf(object, L"PageWidth");
        for (int i = 0; i < count; ++i) {
            DISPPARAMS none{};
            VARIANT result;
            VariantInit(&result);
            invoke(object, id, DISPATCH_PROPERTYGET, none, &result);
            sink = V_I4(&result);
        }
    };
    const Pair dispatch = measure(
        2000000, [&](int count) { late(*document, count); },
        [&](int count) { late(empty, count); });
    std::printf("- IDispatch call to an integer property, beyond the empty object's: %.1f ns\n",
                dispatch.ours - dispatch.empty);

    _CRtfTableRows* rows = nullptr;
    check(document->get_TableRows(&rows), "no rows");
    const auto build = [](IDispatch& object, int count) {
        for (int i = 0; i < count; ++i) {
            buildRow(object);
        }
    };
    printRatio("Row of five cells from a compiled late-bound client",
               measure(
                   2000, [&](int count) { build(*rows, count); },
                   [&](int count) { build(empty, count); }));
    Script ourScript(*rows);
    Script emptyScript(empty);
    printRatio("Row of five cells from a script",
               measure(
                   2000, [&](int count) { ourScript.build(count); },
                   [&](int count) { emptyScript.build(count); }));
    rows->Release();
    document->Release();
}

}  // namespace
}  // namespace quorvane::bench

int main(int argc, char** argv) {
    if (argc != 2) {
        static_cast<void>(std::fprintf(stderr, "usage: %s COMPONENT\n", argv[0]));
        return 2;
    }
    CoInitialize(nullptr);
    int status = 0;
    try {
        quorvane::bench::measureAll(argv[1]);
    } catch (const std::exception& error) {
        static_cast<void>(std::fprintf(stderr, "%s\n", error.what()));
        status = 1;
    }
    CoUninitialize();
    return status;
}
