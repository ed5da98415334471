// The examples of Quorvane.Document.

#include <gmock/gmock.h>
#include <windows.h>

#include <ostream>
#include <string>

#include "data/csvTable.h"
#include "data/renderTable.h"
#include "quorvane/compose/Document.h"
#include "tests/com/examples/runExample.h"
#include "tests/com/host/Process.h"
#include "tests/com/host/text.h"

namespace quorvane::host {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* styleSheet =
    "{ name: normal; style-def: s; format: \\f0\\fs20\\sb60\\sa60 }\n"
    "{ name: column; style-def: s; format: \\f0\\fs18\\b\\sb60\\sa60 }\n"
    "{ name: total; style-def: s; format: \\f0\\fs22\\b\\sb80\\sa80 }";

/// The bytes that the library writes for the order of the examples.
std::string libraryOrder() {
    quorvane::Document document;
    document.setStyleSheet(styleSheet);
    document.setColumns({15, 45, 15, 25});
    document.setHeader({"Harbour Light Candles", {}, "Order 4711"});
    document.setFooter({{}, {}, "{page} / {pages}"});
    document.addRow({"No.", "Article", "Quantity", "Amount"}, "column")
        .setHeading()
        .setBackColor("#dce6f1");
    const std::vector<std::vector<std::string>> items{
        {"1101", "Pillar candle, ivory, 20 cm", "12", "57.60"},
        {"1108", "Tea lights {50 pieces}", "6", "75.00"},
        {"2040", "Storm lantern, brass", "2", "79.90"}};
    for (const std::vector<std::string>& item : items) {
        const Row row = document.addRow(item, "normal").setBottomBorder(eHair);
        row[2].setAlign(eRight);
        row[3].setAlign(eRight);
    }
    const Row total = document.addRow({"Total in pounds", "212.50"}, "total");
    total[0].setSpan(3);
    total[1].setAlign(eRight);
    return document.rtf();
}

std::string libraryPrices() {
    return data::renderTable(
               data::csvTable("Article,Price\nPillar candle,4.80\nTea lights,12.50"),
               {.columns = "Article:70%,Price:Price in pounds:30%", .title = "Prices"})
        .document.rtf();
}

/// An example, how it is run, and how it begins what it reports about an error.
struct Example {
    std::string name;
    std::wstring program;
    std::string error;
};

void PrintTo(const Example& example, std::ostream* stream) {
    *stream << example.name;
}

// JScript does not show the source of an error.
const Example examples[] = {
    {"VBScript", script("document.vbs"), "error 0x80040207 (Quorvane.Document): "},
    {"JScript", script("document.js"), "error 0x80040207: "},
    {"Cpp", builtProgram("document.exe"), "error 0x80040207 (Quorvane.Document): "},
};

class RunDocumentExample : public testing::TestWithParam<Example> {
protected:
    static void SetUpTestSuite() { registerComponent(L"/s"); }
    static void TearDownTestSuite() { registerComponent(L"/s /u"); }

    WrittenFile order_{L"order.rtf"};
    WrittenFile prices_{L"prices.rtf"};
};

TEST_P(RunDocumentExample, SavesTheBytesOfTheLibrary) {
    const ProcessResult result =
        run(GetParam().program, inQuotes(order_.path()) + L" " + inQuotes(prices_.path()));

    EXPECT_EQ(order_.bytes(), libraryOrder());
    EXPECT_EQ(prices_.bytes(), libraryPrices());
    EXPECT_EQ(result.output,
              utf8Text(order_.path()) + " was written.\n" + GetParam().error +
                  "line 3:7: \"a44\" is not a page; write one of a3, a4, a5, a6, b5, letter, "
                  "legal, tabloid, executive, each also with -landscape, or use paper-width and "
                  "paper-height.\n"
                  "line 3: error wrong-value\n"
                  "line 4: error no-cell\n" +
                  utf8Text(prices_.path()) + " was written.\n");
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.status, 0U);
}

TEST_P(RunDocumentExample, SaysThatAFileCannotBeWritten) {
    const std::wstring file = temporaryFile(L"no-such-folder") + L"\\order.rtf";

    const ProcessResult result =
        run(GetParam().program, inQuotes(file) + L" " + inQuotes(prices_.path()));

    EXPECT_THAT(result.output, StartsWith("error 0x80040205"));
    EXPECT_THAT(result.output, HasSubstr(utf8Text(file)));
    EXPECT_EQ(result.status, 1U);
    EXPECT_EQ(prices_.bytes(), "");
}

TEST_P(RunDocumentExample, AsksForPaths) {
    const ProcessResult result = run(GetParam().program, L"");

    EXPECT_THAT(result.output, StartsWith("usage: "));
    EXPECT_EQ(result.status, 2U);
}

INSTANTIATE_TEST_SUITE_P(Examples, RunDocumentExample, testing::ValuesIn(examples),
                         [](const testing::TestParamInfo<Example>& tested) {
                             return tested.param.name;
                         });

/// An example whose host cannot be run in Wine. That it makes the same documents shows in the lines
/// that it has in common with the one in VBScript.
class UntriedDocumentExample : public testing::TestWithParam<const char*> {};

TEST_P(UntriedDocumentExample, HasTheTextsOfTheOthers) {
    const std::string source =
        bytesOfFile(wideText(std::string(QUORVANE_EXAMPLES) + "/" + GetParam()));

    for (const char* text :
         {"{ name: normal; style-def: s; format: \\f0\\fs20\\sb60\\sa60 }",
          "{ name: column; style-def: s; format: \\f0\\fs18\\b\\sb60\\sa60 }",
          "{ name: total; style-def: s; format: \\f0\\fs22\\b\\sb80\\sa80 }", "15 45 15 25",
          "Harbour Light Candles||Order 4711", "||{page} / {pages}", "#dce6f1",
          "Pillar candle, ivory, 20 cm", "Tea lights {50 pieces}", "Storm lantern, brass",
          "Total in pounds", "212.50", "Pillar candle,4.80", "Tea lights,12.50",
          "Article:70%,Price:Price in pounds:30%", "The tests do not run this example"}) {
        EXPECT_THAT(source, HasSubstr(text));
    }
}

TEST_P(UntriedDocumentExample, CallsTheMembersThatTheOthersCall) {
    const std::string source =
        bytesOfFile(wideText(std::string(QUORVANE_EXAMPLES) + "/" + GetParam()));

    for (const char* member :
         {".StyleSheet", ".Columns", ".Header", ".Footer", ".AddHeading", ".AddRow", ".BackColor",
          ".BottomBorder", ".Cells", ".Align", ".Span", ".Render", ".Diagnostics", ".Line",
          ".Severity", ".Identifier", ".Table", ".Save"}) {
        EXPECT_THAT(source, HasSubstr(member));
    }
}

INSTANTIATE_TEST_SUITE_P(Examples, UntriedDocumentExample,
                         testing::Values("document.bas", "document.ps1"),
                         [](const testing::TestParamInfo<const char*>& tested) {
                             const std::string name = tested.param;
                             return name.substr(name.find('.') + 1);
                         });

}  // namespace
}  // namespace quorvane::host
