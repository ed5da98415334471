// Builds an invoice through the object model and a reminder from a description:
//
//     invoice invoice.rtf [reminder.rtf]
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

_COM_SMARTPTR_TYPEDEF(_CRtfDoc, __uuidof(_CRtfDoc));
_COM_SMARTPTR_TYPEDEF(_CRtfTableRows, __uuidof(_CRtfTableRows));
_COM_SMARTPTR_TYPEDEF(_CRtfTableRow, __uuidof(_CRtfTableRow));
_COM_SMARTPTR_TYPEDEF(_CRtfTableCells, __uuidof(_CRtfTableCells));
_COM_SMARTPTR_TYPEDEF(_CRtfTableCell, __uuidof(_CRtfTableCell));
_COM_SMARTPTR_TYPEDEF(_CRtfParagraphs, __uuidof(_CRtfParagraphs));
_COM_SMARTPTR_TYPEDEF(_CRtfParagraph, __uuidof(_CRtfParagraph));
_COM_SMARTPTR_TYPEDEF(_CRtfDriver, __uuidof(_CRtfDriver));
_COM_SMARTPTR_TYPEDEF(IConnectionPoint, __uuidof(IConnectionPoint));
_COM_SMARTPTR_TYPEDEF(IConnectionPointContainer, __uuidof(IConnectionPointContainer));
_COM_SMARTPTR_TYPEDEF(IErrorInfo, __uuidof(IErrorInfo));

// Paragraph and character styles share numbers. The unused first style keeps "label", the only
// character style, from sharing the number of a style in use.
constexpr const wchar_t* styleSheet =
    LR"(
{ name: reserved; style-def: s; format: \f0\fs20\cf3 }
{ name: normal; style-def: s; format: \f0\fs20\cf3\sb60\sa60 }
{ name: title; style-def: s; format: \f9\fs44\cf24\sa120 }
{ name: facts; style-def: s; format: \f0\fs20\cf3\sb60 }
{ name: receiver; style-def: s; format: \f0\fs22\cf3\sb700 }
{ name: address; style-def: s; format: \f0\fs22\cf3 }
{ name: column; style-def: s; format: \f0\fs18\b\cf24\sb60\sa60 }
{ name: total; style-def: s; format: \f0\fs22\b\cf24\sb80\sa80 }
{ name: note; style-def: s; format: \f0\fs20\cf3\sb600\sa160 }
{ name: label; style-def: cs; format: \cf9 }
{ name: sum; style-def: cell; format: light-yellow }
)";

constexpr const wchar_t* description =
    LR"(
(doc
(paper-width=11906)
(paper-height=16838)
(left-margin=1533)
(right-margin=1533)
(page-number-start=1)
(row
(row-bottom-border=thick)
(cell
(para
(para-text=Reminder)
(para-style=title)
para)
cell)
row)
(row
(cell
(para
(para-text=Our invoice of 2 April 2025 is still open.)
(para-style=note)
para)
cell)
row)
(row
(row-backcolor=light-yellow)
(cell
(cell-width=75)
(para
(para-text=<label=Invoice No.> 2025-0412)
(para-style=total)
para)
cell)
(cell
(cell-alignment=right)
(para
(para-text=212.50)
(para-style=total)
para)
cell)
row)
doc)
)";

struct Error {
    HRESULT result;
    std::wstring source;
    std::wstring description;
};

std::wstring textOf(const _bstr_t& text) {
    return text.length() > 0 ? static_cast<const wchar_t*>(text) : L"";
}

// The HRESULT of an error that an event handler finds: a run-time error has its plain number there.
HRESULT resultOf(DWORD number) {
    return number < 65536 ? MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number)
                          : static_cast<HRESULT>(number);
}

