// The scripts that the component's tests run in script hosts write what the library writes by
// itself for the same calls.

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/docmodel/CRtfParagraph.h"
#include "quorvane/docmodel/CRtfParagraphs.h"
#include "quorvane/docmodel/CRtfTableCell.h"
#include "quorvane/docmodel/CRtfTableCells.h"
#include "quorvane/docmodel/CRtfTableRow.h"
#include "quorvane/docmodel/CRtfTableRows.h"
#include "quorvane/driver/CRtfDriver.h"

namespace quorvane {
namespace {

std::string scriptFile(const std::string& name) {
    return QUORVANE_SCRIPTS_FOLDER "/" + name;
}

std::string expectedBytes(const std::string& script) {
    std::ifstream file(scriptFile(script + "/expected.rtf"), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void addParagraph(CRtfTableCell& cell, const std::string& text) {
    cell.Paragraphs()->AddTail();
    cell.Paragraphs()->PeekTail()->setText(text);
}

TEST(ScriptsOfTheComponent, WriteADescriptionAsTheLibraryDoes) {
    const Ref<CRtfDriver> driver = CRtfDriver::create();
    driver->setErroneousInput(true);
    driver->setStyleSheetFile(scriptFile("described/style.rtfss"));

    driver->ParseFile(scriptFile("described/description.rtfspec"));

    EXPECT_EQ(codePage1252FromUtf8(driver->Contents()), expectedBytes("described"));
}

TEST(ScriptsOfTheComponent, WriteADescriptionWithAnErrorAsTheLibraryDoes) {
    const Ref<CRtfDriver> driver = CRtfDriver::create();
    driver->setErroneousInput(true);

    driver->ParseFromMemmory(
        "(doc\n(r\n(c\n(cb=Crimson)\n(ctb=thin)\n(p\n(pt=x)\np)\nc)\nr)\ndoc)");

    EXPECT_EQ(driver->Contents(), expectedBytes("events"));
    EXPECT_EQ(driver->Contents(), expectedBytes("connected-events"));
}

TEST(ScriptsOfTheComponent, WriteADocumentMadeByHandAsTheLibraryDoes) {
    const Ref<CRtfDoc> document = CRtfDoc::create();
    document->LoadStyleSheetFromMemmory(
        "{name:dark;style-def:cell;format:navy-blue}{name:slate;style-def:cell;format:Slate-Blue}"
        "{name:sky;style-def:cell;format:sky-blue}{name:nil;style-def:cell;format:none}"
        "{name:odd;style-def:cell;format:crimson}"
        "{name:brick;style-def:cell;format:^vred-^fbrick}");
    document->TableRows()->AddTail("only");
    const Ref<CRtfTableCells> cells = document->TableRows()->Item("only")->TableCells();
    for (const char* name : {"dark", "slate", "sky", "nil", "odd", "nosuch", "brick"}) {
        cells->AddTail(name);
        cells->Item(name)->setStyle(name);
        addParagraph(*cells->Item(name), name);
    }
    cells->AddTail();
    cells->PeekTail()->setBackColor(eSlateBlue);
    addParagraph(*cells->PeekTail(), "own colour");

    EXPECT_EQ(document->Contents(), expectedBytes("by-hand"));
}

}  // namespace
}  // namespace quorvane
