#include "quorvane/docmodel/CRtfDoc.h"

#include <gtest/gtest.h>

#include <vector>

#include "quorvane/support/currentError.h"
#include "tests/docmodel/documentParts.h"
#include "tests/docmodel/fixedGroups.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/errorNumberOf.h"
#include "tests/support/soundDocuments.h"

namespace quorvane {
namespace {

constexpr const char* defaultPage =
    "\r\n\\deftab360\\defformat\\margb1418\\margl1701\\margt1418\\margr1701\\paperw12242"
    "\\paperh15842\\pgnstart2\\widowctrl\r\n";

std::string withoutStyles(const std::string& page, const std::string& rows) {
    return std::string("{") + fixedGroups + page + rows + "}";
}

class Document : public testing::Test {
protected:
    FakePlatform platform;
    Ref<CRtfDoc> document = CRtfDoc::create(platform);
};

TEST_F(Document, IsAPairOfBracesUntilSomethingChanges) {
    EXPECT_FALSE(document->Changed());
    EXPECT_EQ(document->Contents(), "{}");
}

TEST_F(Document, HasTheDefaultPage) {
    EXPECT_EQ(document->BottomMargin(), 1418);
    EXPECT_EQ(document->TopMargin(), 1418);
    EXPECT_EQ(document->LeftMargin(), 1701);
    EXPECT_EQ(document->RightMargin(), 1701);
    EXPECT_EQ(document->PageNumberStart(), 2);
    EXPECT_EQ(document->PageHeight(), 15842);
    EXPECT_EQ(document->PageWidth(), 12242);
}

TEST_F(Document, HasNoStylesheetAndNoRowsAtFirst) {
    EXPECT_FALSE(document->StyleSheetOk());
    EXPECT_EQ(document->StyleSheetFile(), "");
    EXPECT_EQ(document->TableRows()->Count(), 0);
}

TEST_F(Document, IsMadeOfItsGroupsInOrder) {
    document->setChanged(true);

    EXPECT_EQ(document->Contents(), withoutStyles(defaultPage, ""));
}

TEST_F(Document, HasTheStylesheetGroupBetweenColorsAndPage) {
    document->LoadStyleSheetFromMemmory("{name: normal; style-def: s; format: \\f9}");

    EXPECT_EQ(document->Contents(), std::string("{") + fixedGroups +
                                        "\r\n{\\stylesheet\r\n{\\f9 normal;}}" + defaultPage + "}");
}

TEST_F(Document, EndsWithItsRows) {
    document->TableRows()->AddTail();

    EXPECT_EQ(document->Contents(),
              withoutStyles(defaultPage, "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0\\row}"));
}

TEST_F(Document, WritesThePageThatWasSet) {
    document->setPageHeight(20001);
    document->setPageWidth(20002);
    document->setBottomMargin(1003);
    document->setTopMargin(1004);
    document->setLeftMargin(1005);
    document->setRightMargin(1006);
    document->setPageNumberStart(7);

    EXPECT_EQ(document->BottomMargin(), 1003);
    EXPECT_EQ(document->TopMargin(), 1004);
    EXPECT_EQ(document->LeftMargin(), 1005);
    EXPECT_EQ(document->RightMargin(), 1006);
    EXPECT_EQ(document->PageNumberStart(), 7);
    EXPECT_EQ(document->PageHeight(), 20001);
    EXPECT_EQ(document->PageWidth(), 20002);
    EXPECT_EQ(document->Contents(),
              withoutStyles("\r\n\\deftab360\\defformat\\margb1003\\margl1005\\margt1004\\margr1006"
                            "\\paperw20002\\paperh20001\\pgnstart7\\widowctrl\r\n",
                            ""));
}

TEST_F(Document, ReplacesPageSettingsThatDoNotFit) {
    document->setBottomMargin(20000);
    document->setTopMargin(20000);
    document->setLeftMargin(20000);
    document->setRightMargin(20000);
    document->setPageNumberStart(-1);

    EXPECT_EQ(document->BottomMargin(), 0);
    EXPECT_EQ(document->TopMargin(), 2);
    EXPECT_EQ(document->LeftMargin(), 1);
    EXPECT_EQ(document->RightMargin(), 3);
    EXPECT_EQ(document->PageNumberStart(), 2);
}

TEST_F(Document, IsChangedByAMarginOfAnotherValueOnly) {
    EXPECT_FALSE(marksChanged(*document, [&] { document->setBottomMargin(1418); }));
    EXPECT_FALSE(marksChanged(*document, [&] { document->setTopMargin(1418); }));
    EXPECT_FALSE(marksChanged(*document, [&] { document->setLeftMargin(1701); }));
    EXPECT_FALSE(marksChanged(*document, [&] { document->setRightMargin(1701); }));
    EXPECT_FALSE(marksChanged(*document, [&] { document->setPageNumberStart(2); }));

    EXPECT_TRUE(marksChanged(*document, [&] { document->setBottomMargin(1); }));
    EXPECT_TRUE(marksChanged(*document, [&] { document->setTopMargin(1); }));
    EXPECT_TRUE(marksChanged(*document, [&] { document->setLeftMargin(1); }));
    EXPECT_TRUE(marksChanged(*document, [&] { document->setRightMargin(1); }));
    EXPECT_TRUE(marksChanged(*document, [&] { document->setPageNumberStart(1); }));
}

TEST_F(Document, IsChangedByEveryPageSize) {
    EXPECT_TRUE(marksChanged(*document, [&] { document->setPageWidth(12242); }));
    EXPECT_TRUE(marksChanged(*document, [&] { document->setPageHeight(15842); }));
}

TEST_F(Document, IsNotChangedByReading) {
    document->TableRows()->AddTail();

    EXPECT_FALSE(marksChanged(*document, [&] {
        document->Contents();
        document->TableRows();
        (void)document->TextAreaWidth();
        (void)document->GetParagraphStyle("a");
        (void)document->GetCharacterStyle("a");
        (void)document->getCellStyleBackColor("a");
    }));
}

TEST_F(Document, TakesTheChangedFlagAsItIsSet) {
    document->setChanged(true);
    EXPECT_TRUE(document->Changed());
    document->setChanged(false);
    EXPECT_FALSE(document->Changed());
}

TEST_F(Document, KeepsItsOldTextWhenTheFlagIsTakenBack) {
    document->TableRows()->AddTail();

    document->setChanged(false);

    EXPECT_EQ(document->Contents(), "{}");
}

TEST_F(Document, IsUnchangedOnceItsTextWasRead) {
    document->setPageWidth(10000);

    document->Contents();

    EXPECT_FALSE(document->Changed());
}

TEST_F(Document, GivesTheSameTextWhenReadAgain) {
    document->TableRows()->AddTail();
    const std::string text = document->Contents();

    EXPECT_EQ(document->Contents(), text);
    document->setChanged(true);
    EXPECT_EQ(document->Contents(), text);
}

TEST_F(Document, MakesItsTextAnewWhenItIsRefreshed) {
    document->Refresh();

    EXPECT_FALSE(document->Changed());
    EXPECT_EQ(document->Contents(), withoutStyles(defaultPage, ""));
}

TEST_F(Document, HasTheUsableWidthOfThePageWithoutMargins) {
    EXPECT_EQ(document->TextAreaWidth(), 8840);

    document->setPageWidth(20000);
    document->setLeftMargin(100);
    document->setRightMargin(200);
    EXPECT_EQ(document->TextAreaWidth(), 19700);
}

TEST_F(Document, CanHaveANegativeUsableWidth) {
    document->setPageWidth(0);

    EXPECT_EQ(document->TextAreaWidth(), -3402);
}

TEST_F(Document, HasNoUsableWidthBeyond32Bits) {
    document->setPageWidth(INT32_MIN + 3402);
    EXPECT_EQ(document->TextAreaWidth(), INT32_MIN);

    document->setPageWidth(INT32_MIN + 3401);
    EXPECT_EQ(errorNumberOf([&] { (void)document->TextAreaWidth(); }), 6);
    document->setPageWidth(INT32_MIN);
    EXPECT_EQ(errorNumberOf([&] { (void)document->TextAreaWidth(); }), 6);
}

TEST_F(Document, ReturnsABlankForAParagraphStyleThatItDoesNotKnow) {
    EXPECT_EQ(document->GetParagraphStyle("nosuch"), " ");
    EXPECT_EQ(document->GetParagraphStyle(""), " ");

    document->LoadStyleSheetFromMemmory("{name: bold; style-def: cs; format: \\b}");
    EXPECT_EQ(document->GetParagraphStyle("nosuch"), " ");
}

TEST_F(Document, ReturnsNothingForACharacterStyleThatItDoesNotKnow) {
    EXPECT_EQ(document->GetCharacterStyle("nosuch"), "");
}

TEST_F(Document, ReturnsNoColorForACellStyleThatItDoesNotKnow) {
    EXPECT_EQ(document->getCellStyleBackColor("nosuch"), eNoColor);
}

TEST_F(Document, LooksStylesUpInItsStylesheet) {
    document->LoadStyleSheetFromMemmory(
        "{name: normal; style-def: s; format: \\f9}"
        "{name: bold; style-def: cs; format: \\b}"
        "{name: shaded; style-def: cell; format: navy-blue}");

    EXPECT_EQ(document->GetParagraphStyle("normal"), "\\s100\\f9 ");
    EXPECT_EQ(document->GetParagraphStyle("nosuch"), "\\s0\\f9 ");
    EXPECT_EQ(document->GetCharacterStyle("bold"), "\\cs100\\b ");
    EXPECT_EQ(document->getCellStyleBackColor("shaded"), eNavyBlue);
}

TEST_F(Document, IsChangedByLoadingAStylesheet) {
    EXPECT_TRUE(marksChanged(*document, [&] { document->LoadStyleSheetFromMemmory(""); }));
    EXPECT_TRUE(document->StyleSheetOk());

    platform.files["style.rtfss"] = "";
    EXPECT_TRUE(marksChanged(*document, [&] { document->setStyleSheetFile("style.rtfss"); }));
    EXPECT_TRUE(document->StyleSheetOk());
    EXPECT_EQ(document->StyleSheetFile(), "style.rtfss");
}

TEST_F(Document, IsNotChangedByAStylesheetThatIsMissing) {
    EXPECT_FALSE(marksChanged(*document, [&] { document->setStyleSheetFile("nosuch.rtfss"); }));
    EXPECT_FALSE(document->StyleSheetOk());
    EXPECT_EQ(document->StyleSheetFile(), "nosuch.rtfss");
}

TEST_F(Document, IsNotChangedByABadStylesheet) {
    platform.files["bad.rtfss"] = "{";

    EXPECT_FALSE(marksChanged(*document, [&] {
        EXPECT_EQ(errorNumberOf([&] { document->LoadStyleSheetFromMemmory("{a: b}"); }), 445);
        EXPECT_EQ(errorNumberOf([&] { document->setStyleSheetFile("bad.rtfss"); }), 31037);
    }));
    EXPECT_FALSE(document->StyleSheetOk());
    EXPECT_EQ(document->StyleSheetFile(), "");
}

TEST_F(Document, LetsTheErrorOfABadStylesheetReachTheHostOnly) {
    std::vector<AbsorbedError> absorbed;
    document->setAbsorbedErrorObserver(
        [&absorbed](const AbsorbedError& error) { absorbed.push_back(error); });

    EXPECT_EQ(errorNumberOf([&] { document->LoadStyleSheetFromMemmory("{"); }), 31037);

    EXPECT_TRUE(absorbed.empty());
}

TEST_F(Document, ReturnsTheSameRowsEveryTime) {
    EXPECT_EQ(document->TableRows(), document->TableRows());
}

TEST_F(Document, StartsAnewWhenItsStructureIsCleared) {
    const Ref<CRtfTableRows> oldRows = document->TableRows();
    oldRows->AddTail();
    document->setBottomMargin(1);
    document->setTopMargin(1);
    document->setLeftMargin(5);
    document->setRightMargin(5);
    document->setPageNumberStart(5);
    document->setPageWidth(5);
    document->setPageHeight(5);

    document->ClearStructure();

    EXPECT_NE(document->TableRows(), oldRows);
    EXPECT_EQ(document->TableRows()->Count(), 0);
    EXPECT_EQ(document->BottomMargin(), 1418);
    EXPECT_EQ(document->TopMargin(), 1418);
    EXPECT_EQ(document->LeftMargin(), 1701);
    EXPECT_EQ(document->RightMargin(), 1701);
    EXPECT_EQ(document->PageNumberStart(), 2);
    EXPECT_EQ(document->PageHeight(), 15842);
    EXPECT_EQ(document->PageWidth(), 12242);
    EXPECT_EQ(document->Contents(), withoutStyles(defaultPage, ""));
}

TEST_F(Document, KeepsItsStylesheetWhenItsStructureIsCleared) {
    platform.files["style.rtfss"] = "{name: bold; style-def: cs; format: \\b}";
    document->setStyleSheetFile("style.rtfss");

    document->ClearStructure();

    EXPECT_TRUE(document->StyleSheetOk());
    EXPECT_EQ(document->StyleSheetFile(), "style.rtfss");
    EXPECT_EQ(document->GetCharacterStyle("bold"), "\\cs100\\b ");
    EXPECT_EQ(platform.count("readFile"), 1U);
}

TEST_F(Document, LeavesTheChangedFlagWhenItsStructureIsCleared) {
    document->setChanged(false);
    document->ClearStructure();
    EXPECT_FALSE(document->Changed());

    document->setChanged(true);
    document->ClearStructure();
    EXPECT_TRUE(document->Changed());
}

TEST_F(Document, KeepsItsOldTextWhenItsStructureIsClearedUnchanged) {
    document->TableRows()->AddTail();
    const std::string text = document->Contents();

    document->ClearStructure();

    EXPECT_EQ(document->Contents(), text);
    document->Refresh();
    EXPECT_EQ(document->Contents(), withoutStyles(defaultPage, ""));
}

TEST_F(Document, ForgetsTheLastErrorWithEveryCallThatCanFail) {
    const auto expectForgotten = [](auto call) {
        setCurrentError(RtfError(RunTimeError::Overflow));
        call();
        EXPECT_EQ(currentError(), nullptr);
    };
    platform.files["style.rtfss"] = "";

    expectForgotten([&] { document->Contents(); });
    expectForgotten([&] { document->Refresh(); });
    expectForgotten([&] { document->ClearStructure(); });
    expectForgotten([&] { document->Commit("a.rtf"); });
    expectForgotten([&] { document->LoadStyleSheetFromMemmory(""); });
    expectForgotten([&] { document->setStyleSheetFile("style.rtfss"); });
}

TEST(RealDocument, RunsOnTheSystemsPlatformByDefault) {
    const Ref<CRtfDoc> document = CRtfDoc::create();

    EXPECT_EQ(document->Contents(), "{}");
}

class Commit : public Document {
protected:
    Commit() {
        document->setAbsorbedErrorObserver(
            [this](const AbsorbedError& error) { absorbed.push_back(error); });
    }

