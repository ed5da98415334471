#include "quorvane/diagnostics/rtf/RtfCheck.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/diagnosticRules.h"
#include "quorvane/driver/CRtfDriver.h"
#include "tests/diagnostics/randomDescriptions.h"
#include "tests/support/FakePlatform.h"

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string shown(const Diagnostic& diagnostic) {
    const Place& place = diagnostic.place;
    return std::to_string(place.line) + ":" + std::to_string(place.column) + "+" +
           std::to_string(place.length) + "@" + std::to_string(place.offset) + " " +
           std::string(diagnosticRule(diagnostic.id).identifier);
}

std::vector<std::string> found(const std::string& rtf) {
    std::vector<std::string> list;
    for (const Diagnostic& diagnostic : checkRtf(rtf)) {
        list.push_back(shown(diagnostic));
    }
    return list;
}

/// A document with one font, one color and one style, and the text.
std::string documentOf(const std::string& text) {
    return "{\\rtf1{\\fonttbl{\\f0 Arial;}}{\\colortbl;\\red1;}{\\stylesheet{\\s1 a;}}\n" + text +
           "}";
}

TEST(RtfCheck, FindsNothingInASoundDocument) {
    EXPECT_THAT(found("{\\rtf1 Total}"), IsEmpty());
    EXPECT_THAT(found(documentOf("\\trowd\\cellx100\\cellx200 a\\cell b\\cell\\row")), IsEmpty());
    EXPECT_THAT(found("\r\n {\\rtf1 Total}\r\n"), IsEmpty());
}

TEST(RtfCheck, ReportsLineColumnAndByteOffset) {
    EXPECT_THAT(found(documentOf("a\r\nb\n\\cf7 x")), ElementsAre("4:1+4@73 unknown-color"));
}

TEST(RtfCheck, CountsBytesAsCharacters) {
    const std::vector<Diagnostic> diagnostics = checkRtf("{\\rtf1 \xC3\xA9}\r\n \xC3 x");
    ASSERT_EQ(diagnostics.size(), 1u);
    const Place& place = diagnostics[0].place;
    EXPECT_EQ(place.offset, 13);
    EXPECT_EQ(place.bytes.offset, place.offset);
    EXPECT_EQ(place.bytes.column, place.column);
    EXPECT_EQ(place.bytes.length, place.length);
}

TEST(RtfCheck, FindsTheSameInPieces) {
    const std::string rtf =
        documentOf(
            "\\trowd\\cellx100\\cellx50 a\\cell\\row caf\\'zz \\f12 \\s7{\\odd x}\r\n\\cf-3{") +
        "}";
    const std::vector<std::string> whole = found(rtf);
    EXPECT_EQ(whole.size(), 7u);
    for (std::size_t size = 1; size < rtf.size(); ++size) {
        std::vector<Diagnostic> diagnostics;
        RtfCheck check(
            [&](Diagnostic diagnostic) { diagnostics.push_back(std::move(diagnostic)); });
        for (std::size_t at = 0; at < rtf.size(); at += size) {
            check.feed(std::string_view(rtf).substr(at, size));
        }
        check.finish();
        sortByPlace(diagnostics);
        std::vector<std::string> pieces;
        for (const Diagnostic& diagnostic : diagnostics) {
            pieces.push_back(shown(diagnostic));
        }
        ASSERT_EQ(pieces, whole) << size;
    }
}

TEST(RtfCheck, WantsItsHeader) {
    EXPECT_THAT(found(""), ElementsAre("1:1+0@0 not-rtf"));
    EXPECT_THAT(found("Total"), ElementsAre("1:1+1@0 not-rtf"));
    EXPECT_THAT(found("\xEF\xBB\xBF{\\rtf1 a}"), ElementsAre("1:1+1@0 not-rtf"));
    EXPECT_THAT(found("{}"), ElementsAre("1:1+1@0 not-rtf"));
    EXPECT_THAT(found("{x}"), ElementsAre("1:1+1@0 not-rtf"));
    EXPECT_THAT(found("{\\rt1 x}"), ElementsAre("1:1+1@0 not-rtf"));
}

TEST(RtfCheck, WantsGroupsClosed) {
    EXPECT_THAT(found("{\\rtf1 {\\b a"), ElementsAre("1:8+1@7 unclosed-group"));
}

