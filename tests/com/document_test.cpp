// Quorvane.Document, early and late bound.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <iterator>
#include <string>
#include <vector>

#include "tests/com/host/ComPtr.h"
#include "tests/com/host/Component.h"
#include "tests/com/host/LateBound.h"
#include "tests/com/host/Outcome.h"
#include "tests/com/host/Process.h"
#include "tests/com/host/Variant.h"
#include "tests/com/host/interfaces.h"
#include "tests/com/host/text.h"

namespace quorvane::host {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

constexpr HRESULT documentError(unsigned long number) {
    return static_cast<HRESULT>(0x80040200UL + number);
}
constexpr HRESULT wrongCall = documentError(1);
constexpr HRESULT wrongValue = documentError(2);
constexpr HRESULT undefinedStyle = documentError(3);
constexpr HRESULT unreadableFile = documentError(4);
constexpr HRESULT unwritableFile = documentError(5);
constexpr HRESULT wrongDocument = documentError(6);
constexpr HRESULT refusedText = documentError(7);

constexpr const char* description =
    "; quorvane 2\n(doc\n(row\n(cell\n(para\n(pt=One)\npara)\n"
    "cell)\nrow)\ndoc)\n";
constexpr const char* numbers =
    "; quorvane 2\n(doc\n{{#items}}\n(row\n(cell\n(para\n"
    "(pt={{price | number: 2}})\npara)\ncell)\nrow)\n{{/items}}\ndoc)\n";

/// An array of automation of one type.
class Array {
public:
    Array(VARTYPE type, std::vector<SAFEARRAYBOUND> bounds)
        : array_(SafeArrayCreate(type, static_cast<UINT>(bounds.size()), bounds.data())),
          type_(type) {}
    Array(const Array&) = delete;
    Array& operator=(const Array&) = delete;
    ~Array() { SafeArrayDestroy(array_); }

    void put(std::vector<LONG> indices, const void* element) {
        ASSERT_EQ(SafeArrayPutElement(array_, indices.data(), const_cast<void*>(element)), S_OK);
    }
    Variant value() const {
        VARIANT value;
        V_VT(&value) = static_cast<VARTYPE>(VT_ARRAY | type_);
        V_ARRAY(&value) = array_;
        return Variant(value);
    }

private:
    SAFEARRAY* array_;
    VARTYPE type_;
};

/// The bytes of a PNG picture.
std::string onePixel() {
    constexpr unsigned char bytes[] = {
        0x89, 0x50, 0x4E, 0x47, 0x0D, 0x0A, 0x1A, 0x0A, 0x00, 0x00, 0x00, 0x0D, 0x49, 0x48,
        0x44, 0x52, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00, 0x01, 0x08, 0x02, 0x00, 0x00,
        0x00, 0x90, 0x77, 0x53, 0xDE, 0x00, 0x00, 0x00, 0x0C, 0x49, 0x44, 0x41, 0x54, 0x78,
        0x9C, 0x63, 0x60, 0x60, 0x60, 0x00, 0x00, 0x00, 0x04, 0x00, 0x01, 0xF6, 0x17, 0x38,
        0x55, 0x00, 0x00, 0x00, 0x00, 0x49, 0x45, 0x4E, 0x44, 0xAE, 0x42, 0x60, 0x82};
    return {std::begin(bytes), std::end(bytes)};
}

class ComDocument : public testing::Test {
protected:
    std::string rtf() const {
        Bstr text;
        EXPECT_EQ(document_->get_Rtf(text.out()), S_OK);
        return text.utf8();
    }
    LONG rowCount() const { return late_.object("Rows").get("Count").value.number(); }

