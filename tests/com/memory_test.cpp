#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "tests/com/host/ComPtr.h"
#include "tests/com/host/Component.h"
#include "tests/com/host/EventConnection.h"
#include "tests/com/host/LateBound.h"
#include "tests/com/host/heapAllocations.h"
#include "tests/com/host/interfaces.h"
#include "tests/com/host/text.h"

namespace quorvane::host {
namespace {

/// What a host does with one document.
void buildByHand(const Component& component) {
    const auto document = component.create<_CRtfDoc>(__uuidof(::CRtfDoc));
    ComPtr<_CRtfTableRows> rows;
    ComPtr<_CRtfTableRow> row;
    ComPtr<_CRtfTableCells> cells;
    ComPtr<_CRtfTableCell> cell;
    ComPtr<_CRtfParagraphs> paragraphs;
    ComPtr<_CRtfParagraph> paragraph;
    ComPtr<IUnknown> enumerator;
    Bstr contents;
    Variant key("key");
    document->get_TableRows(rows.out());
    rows->AddTail(key.reference());
    rows->get_Item(key.get(), row.out());
    row->get_TableCells(cells.out());
    cells->AddTail(nullptr);
    cells->PeekTail(cell.out());
    cells->get_NewEnum(enumerator.out());
    cell->get_Paragraphs(paragraphs.out());
    paragraphs->AddTail(nullptr);
    paragraphs->PeekTail(paragraph.out());
    paragraph->put_Text(Bstr(L"A text that is longer than what fits anywhere else").get());
    document->get_Contents(contents.out());
}

/// The same late bound, with an error, an event and a description.
void driveLateBound(const Component& component) {
    const LateBound driver(component.create<IDispatch>(__uuidof(::CRtfDriver)));
    int events = 0;
    const EventConnection connection(driver.get(), [&events](const std::wstring&, DISPPARAMS&) {
        ++events;
        return S_OK;
    });
    driver.call("ParseFromMemmory", {"(doc\n(r\n(c\n(p\n(pt=a text)\np)\nc)\nr)\ndoc)"});
    driver.call("LoadStyleSheetFromMemmory", {"{name: head; style-def: cell; format: navy-blue}"});
    driver.call("LoadStyleSheetFromMemmory", {"{name: x; nosuch: 1}"});
    driver.call("ParseFile", {""});
    const LateBound rows = driver.object("RtfObject").object("TableRows");
    rows.get("Item", {99});
    rows.call("add", {Variant::missing(), 1});
    rows.call("add", {"x"}, {{"After", 1}});
    rows.set("Count", {1});
    driver.call("ParseFromMemmory", {"(row\nrow)"});
    driver.get("Contents");
    ASSERT_GT(events, 0);
}

/// Documents for scripts, late bound and with errors.
void buildForScripts(const Component& component) {
    const LateBound document(component.create<IDispatch>(__uuidof(::Document)));
    const LateBound row(document.call("AddRow", {"a text that takes memory"}).value.object());
    row.object("Cells", {1}).set("Align", {"right"});
    row.object("Cells").get("Item", {2});
    document.get("Rtf");
    document.call("Table", {"Name,Price\nVase,12\n"});
    document.call("Table", {"Name,Price\nVase\n"});
    document.call("Render", {"; quorvane 2\n(doc\n(page=a44)\ndoc)\n"});
    document.object("Diagnostics", {1}).get("Message");
    document.call("RenderData", {"; quorvane 2\n(doc\ndoc)\n", "", "{}"});
    row.call("Remove");
}

/// What a host holds longer than what it belonged to.
void holdLonger(const Component& component) {
    auto document = component.create<_CRtfDoc>(__uuidof(::CRtfDoc));
    ComPtr<_CRtfTableRows> rows;
    document->get_TableRows(rows.out());
    const auto addRow = [&rows] {
        ComPtr<_CRtfTableRow> row;
        ComPtr<_CRtfTableCells> cells;
        rows->AddTail(nullptr);
        rows->PeekTail(row.out());
        row->get_TableCells(cells.out());
        cells->AddTail(nullptr);
        return cells;
    };
    const auto addParagraph = [](const ComPtr<_CRtfTableCells>& cells) {
        ComPtr<_CRtfTableCell> cell;
        ComPtr<_CRtfParagraphs> paragraphs;
        cells->PeekTail(cell.out());
        cell->get_Paragraphs(paragraphs.out());
        paragraphs->AddTail(nullptr);
        return paragraphs;
    };
    const auto cells = addRow();
    ComPtr<_CRtfParagraph> paragraph;
    addParagraph(cells)->PeekTail(paragraph.out());
    cells->Remove(Variant(1).get());
    paragraph->put_Text(Bstr(L"set after its cell has left the row").get());
    cells->AddTail(nullptr);
    const auto paragraphs = addParagraph(cells);
    cells->Remove(Variant(1).get());
    const auto cellsOfNoRow = addRow();
    rows->Remove(Variant(2).get());
    document.reset();
    LONG count = 0;
    cellsOfNoRow->get_Count(&count);
    rows->get_Count(&count);
}

void expectNoLeak(void (*work)(const Component&), int times) {
    const Component component;
    // What is allocated once and kept: names, caches of the system, the run-time library.
    for (int i = 0; i < 300; ++i) {
        work(component);
    }
    const HeapAllocations before = heapAllocations();

    for (int i = 0; i < times; ++i) {
        work(component);
    }

    const HeapAllocations after = heapAllocations();
    // One allocation kept per document would be thousands of them.
    EXPECT_LT(after.count, before.count + 20);
    EXPECT_LT(after.bytes, before.bytes + 16384);
    EXPECT_EQ(component.canUnloadNow(), S_OK);
}

TEST(Memory, OfDocumentsIsFreed) {
    expectNoLeak(buildByHand, 100000);
}

TEST(Memory, OfObjectsThatOutliveTheirOwnersIsFreed) {
    expectNoLeak(holdLonger, 20000);
}

TEST(Memory, OfDriversIsFreed) {
    expectNoLeak(driveLateBound, 3000);
}

TEST(Memory, OfDocumentsForScriptsIsFreed) {
    expectNoLeak(buildForScripts, 1000);
}

TEST(Memory, IsMeasured) {
    const Component component;
    std::vector<ComPtr<_CRtfDoc>> kept;
    const HeapAllocations before = heapAllocations();

    for (int i = 0; i < 1000; ++i) {
        kept.push_back(component.create<_CRtfDoc>(__uuidof(::CRtfDoc)));
    }

    EXPECT_GT(heapAllocations().count, before.count + 1000);
}

}  // namespace
}  // namespace quorvane::host