// Reads the error object that the component left on the thread, which removes it.
Error takeErrorObject() {
    IErrorInfoPtr info;
    if (GetErrorInfo(0, &info) != S_OK) {
        return {E_FAIL, L"", L"no error object"};
    }
    _bstr_t source;
    _bstr_t text;
    DWORD helpContext = 0;
    info->GetSource(source.GetAddress());
    info->GetDescription(text.GetAddress());
    info->GetHelpContext(&helpContext);
    return {resultOf(helpContext), textOf(source), textOf(text)};
}

// Throws the error of a method that failed.
void check(HRESULT result) {
    if (FAILED(result)) {
        Error error = takeErrorObject();
        error.result = result;
        throw error;
    }
}

void say(const std::wstring& text) {
    std::wprintf(L"%ls\n", text.c_str());
}

std::wstring replaced(std::wstring text, const std::wstring& part, const std::wstring& other) {
    for (std::size_t found = text.find(part); found != std::wstring::npos;
         found = text.find(part, found + other.size())) {
        text.replace(found, part.size(), other);
    }
    return text;
}

std::wstring errorText(const Error& error) {
    wchar_t result[11];
    std::swprintf(result, std::size(result), L"0x%08lX", static_cast<unsigned long>(error.result));
    return std::wstring(L"error ") + result + L" (" + replaced(error.source, L"\r\n", L", ") +
           L"): " + error.description;
}

// Commit raises an error if it cannot replace a file, but not if it cannot write the new one.
void checkWritten(const std::wstring& path) {
    if (GetFileAttributesW(path.c_str()) == INVALID_FILE_ATTRIBUTES) {
        throw Error{E_FAIL, L"invoice.cpp", path + L" was not written."};
    }
    say(path + L" was written.");
}

// The text of a paragraph is RTF. These three characters must be escaped in plain text.
std::wstring escaped(const std::wstring& text) {
    return replaced(replaced(replaced(text, L"\\", L"\\\\"), L"{", L"\\{"), L"}", L"\\}");
}

std::wstring money(int pence) {
    const std::wstring fraction = std::to_wstring(pence % 100);
    return std::to_wstring(pence / 100) + (fraction.size() < 2 ? L".0" : L".") + fraction;
}

void addParagraph(_CRtfTableCell* cell, const std::wstring& text, const wchar_t* style) {
    _CRtfParagraphsPtr paragraphs;
    _CRtfParagraphPtr paragraph;
    check(cell->get_Paragraphs(&paragraphs));
    check(paragraphs->AddTail(nullptr));
    check(paragraphs->PeekTail(&paragraph));
    check(paragraph->put_Text(_bstr_t(text.c_str())));
    check(paragraph->put_Style(_bstr_t(style)));
}

_CRtfTableCellPtr addEmptyCell(_CRtfTableRow* row) {
    _CRtfTableCellsPtr cells;
    _CRtfTableCellPtr cell;
    check(row->get_TableCells(&cells));
    check(cells->AddTail(nullptr));
    check(cells->PeekTail(&cell));
    return cell;
}

_CRtfTableCellPtr addCell(_CRtfTableRow* row, const std::wstring& text, const wchar_t* style,
                          tCellAlign align = eNoDefault) {
    const _CRtfTableCellPtr cell = addEmptyCell(row);
    check(cell->put_Align(align));
    addParagraph(cell, text, style);
    return cell;
}

_CRtfTableRowPtr addRow(_CRtfDoc* document) {
    _CRtfTableRowsPtr rows;
    _CRtfTableRowPtr row;
    check(document->get_TableRows(&rows));
    check(rows->AddTail(nullptr));
    check(rows->PeekTail(&row));
    return row;
}

// The key finds the row again.
_CRtfTableRowPtr addRow(_CRtfDoc* document, const wchar_t* key) {
    _variant_t keyOfRow(key);
    _CRtfTableRowsPtr rows;
    _CRtfTableRowPtr row;
    check(document->get_TableRows(&rows));
    check(rows->AddTail(&keyOfRow));
    check(rows->get_Item(keyOfRow, &row));
    return row;
}