    Component component_;
    ComPtr<_Document> document_ = component_.create<_Document>(__uuidof(::Document));
    LateBound late_{ComPtr<IDispatch>(document_.get())};
};

TEST_F(ComDocument, WritesTheSameEarlyAndLateBound) {
    const auto other = component_.create<_Document>(__uuidof(::Document));
    const LateBound otherLate{ComPtr<IDispatch>(other.get())};
    ComPtr<_DocumentRow> row;
    ComPtr<_DocumentCell> cell;
    ComPtr<_DocumentCells> cells;
    ComPtr<_DocumentParagraph> paragraph;
    Variant text("\xC5\x98 {x}");

    ASSERT_EQ(document_->put_Columns(Variant("20 auto").get()), S_OK);
    ASSERT_EQ(document_->put_Header(Bstr(std::string_view("Order||{page}")).get()), S_OK);
    ASSERT_EQ(document_->AddHeading(text.reference(), nullptr, row.out()), S_OK);
    row.reset();
    ASSERT_EQ(document_->AddRow(text.reference(), nullptr, row.out()), S_OK);
    ASSERT_EQ(row->put_BackColor(Bstr(std::string_view("silver")).get()), S_OK);
    ASSERT_EQ(row->AddCell(text.reference(), nullptr, cell.out()), S_OK);
    ASSERT_EQ(cell->put_Align(Bstr(std::string_view("right")).get()), S_OK);
    ASSERT_EQ(cell->AddParagraph(nullptr, nullptr, paragraph.out()), S_OK);
    ASSERT_EQ(paragraph->AddItalic(Bstr(std::string_view("it")).get()), S_OK);

    otherLate.set("Columns", {"20 auto"});
    otherLate.set("Header", {"Order||{page}"});
    otherLate.call("AddHeading", {"\xC5\x98 {x}"});
    const LateBound lateRow(otherLate.call("AddRow", {"\xC5\x98 {x}"}).value.object());
    lateRow.set("BackColor", {"silver"});
    const LateBound lateCell(lateRow.call("AddCell", {"\xC5\x98 {x}"}).value.object());
    lateCell.set("Align", {"right"});
    LateBound(lateCell.call("AddParagraph").value.object()).call("AddItalic", {"it"});

    EXPECT_THAT(rtf(), HasSubstr("\\{x\\}\\cell"));
    EXPECT_EQ(otherLate.get("Rtf").value.text(), rtf());
}

TEST_F(ComDocument, TakesArraysOfAnyBoundsAndTypes) {
    Array longs(VT_I4, {{2, 5}});
    const LONG seven = 7;
    const LONG eight = 8;
    longs.put({5}, &seven);
    longs.put({6}, &eight);
    Array texts(VT_BSTR, {{1, -3}});
    const Bstr nine(std::string_view("nine"));
    texts.put({-3}, nine.get());
    Array empty(VT_VARIANT, {{0, 0}});

    EXPECT_TRUE(late_.call("AddRow", {longs.value()}).succeeded());
    EXPECT_TRUE(late_.call("AddRow", {texts.value()}).succeeded());
    EXPECT_TRUE(late_.call("AddRow", {empty.value()}).succeeded());

    EXPECT_THAT(rtf(), HasSubstr("7\\cell"));
    EXPECT_THAT(rtf(), HasSubstr("8\\cell\\row"));
    EXPECT_THAT(rtf(), HasSubstr("nine\\cell\\row"));
    EXPECT_EQ(late_.object("Rows", {3}).object("Cells").get("Count").value.number(), 0);
}

TEST_F(ComDocument, TakesRowsOfAnArrayWithTwoDimensions) {
    Array table(VT_VARIANT, {{2, 1}, {2, 1}});
    for (LONG row = 1; row <= 2; ++row) {
        for (LONG column = 1; column <= 2; ++column) {
            const Variant text("r" + std::to_string(row) + "c" + std::to_string(column));
            table.put({row, column}, &text.get());
        }
    }

    EXPECT_TRUE(late_.call("AddRows", {table.value()}).succeeded());

    EXPECT_EQ(rowCount(), 2);
    const std::string text = rtf();
    EXPECT_LT(text.find("r1c1"), text.find("r1c2"));
    EXPECT_LT(text.find("r1c2"), text.find("r2c1"));
    EXPECT_EQ(late_.call("AddRow", {table.value()}).error.number, wrongValue);
}

TEST_F(ComDocument, AddsNoRowWhenOneIsWrong) {
    Array table(VT_VARIANT, {{2, 0}, {1, 0}});
    const Variant fine("fine");
    const Variant bell("\a");
    table.put({0, 0}, &fine.get());
    table.put({1, 0}, &bell.get());

    EXPECT_EQ(late_.call("AddRows", {table.value()}).error.number, wrongValue);

    EXPECT_EQ(rowCount(), 0);
}

TEST_F(ComDocument, RefusesWhatIsNotAText) {
    const Variant code = Variant::ofType(VT_ERROR, DISP_E_OVERFLOW);

    const HostError error = late_.call("AddRow", {code}).error;

    EXPECT_EQ(error.number, wrongValue);
    EXPECT_EQ(error.source, "Quorvane.Document");
    EXPECT_THAT(error.description, HasSubstr("Give a text"));
}

TEST_F(ComDocument, RefusesReferencesToNothing) {
    Variant reference = Variant::ofType(VT_BYREF | VT_BSTR, 0);
    ComPtr<_DocumentRow> row;

    EXPECT_EQ(document_->AddRow(reference.reference(), nullptr, row.out()), wrongValue);
    EXPECT_EQ(document_->put_Columns(reference.get()), wrongValue);
    EXPECT_EQ(document_->AddRow(nullptr, nullptr, nullptr), E_POINTER);
    EXPECT_FALSE(row);
}

TEST_F(ComDocument, NumbersEachKindOfError) {
    late_.set("StyleSheet", {"{ name: a; style-def: s; format: \\f0 }"});

    EXPECT_EQ(late_.object("Rows").get("Item", {1}).error.number, wrongCall);
    EXPECT_EQ(late_.set("Page", {"a44"}).error.number, wrongValue);
    EXPECT_EQ(late_.set("Header", {"{"}).error.number, wrongValue);
    EXPECT_EQ(late_.call("AddRow", {"x", "missing"}).error.number, undefinedStyle);
    EXPECT_EQ(late_.call("LoadStyleSheet", {"C:\\no\\such.rtfss"}).error.number, unreadableFile);
    EXPECT_EQ(late_.call("Save", {"C:\\no\\such\\folder.rtf"}).error.number, unwritableFile);
    EXPECT_EQ(late_.set("StyleSheet", {"{"}).error.number, refusedText);
    late_.set("Columns", {"50 50"});
    late_.call("AddRow", {"x"});
    LateBound(late_.object("Rows", {1}).object("Cells", {1})).set("Span", {3});
    EXPECT_EQ(late_.get("Rtf").error.number, wrongDocument);
}

TEST_F(ComDocument, SavesTheBytesOfItsRtf) {
    late_.call("AddRow", {"saved"});
    const std::wstring path = temporaryFile(L"document.rtf");

    EXPECT_TRUE(late_.call("Save", {path}).succeeded());

    EXPECT_EQ(bytesOfFile(path), rtf());
    DeleteFileW(path.c_str());
}

TEST_F(ComDocument, IsReplacedByWhatADescriptionRendersTo) {
    late_.call("AddRow", {"before"});

    EXPECT_TRUE(late_.call("Render", {description}).succeeded());

    EXPECT_EQ(rowCount(), 1);
    EXPECT_THAT(rtf(), HasSubstr("One\\cell\\row"));
    EXPECT_THAT(rtf(), Not(HasSubstr("before")));
}

TEST_F(ComDocument, StaysWhenADescriptionIsWrongAndSaysWhy) {
    late_.call("AddRow", {"before"});
    const std::string wrong = "; quorvane 2\n(doc\n(page=a44)\ndoc)\n";

    EXPECT_EQ(late_.call("Render", {wrong}).error.number, refusedText);

    EXPECT_EQ(rowCount(), 1);
    const LateBound diagnostics = late_.object("Diagnostics");
    const LONG count = diagnostics.get("Count").value.number();
    ASSERT_GT(count, 0);
    const LateBound last = diagnostics.object("Item", {count});
    EXPECT_EQ(last.get("Line").value.number(), 3);
    EXPECT_EQ(last.get("Identifier").value.text(), "wrong-value");
    EXPECT_EQ(last.get("Severity").value.text(), "error");
    EXPECT_THAT(last.get("Message").value.text(), HasSubstr("a44"));
    EXPECT_EQ(LateBound(late_.call("Check", {wrong}).value.object()).get("Count").value.number(),
              count);
    EXPECT_EQ(
        LateBound(late_.call("Check", {description}).value.object()).get("Count").value.number(),
        0);
}

TEST_F(ComDocument, ForgetsTheDiagnosticsOfAStylesheetThatWasReplaced) {
    EXPECT_FALSE(late_.set("StyleSheet", {"{ nmae: a; style-def: s }"}).succeeded());
    EXPECT_GT(late_.object("Diagnostics").get("Count").value.number(), 0);

    const Outcome right = late_.set("StyleSheet", {"{ name: a; style-def: s; format: \\f0 }"});

    ASSERT_TRUE(right.succeeded()) << right.error;
    EXPECT_EQ(late_.object("Diagnostics").get("Count").value.number(), 0);
}

TEST_F(ComDocument, NamesTheFileOfItsWarnings) {
    const std::wstring path = temporaryFile(L"warned.rtfspec");
    writeFile(path, "; quorvane 2\n(doc\n(r\n(c\n(p\n(pt=a <stong=b>)\np)\nc)\nr)\ndoc)\n");
    const std::wstring sheet = temporaryFile(L"warned.rtfss");
    writeFile(sheet, "; quorvane 2\n{ name: strong; style-def: character; bold }\n");

    const Outcome rendered = late_.call("RenderFile", {path, sheet});

    ASSERT_TRUE(rendered.succeeded()) << rendered.error;
    ASSERT_GT(late_.object("Diagnostics").get("Count").value.number(), 0);
    EXPECT_THAT(late_.object("Diagnostics").object("Item", {1}).get("File").value.text(),
                EndsWith("warned.rtfspec"));
    DeleteFileW(path.c_str());
    DeleteFileW(sheet.c_str());
}

TEST_F(ComDocument, FillsTemplatesInTheLocale) {
    late_.set("Locale", {"de-DE"});

    const Outcome filled =
        late_.call("RenderData", {numbers, "", R"({"items": [{"price": 1234.5}, {"price": 2}]})"});

    EXPECT_TRUE(filled.succeeded()) << filled.error;
    EXPECT_THAT(rtf(), HasSubstr("1234,50\\cell"));
    EXPECT_THAT(rtf(), HasSubstr("2,00\\cell"));
    EXPECT_EQ(late_.get("Locale").value.text(), "de-DE");
    EXPECT_EQ(late_.set("Locale", {"xx-XX"}).error.number, wrongValue);
}

TEST_F(ComDocument, SaysWhatIsWrongWithTheData) {
    EXPECT_EQ(late_.call("RenderData", {numbers, "", "{"}).error.number, refusedText);
    EXPECT_EQ(late_.object("Diagnostics", {1}).get("Identifier").value.text(), "wrong-json");

    EXPECT_EQ(late_.call("RenderData", {numbers, "", R"({"items": [{}]})"}).error.number,
              refusedText);
    EXPECT_THAT(late_.object("Diagnostics", {1}).get("Message").value.text(), HasSubstr("price"));
    EXPECT_EQ(late_.object("Diagnostics", {1}).get("Line").value.number(), 7);
}

TEST_F(ComDocument, ReturnsTheSameObjectForTheSamePart) {
    late_.call("AddRow", {"x"});
    const LateBound row = late_.object("Rows", {1});

    EXPECT_EQ(late_.object("Rows").get(), late_.object("Rows").get());
    EXPECT_EQ(row.get(), late_.object("Rows", {1}).get());
    EXPECT_EQ(row.object("Cells", {1}).object("Row").get(), row.get());
}

TEST_F(ComDocument, LeavesPartsUsableThatOutliveIt) {
    late_.call("AddRow", {"x"});
    ComPtr<_DocumentRows> rows;
    ComPtr<_DocumentRow> row;
    ComPtr<_DocumentCells> cells;
    ASSERT_EQ(document_->get_Rows(rows.out()), S_OK);
    ASSERT_EQ(rows->get_Item(1, row.out()), S_OK);
    LONG count = 0;

    late_ = LateBound(ComPtr<IDispatch>());
    document_.reset();
    rows.reset();

    EXPECT_EQ(row->get_Cells(cells.out()), S_OK);
    EXPECT_EQ(cells->get_Count(&count), S_OK);
    EXPECT_EQ(count, 1);
    EXPECT_EQ(row->Remove(), S_OK);
    EXPECT_EQ(row->Remove(), wrongCall);
    cells.reset();
    row.reset();
    EXPECT_EQ(component_.canUnloadNow(), S_OK);
}

TEST_F(ComDocument, IsReplacedByATableOfCsv) {
    late_.call("AddRow", {"before"});

    const Outcome made = late_.call("Table", {"Name;Price\r\nVase {b};12\r\nBowl;3\r\n"});

    EXPECT_TRUE(made.succeeded()) << made.error;
    EXPECT_EQ(rowCount(), 3);
    EXPECT_THAT(rtf(), HasSubstr("Vase \\{b\\}"));
    EXPECT_THAT(rtf(), Not(HasSubstr("before")));
}

TEST_F(ComDocument, MakesTheSameTableOfCsvAndOfAnArrayEarlyAndLateBound) {
    Array rows(VT_VARIANT, {{2, 1}, {2, 1}});
    const std::vector<std::vector<std::string>> texts{{"Name", "Price"}, {"Vase", "12"}};
    for (LONG row = 1; row <= 2; ++row) {
        for (LONG column = 1; column <= 2; ++column) {
            const Variant text(
                texts[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(column - 1)]);
            rows.put({row, column}, &text.get());
        }
    }
    Variant columns("Price:right,Name:60%");
    Variant title("Prices");

    ASSERT_EQ(document_->Table(rows.value().get(), columns.reference(), title.reference(), nullptr),
              S_OK);
    const std::string early = rtf();
    EXPECT_TRUE(late_.call("Table", {"Name,Price\nVase,12\n", "Price:right,Name:60%", "Prices"})
                    .succeeded());

    EXPECT_EQ(rtf(), early);
    EXPECT_EQ(rowCount(), 3);
}

TEST_F(ComDocument, StaysWhenATableIsWrong) {
    late_.call("AddRow", {"before"});

    const HostError error = late_.call("Table", {"Name,Price\nVase,12,9\n"}).error;

    EXPECT_EQ(error.number, wrongValue);
    EXPECT_EQ(error.source, "Quorvane.Document");
    EXPECT_EQ(late_.call("Table", {""}).error.number, wrongValue);
    EXPECT_EQ(late_.call("Table", {12}).error.number, wrongValue);
    EXPECT_EQ(late_.call("Table", {"Name\nVase\n", "Nome"}).error.number, wrongValue);
    EXPECT_EQ(rowCount(), 1);
}

TEST_F(ComDocument, ShowsAPicture) {
    const std::wstring path = temporaryFile(L"dot.png");
    writeFile(path, onePixel());
    const LateBound cell(late_.call("AddRow", {"x"}).value.object());

    const Outcome added = cell.object("Cells", {1}).call("AddPicture", {path, "2cm"});

    ASSERT_TRUE(added.succeeded()) << added.error;
    const LateBound paragraph(added.value.object());
    EXPECT_TRUE(paragraph.get("HasPicture").value.truth());
    EXPECT_THAT(rtf(), HasSubstr("\\pngblip"));
    EXPECT_TRUE(paragraph.call("RemovePicture").succeeded());
    EXPECT_THAT(rtf(), Not(HasSubstr("\\pngblip")));
    DeleteFileW(path.c_str());
}

TEST_F(ComDocument, RaisesTheReasonOfTheSystemWhenAFileCannotBeSaved) {
    const std::wstring path = temporaryFile(L"held.rtf");
    writeFile(path, "held open");
    const HANDLE held = CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);

