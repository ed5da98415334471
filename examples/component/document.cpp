// Makes an order form and a price list with Quorvane.Document:
//
//     document order.rtf prices.rtf
//
// Plain COM with the generated header of the component. It compiles with mingw-w64 (-municode
// -lole32 -loleaut32 -luuid) and with other compilers for Windows. The program must have as many
// bits as the component.

#include <windows.h>

#include <comdef.h>

#include <cstdio>
#include <cwchar>
#include <iterator>
#include <string>
#include <vector>

#include "quorvaneInterfaces.h"

namespace {

_COM_SMARTPTR_TYPEDEF(_Document, __uuidof(_Document));
_COM_SMARTPTR_TYPEDEF(_DocumentRow, __uuidof(_DocumentRow));
_COM_SMARTPTR_TYPEDEF(_DocumentCells, __uuidof(_DocumentCells));
_COM_SMARTPTR_TYPEDEF(_DocumentCell, __uuidof(_DocumentCell));
_COM_SMARTPTR_TYPEDEF(_DocumentDiagnostics, __uuidof(_DocumentDiagnostics));
_COM_SMARTPTR_TYPEDEF(_DocumentDiagnostic, __uuidof(_DocumentDiagnostic));
_COM_SMARTPTR_TYPEDEF(IErrorInfo, __uuidof(IErrorInfo));

constexpr const wchar_t* styleSheet =
    LR"(
{ name: normal; style-def: s; format: \f0\fs20\sb60\sa60 }
{ name: column; style-def: s; format: \f0\fs18\b\sb60\sa60 }
{ name: total; style-def: s; format: \f0\fs22\b\sb80\sa80 }
)";

struct Error {
    HRESULT result;
    std::wstring source;
    std::wstring description;
};

std::wstring textOf(const _bstr_t& text) {
    return text.length() > 0 ? static_cast<const wchar_t*>(text) : L"";
}

// Throws the error of a method that failed, which the component left on the thread.
void check(HRESULT result) {
    if (SUCCEEDED(result)) {
        return;
    }
    IErrorInfoPtr info;
    _bstr_t source;
    _bstr_t text;
    if (GetErrorInfo(0, &info) == S_OK) {
        info->GetSource(source.GetAddress());
        info->GetDescription(text.GetAddress());
    }
    throw Error{result, textOf(source), textOf(text)};
}

void say(const std::wstring& text) {
    std::wprintf(L"%ls\n", text.c_str());
}

std::wstring errorText(const Error& error) {
    wchar_t result[11];
    std::swprintf(result, std::size(result), L"0x%08lX", static_cast<unsigned long>(error.result));
    return std::wstring(L"error ") + result + L" (" + error.source + L"): " + error.description;
}

// An array of texts, as the component takes the cells of a row.
_variant_t arrayOf(const std::vector<const wchar_t*>& texts) {
    SAFEARRAY* const array = SafeArrayCreateVector(VT_VARIANT, 0, static_cast<ULONG>(texts.size()));
    if (!array) {
        _com_issue_error(E_OUTOFMEMORY);
    }
    _variant_t value;
    V_VT(&value) = VT_ARRAY | VT_VARIANT;
    V_ARRAY(&value) = array;
    for (LONG i = 0; i < static_cast<LONG>(texts.size()); ++i) {
        _variant_t text(texts[static_cast<std::size_t>(i)]);
        check(SafeArrayPutElement(array, &i, &text));
    }
    return value;
}

_DocumentRowPtr addRow(_Document* document, const std::vector<const wchar_t*>& texts,
                       const wchar_t* style) {
    _DocumentRowPtr row;
    _variant_t cells = arrayOf(texts);
    _variant_t name(style);
    check(document->AddRow(&cells, &name, &row));
    return row;
}

_DocumentCellPtr cellOf(_DocumentRow* row, long number) {
    _DocumentCellsPtr cells;
    _DocumentCellPtr cell;
    check(row->get_Cells(&cells));
    check(cells->get_Item(number, &cell));
    return cell;
}

void save(_Document* document, const std::wstring& path) {
    check(document->Save(_bstr_t(path.c_str())));
    say(path + L" was written.");
}