/// The message and the hint of the first diagnostic.
std::string reported(const std::string& rtf) {
    const std::vector<Diagnostic> diagnostics = checkRtf(rtf);
    return diagnostics.empty() ? "" : diagnostics[0].message + " | " + diagnostics[0].hint;
}

TEST(RtfCheck, SaysInWhichRowAGroupWasLeftOpen) {
    const std::string row = "{\\trowd\\cellx9 a\\cell\\row}\n";
    const std::string broken = "{\\trowd\\cellx9 {a\\cell\\row}\n";
    EXPECT_EQ(reported(documentOf(row + row + broken + row)),
              "The group is not closed. | when the row on line 4 ends, a group is open that "
              "was not open at the end of earlier rows");
    EXPECT_EQ(reported(documentOf(broken + row)),
              "The group is not closed. | when the row on line 2 ends, a group is open that "
              "was not open at its beginning");
    EXPECT_EQ(reported(documentOf(row + "{a\n")), "The group is not closed. | ");
    EXPECT_EQ(reported("{\\rtf1 " + row + "{"), "The group is not closed. | ");
}

TEST(RtfCheck, CountsInWords) {
    EXPECT_EQ(reported(documentOf("\\trowd\\cellx9 a\\cell b\\cell\\row")),
              "The row has 2 cells but 1 cell definition. | ");
    EXPECT_EQ(reported(documentOf("\\trowd\\cellx8\\cellx9 a\\cell\\row")),
              "The row has 1 cell but 2 cell definitions. | ");
}

TEST(RtfCheck, NamesTheNumberThatIsLeftOut) {
    EXPECT_EQ(reported("{\\rtf1{\\fonttbl{\\f0 a;}{\\f b;}}}"),
              "The font 0 is already in the font table, with another definition. | ");
    EXPECT_EQ(reported("{\\rtf1{\\stylesheet{\\s0 a;}{\\s b;}}}"),
              "The style s0 is already in the stylesheet. | ");
}

TEST(RtfCheck, WantsWholeControlsAndData) {
    EXPECT_THAT(found("{\\rtf1 a\\"), ElementsAre("1:1+1@0 unclosed-group", "1:9+1@8 cut-off"));
    EXPECT_THAT(found("{\\rtf1 \\'4"),
                ElementsAre("1:1+1@0 unclosed-group", "1:8+1@7 bad-hex-escape"));
    EXPECT_THAT(found("{\\rtf1 \\'4}"), ElementsAre("1:8+3@7 bad-hex-escape"));
    EXPECT_THAT(found("{\\rtf1{\\pict\\bin9 a}}"), ElementsAre("1:13+1@12 cut-off"));
}

TEST(RtfCheck, PassesOverBinaryData) {
    EXPECT_THAT(found("{\\rtf1{\\pict\\bin4 }}{\\}}"), IsEmpty());
    EXPECT_THAT(found("{\\rtf1\\bin2\\'{x}"), ElementsAre("1:1+1@0 unclosed-group"));
}

TEST(RtfCheck, TakesEscapedBracesForText) {
    EXPECT_THAT(found("{\\rtf1 \\{ \\} \\\\ \\~ \\u8364? \\'e9}"), IsEmpty());
}

TEST(RtfCheck, WantsAsManyCellsAsDefinitions) {
    EXPECT_THAT(found(documentOf("\\trowd\\cellx9 a\\cell b\\cell\\row")),
                ElementsAre("2:28+4@95 cell-count"));
    EXPECT_THAT(found(documentOf("\\trowd\\row")), ElementsAre("2:7+4@74 row-without-cells"));
    EXPECT_THAT(found(documentOf("\\trowd\\cellx9\\row")),
                ElementsAre("2:14+4@81 row-without-cells"));
}

TEST(RtfCheck, TakesADefinitionForTheRowsThatFollow) {
    EXPECT_THAT(found(documentOf("\\trowd\\cellx9 a\\cell\\row b\\cell\\row")), IsEmpty());
}

TEST(RtfCheck, TakesADefinitionThatIsRepeatedBeforeTheRowsEnd) {
    EXPECT_THAT(found(documentOf("\\trowd\\cellx9 a\\cell\\trowd\\cellx9\\row")), IsEmpty());
}