// Adding a cell makes all cells of the row equally wide, so set the widths after adding the last
// one. The last cell takes the rest of the row.
void setWidths(_CRtfTableRow* row, const std::vector<long>& widths) {
    _CRtfTableCellsPtr cells;
    check(row->get_TableCells(&cells));
    for (std::size_t i = 0; i + 1 < widths.size(); ++i) {
        _CRtfTableCellPtr cell;
        check(cells->get_Item(_variant_t(static_cast<long>(i + 1)), &cell));
        check(cell->put_Width(ePercent, widths[i]));
    }
}

void setUpPage(_CRtfDoc* document) {
    check(document->put_PageWidth(11906));
    check(document->put_PageHeight(16838));
    check(document->put_LeftMargin(1533));
    check(document->put_RightMargin(1533));
    check(document->put_PageNumberStart(1));
    check(document->LoadStyleSheetFromMemmory(_bstr_t(styleSheet)));
}

void addHead(_CRtfDoc* document) {
    const _CRtfTableRowPtr title = addRow(document);
    addCell(title, L"Harbour Light Candles", L"title");
    const _CRtfTableCellPtr facts =
        addCell(title, L"<label=Invoice No.> 2025-0412", L"facts", eRight);
    addParagraph(facts, L"<label=Date> 2 April 2025", L"facts");
    setWidths(title, {60, 40});
    check(title->put_BottomBorder(eThick));

    // \'e9 is an e with an acute accent, as RTF writes it.
    const _CRtfTableRowPtr address = addRow(document, L"address");
    const _CRtfTableCellPtr receiver = addCell(address, L"Mr Andr\\'e9 Lindqvist", L"receiver");
    addParagraph(receiver, L"Mill Road 8", L"address");
    addParagraph(receiver, L"Castleton CT4 6QW", L"address");

    addCell(addRow(document), L"We have delivered to you:", L"note");
}

struct Item {
    std::wstring number;
    std::wstring name;
    int quantity;
    int pence;
};

void addItem(_CRtfDoc* document, const Item& item) {
    const _CRtfTableRowPtr row = addRow(document);
    const _CRtfTableCellPtr number = addCell(row, escaped(item.number), L"normal");
    // A marked field: the accounting program finds the item number here, and word processors do not
    // show it.
    check(number->asMarkedField(_variant_t((L"item " + item.number).c_str())));
    addCell(row, escaped(item.name), L"normal");
    addCell(row, std::to_wstring(item.quantity), L"normal", eRight);
    addCell(row, money(item.pence), L"normal", eRight);
    addCell(row, money(item.quantity * item.pence), L"normal", eRight);
    setWidths(row, {12, 42, 14, 14, 18});
    check(row->put_BottomBorder(eHair));
}

void addItems(_CRtfDoc* document, const std::vector<Item>& items) {
    const _CRtfTableRowPtr heading = addRow(document);
    addCell(heading, L"No.", L"column");
    addCell(heading, L"Article", L"column");
    addCell(heading, L"Quantity", L"column", eRight);
    addCell(heading, L"Price", L"column", eRight);
    addCell(heading, L"Amount", L"column", eRight);
    setWidths(heading, {12, 42, 14, 14, 18});
    check(heading->put_BackColor(eLightBlue));
    check(heading->put_TopBorder(eNormal));
    check(heading->put_BottomBorder(eNormal));

    int total = 0;
    for (const Item& item : items) {
        addItem(document, item);
        total += item.quantity * item.pence;
    }

    const _CRtfTableRowPtr sum = addRow(document);
    addEmptyCell(sum);
    for (const _CRtfTableCellPtr& cell : {addCell(sum, L"Total in pounds", L"total"),
                                          addCell(sum, money(total), L"total", eRight)}) {
        check(cell->put_Style(_bstr_t(L"sum")));
        check(cell->put_BottomBorder(eThick));
    }
    setWidths(sum, {54, 28, 18});
}