_DocumentPtr newDocument() {
    _DocumentPtr document;
    check(document.CreateInstance(L"Quorvane.Document"));
    return document;
}

void addHeading(_Document* document) {
    _DocumentRowPtr row;
    _variant_t texts = arrayOf({L"No.", L"Article", L"Quantity", L"Amount"});
    _variant_t style(L"column");
    check(document->AddHeading(&texts, &style, &row));
    check(row->put_BackColor(_bstr_t(L"#dce6f1")));
}

void makeOrder(const std::wstring& path) {
    const _DocumentPtr document = newDocument();
    check(document->put_StyleSheet(_bstr_t(styleSheet)));
    check(document->put_Columns(_variant_t(L"15 45 15 25")));
    check(document->put_Header(_bstr_t(L"Harbour Light Candles||Order 4711")));
    check(document->put_Footer(_bstr_t(L"||{page} / {pages}")));

    addHeading(document);
    const std::vector<const wchar_t*> items[] = {
        {L"1101", L"Pillar candle, ivory, 20 cm", L"12", L"57.60"},
        {L"1108", L"Tea lights {50 pieces}", L"6", L"75.00"},
        {L"2040", L"Storm lantern, brass", L"2", L"79.90"},
    };
    for (const std::vector<const wchar_t*>& item : items) {
        const _DocumentRowPtr row = addRow(document, item, L"normal");
        check(row->put_BottomBorder(_bstr_t(L"hair")));
        check(cellOf(row, 3)->put_Align(_bstr_t(L"right")));
        check(cellOf(row, 4)->put_Align(_bstr_t(L"right")));
    }
    const _DocumentRowPtr total = addRow(document, {L"Total in pounds", L"212.50"}, L"total");
    check(cellOf(total, 1)->put_Span(3));
    check(cellOf(total, 2)->put_Align(_bstr_t(L"right")));

    save(document, path);
}

void sayDiagnostics(_Document* document) {
    _DocumentDiagnosticsPtr diagnostics;
    long count = 0;
    check(document->get_Diagnostics(&diagnostics));
    check(diagnostics->get_Count(&count));
    for (long i = 1; i <= count; ++i) {
        _DocumentDiagnosticPtr diagnostic;
        _bstr_t severity;
        _bstr_t identifier;
        long line = 0;
        check(diagnostics->get_Item(i, &diagnostic));
        check(diagnostic->get_Line(&line));
        check(diagnostic->get_Severity(severity.GetAddress()));
        check(diagnostic->get_Identifier(identifier.GetAddress()));
        say(L"line " + std::to_wstring(line) + L": " + textOf(severity) + L" " +
            textOf(identifier));
    }
}

// A description that is refused changes nothing, and its diagnostics say why.
void showWhatIsWrong() {
    const _DocumentPtr document = newDocument();
    try {
        check(document->Render(_bstr_t(L"; quorvane 2\n(doc\n(page=a44)\n(row\nrow)\ndoc)"),
                               nullptr));
    } catch (const Error& error) {
        say(errorText(error));
    }
    sayDiagnostics(document);
}

void makePrices(const std::wstring& path) {
    const _DocumentPtr document = newDocument();
    _variant_t columns(L"Article:70%,Price:Price in pounds:30%");
    _variant_t title(L"Prices");
    check(document->Table(_variant_t(L"Article,Price\nPillar candle,4.80\nTea lights,12.50"),
                          &columns, &title, nullptr));
    save(document, path);
}

int run(const std::wstring& orderPath, const std::wstring& pricesPath) {
    try {
        makeOrder(orderPath);
        showWhatIsWrong();
        makePrices(pricesPath);
        return 0;
    } catch (const Error& error) {
        say(errorText(error));
    } catch (const _com_error& error) {
        say(errorText({error.Error(), L"", L"no error object"}));
    }
    return 1;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
    if (argc < 3) {
        say(L"usage: document ORDER PRICES");
        return 2;
    }
    const HRESULT started = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    const int status = FAILED(started) ? 1 : run(argv[1], argv[2]);
    CoUninitialize();
    return status;
}