TEST(RtfCheck, CountsTheCellsOfNestedRows) {
    const std::string nested =
        "\\trowd\\cellx9 \\itap2 a\\nestcell %b\\nestcell{\\*\\nesttableprops"
        "\\trowd\\cellx2\\cellx4\\nestrow}\\itap1 c\\cell\\row";
    std::string missing = nested;
    missing.replace(missing.find("%b\\nestcell"), 11, "");
    std::string whole = nested;
    whole.erase(whole.find('%'), 1);
    EXPECT_THAT(found(documentOf(whole)), IsEmpty());
    EXPECT_EQ(found(documentOf(missing)).size(), 1u);
}

TEST(RtfCheck, WantsRisingEdgesAndAnEndOfEachRow) {
    EXPECT_THAT(found(documentOf("\\trowd\\cellx9\\cellx9 a\\cell b\\cell\\row")),
                ElementsAre("2:14+7@81 falling-edge"));
    EXPECT_THAT(found(documentOf("\\trowd\\cellx9 a\\cell")), ElementsAre("2:1+6@68 unended-row"));
}

TEST(RtfCheck, MarksTheRowThatIsNotEnded) {
    // The second row has the definition of the first.
    EXPECT_THAT(found(documentOf("\\trowd\\cellx9 a\\cell\\row b\\cell")),
                ElementsAre("2:27+5@94 unended-row"));
    // The first row ends where the definition of the second has a cell.
    EXPECT_THAT(found(documentOf("\\trowd\\cellx9 a\\cell\n\\trowd\\cellx9 b\\cell\\row")),
                ElementsAre("2:1+6@68 unended-row"));
    EXPECT_THAT(found(documentOf("\\trowd\\cellx9 a\\cell\\row\n\\trowd\\cellx9 b\\cell")),
                ElementsAre("3:1+6@93 unended-row"));
    // A definition without cells begins no row.
    EXPECT_THAT(
        found(documentOf("\\trowd\\cellx9 a\\cell\n\\trowd\\cellx9\n\\trowd\\cellx9 b\\cell")),
        ElementsAre("2:1+6@68 unended-row", "4:1+6@103 unended-row"));
}

TEST(RtfCheck, WantsAnEndOfNestedRows) {
    EXPECT_THAT(found(documentOf("\\trowd\\cellx9 \\itap2 a\\nestcell\\itap1 b\\cell\\row")),
                ElementsAre("2:23+9@90 unended-row"));
}

TEST(RtfCheck, WantsACellToEndInAParagraphOfItsOwnRow) {
    EXPECT_THAT(found(documentOf("\\trowd\\cellx9 a\\itap2 b\\cell\\row")),
                ElementsAre("2:16+6@83 unended-row"));
    for (const char* words : {"\\itap2 b\\itap1 ", "\\itap2 b\\pard ", "{\\itap2 b}", "\\itap1 "}) {
        EXPECT_THAT(found(documentOf(std::string("\\trowd\\cellx9 a") + words + "\\cell\\row")),
                    IsEmpty());
    }
}

TEST(RtfCheck, CountsCellsOnTheLevelThatTheGroupAroundThemIsOn) {
    EXPECT_THAT(
        found(documentOf("\\trowd\\cellx9 {\\itap2 {\\itap3 a\\nestcell{\\*\\nesttableprops\\trowd"
                         "\\cellx2\\nestrow}}\\nestcell{\\*\\nesttableprops\\trowd\\cellx4\\nestrow"
                         "}}\\cell\\row")),
        IsEmpty());
}

TEST(RtfCheck, LooksReferencesUp) {
    EXPECT_THAT(found(documentOf("\\f1\\cf2\\s2\\cs1\\cf1\\s1\\s0\\f0\\cf0")),
                ElementsAre("2:1+3@68 unknown-font", "2:4+4@71 unknown-color",
                            "2:8+3@75 unknown-style", "2:11+4@78 unknown-style"));
}

TEST(RtfCheck, AllowsPaddingAfterTheEnd) {
    // WordPad and RichEdit write a NUL byte, other programs blanks and line ends.
    EXPECT_THAT(found(std::string("{\\rtf1 a}\r\n\0", 12)), IsEmpty());
    EXPECT_THAT(found(std::string("{\\rtf1 a}\0\0 \t\n \r\n\0", 18)), IsEmpty());
}