    const HostError error = late_.call("Save", {path}).error;
    CloseHandle(held);

    EXPECT_EQ(error.number, unwritableFile);
    EXPECT_EQ(error.source, "Quorvane.Document");
    EXPECT_THAT(error.description, HasSubstr(utf8Text(path)));
    EXPECT_EQ(bytesOfFile(path), "held open");
    DeleteFileW(path.c_str());
}

TEST_F(ComDocument, TakesNullPointersForEmptyTexts) {
    EXPECT_EQ(document_->Save(nullptr), unwritableFile);
    EXPECT_EQ(document_->LoadStyleSheet(nullptr), unreadableFile);
    EXPECT_EQ(document_->RenderFile(nullptr, nullptr), unreadableFile);
    EXPECT_EQ(document_->RenderData(nullptr, nullptr, nullptr), refusedText);
    EXPECT_EQ(document_->put_Page(nullptr), wrongValue);
    EXPECT_EQ(document_->put_Header(nullptr), S_OK);
    EXPECT_EQ(document_->put_Locale(nullptr), S_OK);
    EXPECT_EQ(document_->SetMargins(nullptr, nullptr, nullptr, nullptr), S_OK);
    EXPECT_EQ(document_->Table(VARIANT{}, nullptr, nullptr, nullptr), wrongValue);
}

