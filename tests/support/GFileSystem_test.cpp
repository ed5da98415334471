#include "quorvane/support/GFileSystem.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <new>
#include <string>
#include <vector>

#include "quorvane/support/currentError.h"
#include "tests/support/FakePlatform.h"

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class GFileSystemTest : public testing::Test {
protected:
    GFileSystemTest() {
        clearCurrentError();
        errors.setObserver([this](const AbsorbedError& error) { absorbed.push_back(error); });
    }

    /// The piece of text written by one `write`, in code page 1252.
    std::string saved(const std::string& text) {
        GFileSystem::saveString(platform, errors, "a.rtf", text);
        return platform.files.at("a.rtf");
    }

    FakePlatform platform;
    GError errors{platform};
    std::vector<AbsorbedError> absorbed;
};

// saveStringToFile

TEST_F(GFileSystemTest, SavingToAMissingFileMakesIt) {
    EXPECT_TRUE(GFileSystem::saveStringToFile(platform, errors, "a.rtf", "{}", false));

    EXPECT_EQ(platform.files.at("a.rtf"), "{}");
    EXPECT_THAT(platform.operations,
                ElementsAre("fileExists a.rtf", "createFile a.rtf", "write 2", "close a.rtf"));
}

TEST_F(GFileSystemTest, SavingToAMissingFileMakesItAlsoWhenExistingOnesAreKept) {
    EXPECT_TRUE(GFileSystem::saveStringToFile(platform, errors, "a.rtf", "{}", true));

    EXPECT_EQ(platform.files.at("a.rtf"), "{}");
}

TEST_F(GFileSystemTest, SavingOverAnExistingFileReplacesItCompletely) {
    platform.files["a.rtf"] = "{a much longer text}";

    EXPECT_TRUE(GFileSystem::saveStringToFile(platform, errors, "a.rtf", "{}", false));

    EXPECT_EQ(platform.files.at("a.rtf"), "{}");
    EXPECT_THAT(platform.operations, ElementsAre("fileExists a.rtf", "deleteFile a.rtf",
                                                 "createFile a.rtf", "write 2", "close a.rtf"));
}

TEST_F(GFileSystemTest, SavingOverAFileHeldByAnotherProgramIsFalseWithError75Pending) {
    platform.files["a.rtf"] = "held";
    platform.fail("deleteFile", RunTimeError::PathFileAccessError);

    EXPECT_FALSE(GFileSystem::saveStringToFile(platform, errors, "a.rtf", "{}", false));

    ASSERT_NE(currentError(), nullptr);
    EXPECT_EQ(currentError()->number, 75);
    EXPECT_EQ(platform.files.at("a.rtf"), "held");
    EXPECT_EQ(platform.count("createFile"), 0U);
}

TEST_F(GFileSystemTest, AFileThatCannotBeDeletedIsReportedToTheErrorModule) {
    platform.files["a.rtf"] = "held";
    platform.fail("deleteFile", RunTimeError::PathFileAccessError);

    GFileSystem::saveStringToFile(platform, errors, "a.rtf", "{}", false);

    ASSERT_EQ(absorbed.size(), 1U);
    EXPECT_EQ(absorbed[0].error.number, 75);
    EXPECT_EQ(absorbed[0].moduleName, "GFileSystem.bas");
    EXPECT_EQ(absorbed[0].procedureName, "saveStringToFile");
}

TEST_F(GFileSystemTest, AnErrorStaysPendingWhenTheReporterFails) {
    platform.files["a.rtf"] = "held";
    platform.fail("deleteFile", RunTimeError::PathFileAccessError);
    errors.setReporterSwitch(true);

    EXPECT_FALSE(GFileSystem::saveStringToFile(platform, errors, "a.rtf", "{}", false));

    EXPECT_EQ(currentError()->number, 75);
}

TEST_F(GFileSystemTest, KeepingAnExistingFileLeavesItUntouchedAndIsTrue) {
    platform.files["a.rtf"] = "old";

    EXPECT_TRUE(GFileSystem::saveStringToFile(platform, errors, "a.rtf", "{}", true));

    EXPECT_EQ(platform.files.at("a.rtf"), "old");
    EXPECT_THAT(platform.operations, ElementsAre("fileExists a.rtf"));
}