TEST(RtfCheck, WantsNoTextAfterTheEnd) {
    EXPECT_THAT(found("{\\rtf1 a} b {"), ElementsAre("1:11+1@10 text-after-end"));
    EXPECT_THAT(found("{\\rtf1 a}\n{\\b b}"), ElementsAre("2:1+1@10 text-after-end"));
    EXPECT_THAT(found("{\\rtf1 a}{\\*\\odd b{c}}\\par d"), ElementsAre("1:10+1@9 text-after-end"));
    EXPECT_THAT(found("{\\rtf1 a}\\'e9"), ElementsAre("1:10+1@9 text-after-end"));
    EXPECT_THAT(found("{\\rtf1 a}{\\rtf1 b}"), ElementsAre("1:10+1@9 text-after-end"));
}

TEST(RtfCheck, WarnsOfDataAfterTheEndThatShowsNoText) {
    EXPECT_THAT(found("{\\rtf1 a}}"), ElementsAre("1:10+1@9 data-after-end"));
    EXPECT_THAT(found("{\\rtf1 a}\\line \\par}"), ElementsAre("1:10+1@9 data-after-end"));
    EXPECT_THAT(found("{\\rtf1 a}\n {\\*\\themedata 50{4b}03}{\\*\\odd b}"),
                ElementsAre("2:2+1@11 data-after-end"));
    EXPECT_THAT(found("{\\rtf1 a}\\"), ElementsAre("1:10+1@9 data-after-end"));
}

TEST(RtfCheck, ReportsANumberThatNoTableHasOnce) {
    EXPECT_THAT(
        found(documentOf("\\f7 a\\f8 b\\f7 c{\\af7 d}\\cf9\\cb9\\acf9\\s5\\cs5\\s5\\cs5")),
        ElementsAre("2:1+3@68 unknown-font", "2:6+3@73 unknown-font", "2:24+4@91 unknown-color",
                    "2:37+3@104 unknown-style", "2:40+4@107 unknown-style"));
}

TEST(RtfCheck, AllowsADefaultFontThatNoTableHas) {
    EXPECT_THAT(found("{\\rtf1\\deff3{\\fonttbl{\\f0 Arial;}} a}"), IsEmpty());
    EXPECT_THAT(found("{\\rtf1\\deff0 a}"), IsEmpty());
}

TEST(RtfCheck, ReadsTheFontTablesThatStandInTwoForms) {
    EXPECT_THAT(
        found("{\\rtf1{\\upr{\\fonttbl{\\f4 Times;}}{\\*\\ud{\\fonttbl{\\f4 T\\u105?mes;}}}}"
              "\\f4 a}"),
        IsEmpty());
}

TEST(RtfCheck, ReadsATableThatStandsAfterABlank) {
    EXPECT_THAT(found("{\\rtf1{ \\fonttbl\n {\\f4 Times;} }\\f4 a}"), IsEmpty());
}

TEST(RtfCheck, AllowsTheSameFontTwice) {
    EXPECT_THAT(found("{\\rtf1{\\fonttbl{\\f0\\froman\\fcharset0{\\*\\panose 02}Times New Roman;}\n"
                      "{\\f0\\froman\\fcharset0{\\*\\panose 05}Times New\r\n Roman;}}}"),
                IsEmpty());
    EXPECT_THAT(found("{\\rtf1{\\fonttbl\\f0\\fswiss Arial;\\f1 Verdana;\\f0\\fswiss Arial;}}"),
                IsEmpty());
}

TEST(RtfCheck, WarnsOfAnotherFontOfTheSameNumber) {
    EXPECT_THAT(found("{\\rtf1{\\fonttbl{\\f0\\fswiss Arial;}{\\f0\\froman Arial;}}}"),
                ElementsAre("1:36+3@35 duplicate-font"));
    EXPECT_THAT(found("{\\rtf1{\\fonttbl{\\flomajor\\f0 Arial;}{\\fhimajor\\f0 \\'41rial;}}}"),
                ElementsAre("1:47+3@46 duplicate-font"));
    EXPECT_THAT(found("{\\rtf1{\\fonttbl\\f0 Arial;\\f1 Verdana;\\f0 Tahoma;}}"),
                ElementsAre("1:38+3@37 duplicate-font"));
}