TEST_F(ComDocument, AppendsRtfAsItIsAndRefusesWhatWouldBreakTheDocument) {
    const LateBound row(late_.call("AddRow", {"{x}"}).value.object());
    const LateBound paragraph = row.object("Cells", {1}).object("Paragraphs", {1});

    EXPECT_TRUE(paragraph.call("AddRtf", {"{\\b y}"}).succeeded());
    EXPECT_EQ(paragraph.call("AddRtf", {"}"}).error.number, wrongValue);
    EXPECT_EQ(paragraph.call("AddRtf", {"\\row"}).error.number, wrongValue);

    EXPECT_EQ(paragraph.get("Rtf").value.text(), "\\{x\\}{\\b y}");
    EXPECT_THAT(rtf(), HasSubstr("\\{x\\}{\\b y}\\cell"));
}

TEST_F(ComDocument, RefusesAPictureThatIsNone) {
    const LateBound row(late_.call("AddRow", {"x"}).value.object());

    EXPECT_EQ(row.object("Cells", {1}).call("AddPicture", {"C:\\none.png"}).error.number,
              unreadableFile);

    EXPECT_EQ(row.object("Cells", {1}).object("Paragraphs").get("Count").value.number(), 1);
}

}  // namespace
}  // namespace quorvane::host