void makeInvoice(const std::wstring& path) {
    _CRtfDocPtr document;
    check(document.CreateInstance(L"Quorvane.CRtfDoc"));
    setUpPage(document);
    addHead(document);
    addItems(document, {{L"1101", L"Pillar candle, ivory, 20 cm", 12, 480},
                        {L"1108", L"Tea lights {50 pieces}", 6, 1250},
                        {L"2040", L"Storm lantern, brass", 2, 3995}});
    addCell(addRow(document),
            L"Please pay the total by 2 May 2025 to account 12345678 at Castleton Bank and quote "
            L"the number of the invoice. The goods remain our property until they are paid for.",
            L"note", eJustified);
    check(document->Commit(_bstr_t(path.c_str())));
    checkWritten(path);
}

// Listens to the event of a driver. It does not count references, so it must outlive the
// connection.
class Listener final : public IDispatch {
public:
    STDMETHODIMP QueryInterface(REFIID id, void** object) override {
        const bool isKnown =
            id == __uuidof(__CRtfDriver) || id == __uuidof(IDispatch) || id == __uuidof(IUnknown);
        *object = isKnown ? this : nullptr;
        return isKnown ? S_OK : E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return 2; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
        return E_NOTIMPL;
    }
    // The help context of the error object is the number of the error.
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                        UINT*) override {
        constexpr DISPID notifyError = 1;
        if (id == notifyError) {
            say(L"in the description: " + errorText(takeErrorObject()));
        }
        return S_OK;
    }
};

// Connects a listener to a driver for as long as it lives.
class Connection {
public:
    Connection(_CRtfDriver* driver, IDispatch* listener) {
        const IConnectionPointContainerPtr container(driver);
        check(container->FindConnectionPoint(__uuidof(__CRtfDriver), &point_));
        check(point_->Advise(listener, &cookie_));
    }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection() { point_->Unadvise(cookie_); }

private:
    IConnectionPointPtr point_;
    DWORD cookie_ = 0;
};

long rowsOf(_CRtfDriver* driver) {
    _CRtfDocPtr document;
    _CRtfTableRowsPtr rows;
    long count = 0;
    check(driver->get_RtfObject(&document));
    check(document->get_TableRows(&rows));
    check(rows->get_Count(&count));
    return count;
}

// The driver builds a document from a description. It reports errors in the description through its
// event, and raises errors of the call itself.
void makeReminder(const std::wstring& path) {
    _CRtfDriverPtr driver;
    Listener listener;
    check(driver.CreateInstance(L"Quorvane.CRtfDriver"));
    check(driver->LoadStyleSheetFromMemmory(_bstr_t(styleSheet)));
    check(driver->put_ErroneousInput(VARIANT_TRUE));
    const Connection connection(driver, &listener);

    // Without a parenthesis the description is faulty.
    const std::wstring wrong = replaced(description, L"Reminder)", L"Reminder");
    check(driver->ParseFromMemmory(_bstr_t(wrong.c_str())));
    say(L"rows built from the faulty description: " + std::to_wstring(rowsOf(driver)));

    try {
        check(driver->ParseFile(_bstr_t(L"no-such-file.rtfspec")));
    } catch (const Error& error) {
        say(errorText(error));
    }

    check(driver->ParseFromMemmory(_bstr_t(description)));
    say(L"rows built from the correct description: " + std::to_wstring(rowsOf(driver)));
    if (!path.empty()) {
        check(driver->Commit(_bstr_t(path.c_str())));
        checkWritten(path);
    }
}

int run(const std::vector<std::wstring>& paths) {
    try {
        makeInvoice(paths[0]);
        makeReminder(paths.size() > 1 ? paths[1] : L"");
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
    if (argc < 2) {
        say(L"usage: invoice INVOICE [REMINDER]");
        return 2;
    }
    const HRESULT started = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    const int status = FAILED(started) ? 1 : run({argv + 1, argv + argc});
    CoUninitialize();
    return status;
}