TEST(RtfCheck, AllowsTheRowsOfATableStyleToRepeatItsNumber) {
    EXPECT_THAT(found("{\\rtf1{\\stylesheet{\\*\\ts15\\tsrowd grid;}{\\*\\ts15\\tsrowd\\tscfirstrow"
                      " grid;}{\\*\\ts15\\tsrowd\\tsclastrow grid;}}\\ts15 a}"),
                IsEmpty());
}

TEST(RtfCheck, ReportsAnUnknownWordThatBeginsAGroupOnce) {
    EXPECT_THAT(found(documentOf("{\\odd a}{\\odd b}{\\odder c}")),
                ElementsAre("2:2+4@69 unknown-destination", "2:18+6@85 unknown-destination"));
}

TEST(RtfCheck, ReadsAGroupThatBeginsWithAnUnknownWordWithoutIt) {
    EXPECT_THAT(found("{\\rtf1{\\stylesheet{\\style\\s3 a;}}\\s3 b}"),
                ElementsAre("1:20+6@19 unknown-destination"));
    EXPECT_THAT(found("{\\rtf1{\\pu6\\cf7 b}}"),
                ElementsAre("1:8+4@7 unknown-destination", "1:12+4@11 unknown-color"));
}

TEST(RtfCheck, WarnsOfCellsThatAreMissingAndOfEmptyOnesWithoutADefinition) {
    EXPECT_THAT(found(documentOf("\\trowd\\cellx8\\cellx9 a\\cell\\row")),
                ElementsAre("2:28+4@95 uneven-row"));
    EXPECT_THAT(found(documentOf("\\trowd\\cellx9 a\\cell \\cell\\row")),
                ElementsAre("2:27+4@94 uneven-row"));
}

TEST(RtfCheck, WantsNoCellLostThatHasSomethingInIt) {
    for (const std::string content : {"b", "\\'62", "{\\b b}", "\\u98?", "\\emdash ", "\\{",
                                      "{\\pict\\pngblip 89}", "{\\field{\\fldrslt b}}"}) {
        const std::vector<std::string> list =
            found(documentOf("\\trowd\\cellx9 a\\cell " + content + "\\cell\\row"));
        ASSERT_EQ(list.size(), 1u) << content;
        EXPECT_THAT(list[0], testing::EndsWith("cell-count")) << content;
    }
    EXPECT_THAT(found(documentOf("\\intbl a\\cell\\row")), ElementsAre("2:14+4@81 cell-count"));
}

TEST(RtfCheck, TakesACellOutsideAnyTableForNone) {
    EXPECT_THAT(found(documentOf("a\\cell b\\cell")), IsEmpty());
    EXPECT_THAT(found(documentOf("\\pard\\intbl a\\cell")), ElementsAre("2:14+5@81 unended-row"));
}

TEST(RtfCheck, WarnsOfASectionThatEndsWithinARow) {
    EXPECT_THAT(found(documentOf("\\trowd\\cellx9 a\\sect b\\cell\\row\\sect c")),
                ElementsAre("2:16+5@83 section-in-row"));
}

TEST(RtfCheck, WantsTheLengthOfBinaryData) {
    EXPECT_THAT(found("{\\rtf1{\\pict\\bin ab}}"), ElementsAre("1:13+4@12 binary-length"));
    EXPECT_THAT(found("{\\rtf1{\\pict\\bin0 ab}}"), ElementsAre("1:13+5@12 binary-length"));
    EXPECT_THAT(found("{\\rtf1{\\pict\\bin-2 ab}}"), ElementsAre("1:13+6@12 binary-length"));
}

TEST(RtfCheck, OnlyWarnsOfWhatReadersPutRight) {
    for (const char* text :
         {"\\f9", "\\cf9", "\\s9", "{\\odd x}", "\\trowd\\cellx9\\cellx9 a\\cell\\cell\\row",
          "\\trowd\\cellx8\\cellx9 a\\cell\\row"}) {
        const std::vector<Diagnostic> diagnostics = checkRtf(documentOf(text));
        EXPECT_EQ(diagnostics.size(), 1u) << text;
        for (const Diagnostic& diagnostic : diagnostics) {
            EXPECT_EQ(diagnostic.severity, Severity::Warning) << text;
        }
    }
}