    void TearDown() override { expectSoundDocuments(platform); }

    void addRowOfOneCell() {
        document->TableRows()->AddTail();
        document->TableRows()->PeekTail()->TableCells()->AddTail();
    }

    void expectAbsorbed(std::size_t index, RunTimeError number, const char* moduleName,
                        const char* procedureName) const {
        ASSERT_LT(index, absorbed.size());
        EXPECT_EQ(absorbed[index].error.number, static_cast<std::int32_t>(number));
        EXPECT_EQ(absorbed[index].moduleName, moduleName);
        EXPECT_EQ(absorbed[index].procedureName, procedureName);
    }

    std::vector<AbsorbedError> absorbed;
};

TEST_F(Commit, WritesAPairOfBracesForAnUnchangedDocument) {
    document->Commit("out.rtf");

    EXPECT_EQ(platform.files.at("out.rtf"), "{}");
    EXPECT_TRUE(absorbed.empty());
}

TEST_F(Commit, MakesTheTextAnewWhenSomethingChanged) {
    addRowOfOneCell();

    document->Commit("out.rtf");

    EXPECT_FALSE(document->Changed());
    EXPECT_EQ(
        platform.files.at("out.rtf"),
        withoutStyles(defaultPage,
                      "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0 \\cellx8840 \r\n\\cell\\row}"));
}

TEST_F(Commit, WritesTheOldTextWhenTheFlagWasTakenBack) {
    document->Refresh();
    document->TableRows()->AddTail();
    document->setChanged(false);

    document->Commit("out.rtf");

    EXPECT_EQ(platform.files.at("out.rtf"), withoutStyles(defaultPage, ""));
}

TEST_F(Commit, WritesTheSameTextTwice) {
    addRowOfOneCell();

    document->Commit("one.rtf");
    document->Commit("two.rtf");

    EXPECT_EQ(platform.files.at("one.rtf"), platform.files.at("two.rtf"));
    EXPECT_FALSE(document->Changed());
}

TEST_F(Commit, WritesBytesOfCodePage1252) {
    const CellDocument cell{"caf\xC3\xA9 \xE2\x82\xAC \xC2\x81 \xC5\x81"};
    cell.document->setChanged(true);

    cell.document->Commit("out.rtf");

    const std::string& bytes = cell.platform.files.at("out.rtf");
    EXPECT_NE(bytes.find("\\pard\\plain\\intbl caf\xE9 \x80 \x81 ?\\cell"), std::string::npos);
}

TEST_F(Commit, DeletesAnExistingFileFirst) {
    platform.files["out.rtf"] = "something much longer than the new text";

    document->Commit("out.rtf");

    EXPECT_EQ(platform.files.at("out.rtf"), "{}");
    EXPECT_EQ(platform.operations,
              (std::vector<std::string>{"fileExists out.rtf", "deleteFile out.rtf",
                                        "createFile out.rtf", "write 2", "close out.rtf"}));
}

TEST_F(Commit, ReportsToTheHostAFileThatCannotBeDeleted) {
    platform.files["my file.rtf"] = "old";
    platform.fail("deleteFile", RunTimeError::PathFileAccessError);

    try {
        document->Commit("my file.rtf");
        FAIL();
    } catch (const RtfError& error) {
        EXPECT_EQ(error.number, 75);
        EXPECT_EQ(error.description,
                  "Error accessing my file.rtf. The file seems to be opened with exclusive rights "
                  "by some other application (maybe MS Word) and Quorvane can't modify it.  Use a "
                  "diferent file name or close it.");
        EXPECT_EQ(error.source, "");
        ASSERT_NE(currentError(), nullptr);
        EXPECT_EQ(currentError()->description, error.description);
    }
    EXPECT_EQ(platform.files.at("my file.rtf"), "old");
    EXPECT_EQ(platform.count("createFile"), 0U);
}

TEST_F(Commit, ReportsTheDeletionThatFailed) {
    platform.files["out.rtf"] = "old";
    platform.fail("deleteFile", RunTimeError::PathFileAccessError);

    EXPECT_EQ(errorNumberOf([&] { document->Commit("out.rtf"); }), 75);

    ASSERT_EQ(absorbed.size(), 1U);
    expectAbsorbed(0, RunTimeError::PathFileAccessError, "GFileSystem.bas", "saveStringToFile");
}

TEST_F(Commit, AbsorbsAnotherFailureToDelete) {
    platform.files["out.rtf"] = "old";
    platform.fail("deleteFile", RunTimeError::DeviceIoError);

    document->Commit("out.rtf");

    EXPECT_EQ(platform.files.at("out.rtf"), "old");
    ASSERT_EQ(absorbed.size(), 2U);
    expectAbsorbed(0, RunTimeError::DeviceIoError, "GFileSystem.bas", "saveStringToFile");
    expectAbsorbed(1, RunTimeError::DeviceIoError, "CRtfDoc.cls", "Commit");
}

TEST_F(Commit, AbsorbsAFailureToCreateTheFile) {
    for (const RunTimeError number : {RunTimeError::PathFileAccessError, RunTimeError::PathNotFound,
                                      RunTimeError::TooManyFiles}) {
        absorbed.clear();
        platform.fail("createFile", number);

        document->Commit("out.rtf");

        EXPECT_FALSE(platform.files.contains("out.rtf"));
        ASSERT_EQ(absorbed.size(), 1U);
        expectAbsorbed(0, number, "GFileSystem.bas", "saveString");
    }
}

TEST_F(Commit, AbsorbsAFailureToWriteTheFile) {
    platform.fail("write", RunTimeError::DiskFull);

    document->Commit("out.rtf");

    ASSERT_EQ(absorbed.size(), 1U);
    expectAbsorbed(0, RunTimeError::DiskFull, "GFileSystem.bas", "saveString");
    EXPECT_EQ(platform.openFiles, 0);
}

TEST_F(Commit, AbsorbsAFailureToCloseTheFile) {
    platform.fail("close", RunTimeError::DiskFull);

    document->Commit("out.rtf");

    ASSERT_EQ(absorbed.size(), 1U);
    expectAbsorbed(0, RunTimeError::DiskFull, "GFileSystem.bas", "saveString");
}

TEST_F(Commit, DoesNotShowTheErrorsThatItAbsorbs) {
    platform.fail("createFile", RunTimeError::PathFileAccessError);

    document->Commit("out.rtf");

    EXPECT_TRUE(platform.messageBoxes.empty());
}

TEST_F(Commit, ShowsAnObjectThatCannotBeCreated) {
    platform.files["out.rtf"] = "old";
    platform.fail("deleteFile", RtfError(429, "No object", "Files"));

    document->Commit("out.rtf");

    ASSERT_EQ(platform.messageBoxes.size(), 2U);
    EXPECT_EQ(platform.messageBoxes[0].text,
              "Number: 429\r\nDescription: No object\r\nModule: GFileSystem.bas\r\n"
              "Funtion: saveStringToFile\r\nSource: Files");
    EXPECT_EQ(platform.messageBoxes[1].text,
              "Number: 429\r\nDescription: No object\r\nModule: CRtfDoc.cls\r\n"
              "Funtion: Commit\r\nSource: Files");
    EXPECT_EQ(platform.messageBoxes[1].style, 64);
    EXPECT_EQ(platform.messageBoxes[1].title, "Quorvane");
}

TEST_F(Commit, CanBeTriedAgainAfterAFailure) {
    platform.files["out.rtf"] = "old";
    platform.fail("deleteFile", RunTimeError::PathFileAccessError);
    addRowOfOneCell();
    EXPECT_EQ(errorNumberOf([&] { document->Commit("out.rtf"); }), 75);
    EXPECT_FALSE(document->Changed());

    platform.repair("deleteFile");
    document->Commit("out.rtf");

    EXPECT_EQ(platform.files.at("out.rtf"), document->Contents());
}

TEST_F(Commit, ReportsToNobodyOnceTheObserverIsRemoved) {
    document->setAbsorbedErrorObserver({});
    platform.fail("createFile", RunTimeError::DiskFull);

    document->Commit("out.rtf");

    EXPECT_TRUE(absorbed.empty());
}

}  // namespace
}  // namespace quorvane