TEST_F(GFileSystemTest, AFileThatCannotBeMadeIsAbsorbedBySaveStringAndTrue) {
    platform.fail("createFile", RunTimeError::PathNotFound);

    EXPECT_TRUE(GFileSystem::saveStringToFile(platform, errors, "gone/a.rtf", "{}", false));

    ASSERT_EQ(absorbed.size(), 1U);
    EXPECT_EQ(absorbed[0].error.number, 76);
    EXPECT_EQ(absorbed[0].moduleName, "GFileSystem.bas");
    EXPECT_EQ(absorbed[0].procedureName, "saveString");
}

// saveString

TEST_F(GFileSystemTest, SavingWritesTheBareText) {
    EXPECT_EQ(saved("{\\rtf1\r\n}"), "{\\rtf1\r\n}");
}

TEST_F(GFileSystemTest, SavingAnEmptyTextMakesAnEmptyFile) {
    EXPECT_EQ(saved(""), "");
    EXPECT_THAT(platform.operations, ElementsAre("createFile a.rtf", "close a.rtf"));
}

TEST_F(GFileSystemTest, SavingWritesCodePage1252) {
    EXPECT_EQ(saved("caf\xC3\xA9 \xE2\x82\xAC"), "caf\xE9 \x80");
}

TEST_F(GFileSystemTest, SavingWritesAQuestionMarkForWhatTheCodePageDoesNotHave) {
    EXPECT_EQ(saved("\xCE\xB1\xF0\x9F\x98\x80"), "??");
}

TEST_F(GFileSystemTest, SavingStartsAtTheFirstByteOfALongerFileAndLeavesItsTail) {
    platform.files["a.rtf"] = "0123456789";

    EXPECT_EQ(saved("{}"), "{}23456789");
}

TEST_F(GFileSystemTest, ALargeTextIsWrittenInBlocks) {
    const std::string text(600000, 'x');

    EXPECT_EQ(saved(text), text);
    EXPECT_THAT(platform.operations, ElementsAre("createFile a.rtf", "write 262144", "write 262144",
                                                 "write 75712", "close a.rtf"));
}

TEST_F(GFileSystemTest, ATextOfOneBlockIsWrittenAtOnce) {
    const std::string text(262144, 'x');

    EXPECT_EQ(saved(text), text);
    EXPECT_EQ(platform.count("write"), 1U);
}

TEST_F(GFileSystemTest, ACharacterAtTheBorderOfABlockIsNotCut) {
    const std::vector<std::string> characters{"\xC3\xA9", "\xE2\x82\xAC", "\xF0\x9F\x98\x80"};
    const std::vector<std::string> encoded{"\xE9", "\x80", "?"};

    for (std::size_t i = 0; i < characters.size(); ++i) {
        for (std::size_t bytesBefore = 262144 - 5; bytesBefore <= 262144 + 1; ++bytesBefore) {
            const std::string before(bytesBefore, 'x');
            EXPECT_TRUE(saved(before + characters[i] + "yz") == before + encoded[i] + "yz")
                << "character " << i << " after " << bytesBefore;
            platform.files.clear();
        }
    }
}

TEST_F(GFileSystemTest, CharactersAtEveryBorderAreNotCut) {
    std::string text;
    std::string expected;
    for (int i = 0; i < 400000; ++i) {
        text += "\xE2\x82\xAC";
        expected += '\x80';
    }

    EXPECT_TRUE(saved(text) == expected);
}

TEST_F(GFileSystemTest, BytesThatAreNotTextAreWrittenAsQuestionMarksAcrossTheBorder) {
    EXPECT_TRUE(saved(std::string(800000, '\x80')) == std::string(800000, '?'));
}