TEST(RtfCheck, WantsNumbersOnce) {
    EXPECT_THAT(found("{\\rtf1{\\fonttbl{\\f0 a;}{\\f0 b;}}{\\stylesheet{\\s1 a;}{\\*\\cs1 b;}"
                      "{\\s1 c;}}}"),
                ElementsAre("1:25+3@24 duplicate-font", "1:65+3@64 duplicate-style-number"));
}

TEST(RtfCheck, WantsUnknownDestinationsMarked) {
    EXPECT_THAT(found(documentOf("{\\ours x}{\\*\\ours{\\theirs y}}{\\b z}")),
                ElementsAre("2:2+5@69 unknown-destination"));
}

TEST(RtfCheck, GivesUpOnGroupsThatAreNestedVeryDeep) {
    const std::string deep(2000, '{');
    EXPECT_THAT(found("{\\rtf1 " + deep + std::string(2000, '}') + "}"),
                ElementsAre("1:1007+1@1006 deep-nesting"));
}

TEST(RtfCheck, SurvivesAnyBytes) {
    RandomDescriptions random(7);
    const std::string document = documentOf("\\trowd\\cellx9 a\\cell\\row\\'e9 {\\*\\x \\bin2 ab}");
    for (int i = 0; i < 20000; ++i) {
        found(random.mutated(document, 1 + random.below(6)));
    }
}

TEST(RtfCheck, TakesTheStyleWithoutANumberForTheOneThatIsLeftOut) {
    EXPECT_THAT(found("{\\rtf1{\\stylesheet{\\s100 a;}{\\b normal;}{\\s102 c;}}\\s101 x}"),
                IsEmpty());
    EXPECT_THAT(found("{\\rtf1{\\stylesheet{\\b normal;}{\\s101 c;}}\\s100 x\\s102}"),
                ElementsAre("1:49+5@48 unknown-style"));
}

/// What the golden documents break, which is what their cases are about.
const std::map<std::string, std::string> brokenDocuments = {
    {"empty-text", "not-rtf"},
    {"no-doc", "not-rtf"},
    {"inline-styles", "unclosed-group"},
    {"two-rows-unrepaired", "row-without-cells"},
    {"too-many-rows", "row-without-cells"},
};

TEST(RtfCheck, FindsNothingInTheGoldenDocumentsButWhatTheirCasesBreak) {
    for (const auto& entry : std::filesystem::directory_iterator(QUORVANE_GOLDEN_FOLDER)) {
        if (!entry.is_directory()) {
            continue;
        }
        const auto broken = brokenDocuments.find(entry.path().filename().string());
        const std::vector<std::string> diagnostics = found(bytesOf(entry.path() / "expected.rtf"));
        EXPECT_EQ(diagnostics.empty(), broken == brokenDocuments.end()) << entry.path();
        for (const std::string& diagnostic : diagnostics) {
            EXPECT_THAT(diagnostic, testing::EndsWith(" " + broken->second)) << entry.path();
        }
    }
}

/// Texts that hold no brace and no backslash make sound documents, whatever else they are.
TEST(RtfCheck, FindsNothingInTheDocumentsOfGeneratedDescriptions) {
    RandomDescriptions random(8);
    FakePlatform platform;
    const Ref<CRtfDriver> driver = CRtfDriver::create(platform);
    int sound = 0;
    for (int i = 0; i < 500; ++i) {
        const std::string text = random.description();
        bool isRejected = text.find_first_of("{}\\") != std::string::npos;
        driver->setErroneousInput(true);
        driver->setNotifyErrorHandler([&](CRtfDriver&, const RtfError&) { isRejected = true; });
        driver->ParseFromMemmory(text);
        if (!isRejected) {
            ++sound;
            const std::string rtf = codePage1252FromUtf8(driver->Contents());
            ASSERT_THAT(found(rtf), IsEmpty()) << text << rtf;
        }
    }
    driver->setNotifyErrorHandler({});
    EXPECT_GT(sound, 50);
}

}  // namespace
}  // namespace quorvane