TEST_F(GFileSystemTest, SavingAbsorbsAFailureOfEachStep) {
    for (const char* step : {"createFile", "write", "close"}) {
        absorbed.clear();
        platform.fail(step, RunTimeError::DiskFull);

        EXPECT_NO_THROW(GFileSystem::saveString(platform, errors, "a.rtf", "{}")) << step;

        ASSERT_EQ(absorbed.size(), 1U) << step;
        EXPECT_EQ(absorbed[0].error.number, 61) << step;
        EXPECT_EQ(absorbed[0].moduleName, "GFileSystem.bas") << step;
        EXPECT_EQ(absorbed[0].procedureName, "saveString") << step;
        EXPECT_EQ(platform.openFiles, 0) << step;
        platform.repair(step);
    }
}

TEST_F(GFileSystemTest, WhatWasWrittenBeforeAFailureStays) {
    platform.fail("write", RunTimeError::DiskFull, 1);

    GFileSystem::saveString(platform, errors, "a.rtf", std::string(400000, 'x'));

    EXPECT_EQ(platform.files.at("a.rtf").size(), 262144U);
    EXPECT_EQ(absorbed.at(0).error.number, 61);
}

// fileExists

TEST_F(GFileSystemTest, FileExistsAsksThePlatform) {
    platform.files["a.rtf"] = "";

    EXPECT_TRUE(GFileSystem::fileExists(platform, "a.rtf"));
    EXPECT_FALSE(GFileSystem::fileExists(platform, "b.rtf"));
}

// loadStringFromFile

TEST_F(GFileSystemTest, LoadingReturnsTheWholeText) {
    platform.files["a.rtfss"] = "one\r\ntwo\r\n";

    EXPECT_EQ(GFileSystem::loadStringFromFile(platform, "a.rtfss"), "one\r\ntwo\r\n");
}

TEST_F(GFileSystemTest, LoadingReadsCodePage1252) {
    platform.files["a.rtfss"] = "caf\xE9 \x80";

    EXPECT_EQ(GFileSystem::loadStringFromFile(platform, "a.rtfss"), "caf\xC3\xA9 \xE2\x82\xAC");
}

TEST_F(GFileSystemTest, LoadingAnEmptyFileReturnsNothing) {
    platform.files["a.rtfss"] = "";

    EXPECT_EQ(GFileSystem::loadStringFromFile(platform, "a.rtfss"), "");
}

TEST_F(GFileSystemTest, LoadingAMissingFileReturnsNothing) {
    EXPECT_EQ(GFileSystem::loadStringFromFile(platform, "a.rtfss"), "");
}

TEST_F(GFileSystemTest, LoadingAFileThatCannotBeReadReturnsNothing) {
    platform.files["a.rtfss"] = "text";
    platform.fail("readFile", RunTimeError::PathFileAccessError);

    EXPECT_EQ(GFileSystem::loadStringFromFile(platform, "a.rtfss"), "");
}

TEST_F(GFileSystemTest, LoadingThatFailsLeavesNoErrorWhereNoneWas) {
    GFileSystem::loadStringFromFile(platform, "a.rtfss");

    EXPECT_EQ(currentError(), nullptr);
}

TEST_F(GFileSystemTest, LoadingThatFailsLeavesThePendingErrorPending) {
    setCurrentError(RtfError(445, "Bad keyword", "CRtfDriver.ParseFile"));

    GFileSystem::loadStringFromFile(platform, "a.rtfss");

    ASSERT_NE(currentError(), nullptr);
    EXPECT_EQ(currentError()->number, 445);
    EXPECT_EQ(currentError()->source, "CRtfDriver.ParseFile");
}

class PlatformWithoutMemory : public FakePlatform {
public:
    std::string readFile(const std::string&) override { throw std::bad_alloc(); }
};

TEST_F(GFileSystemTest, LoadingDoesNotHideThatMemoryIsExhausted) {
    PlatformWithoutMemory full;

    EXPECT_THROW(GFileSystem::loadStringFromFile(full, "a.rtfss"), std::bad_alloc);
}

// getPathTail

TEST(GetPathTail, IgnoresABackslashAtTheEnd) {
    EXPECT_EQ(GFileSystem::getPathTail("C:\\dir\\sub\\", "\\", true), "sub");
}

TEST(GetPathTail, IsWhatFollowsTheLastSeparator) {
    EXPECT_EQ(GFileSystem::getPathTail("C:\\dir\\name.rtf", "\\", true), "name.rtf");
}

TEST(GetPathTail, IsWhatPrecedesAndTheSeparatorWithoutTakeAfter) {
    EXPECT_EQ(GFileSystem::getPathTail("C:\\dir\\name.rtf", "\\", false), "C:\\dir\\");
}

TEST(GetPathTail, IsEmptyWithoutTheSeparator) {
    EXPECT_EQ(GFileSystem::getPathTail("name.rtf", "\\", true), "");
    EXPECT_EQ(GFileSystem::getPathTail("name.rtf", "\\", false), "");
}

TEST(GetPathTail, IsEmptyWhenNothingFollowsTheSeparator) {
    EXPECT_EQ(GFileSystem::getPathTail("name.", ".", true), "");
    EXPECT_EQ(GFileSystem::getPathTail("name.", ".", false), "name.");
}

TEST(GetPathTail, TrimsBlanksFirst) {
    EXPECT_EQ(GFileSystem::getPathTail("  C:\\dir\\sub\\  ", "\\", true), "sub");
    EXPECT_EQ(GFileSystem::getPathTail("  C:\\dir\\sub  ", "\\", false), "C:\\dir\\");
}

TEST(GetPathTail, DropsTheBackslashAtTheEndWhateverTheSeparator) {
    EXPECT_EQ(GFileSystem::getPathTail("name.rtf\\", ".", true), "rtf");
    EXPECT_EQ(GFileSystem::getPathTail("a/b\\", "/", true), "b");
}

TEST(GetPathTail, DropsOneBackslashOnly) {
    EXPECT_EQ(GFileSystem::getPathTail("C:\\dir\\\\", "\\", true), "");
    EXPECT_EQ(GFileSystem::getPathTail("C:\\dir\\\\", "\\", false), "C:\\dir\\");
}

TEST(GetPathTail, OfABackslashAloneIsEmpty) {
    EXPECT_EQ(GFileSystem::getPathTail("\\", "\\", false), "");
}

TEST(GetPathTail, OfAnEmptyOrBlankPathIsEmpty) {
    EXPECT_EQ(GFileSystem::getPathTail("", "\\", true), "");
    EXPECT_EQ(GFileSystem::getPathTail("   ", "\\", true), "");
}

TEST(GetPathTail, FindsNoSeparatorThatIsNotOneCharacter) {
    EXPECT_EQ(GFileSystem::getPathTail("a::b", "::", true), "");
    EXPECT_EQ(GFileSystem::getPathTail("a:b ", "", false), "");
}

TEST(GetPathTail, FindsASeparatorOfSeveralBytes) {
    EXPECT_EQ(GFileSystem::getPathTail("a\xC2\xA7"
                                       "b\xC2\xA7"
                                       "c",
                                       "\xC2\xA7", true),
              "c");
    EXPECT_EQ(GFileSystem::getPathTail("a\xC2\xA7"
                                       "b",
                                       "\xC2\xA7", false),
              "a\xC2\xA7");
}

// getFileExtension

TEST(GetFileExtension, IsWhatFollowsTheLastPoint) {
    EXPECT_EQ(GFileSystem::getFileExtension("a.b.rtfss"), "rtfss");
}

TEST(GetFileExtension, IsEmptyWithoutAPoint) {
    EXPECT_EQ(GFileSystem::getFileExtension("C:\\dir\\name"), "");
}

TEST(GetFileExtension, KeepsItsCapitals) {
    EXPECT_EQ(GFileSystem::getFileExtension("sheet.RTFSS"), "RTFSS");
}

TEST(GetFileExtension, CountsThePointOfAFolderToo) {
    EXPECT_EQ(GFileSystem::getFileExtension("a.b\\c"), "b\\c");
}

}  // namespace
}  // namespace quorvane
