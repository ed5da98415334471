// Files that others change while they are read.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

#include "quorvane/base/platform/Platform.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/docmodel/CRtfDoc.h"
#include "tests/cli/TemporaryFolder.h"
#include "tests/support/FakePlatform.h"

namespace quorvane {
namespace {

TEST(ChangingFiles, AreReadUpToWhereTheyEndThen) {
    const cli::TemporaryFolder folder;
    const std::string path = folder / "growing";
    folder.write("growing", std::string(100'000, 'x'));
    std::atomic<bool> isDone = false;
    std::thread writer([&] {
        std::ofstream file(path, std::ios::app);
        for (int i = 0; i < 2000 && !isDone; ++i) {
            file << std::string(1000, 'x') << std::flush;
        }
    });

    for (int i = 0; i < 20; ++i) {
        const std::string bytes = systemPlatform().readFile(path);
        EXPECT_GE(bytes.size(), 100'000u);
        EXPECT_EQ(bytes.find_first_not_of('x'), std::string::npos);
    }

    isDone = true;
    writer.join();
}

TEST(ChangingFiles, ThatVanishAreAnErrorOrWhole) {
    const cli::TemporaryFolder folder;
    const std::string path = folder / "vanishing";
    const std::string bytes(100'000, 'x');
    std::atomic<bool> isDone = false;
    std::thread remover([&] {
        while (!isDone) {
            std::error_code ignored;
            std::filesystem::remove(path, ignored);
        }
    });

    for (int i = 0; i < 200; ++i) {
        folder.write("other", bytes);
        std::error_code ignored;
        std::filesystem::rename(folder / "other", path, ignored);
        try {
            EXPECT_EQ(systemPlatform().readFile(path), bytes);
        } catch (const RtfError& error) {
            EXPECT_EQ(error.number, 53);
        }
    }

    isDone = true;
    remover.join();
}

TEST(ChangingFiles, ThatVanishBeforeTheyAreReadLeaveADocumentWithoutStyles) {
    FakePlatform platform;
    platform.files["style.rtfss"] = "{name: a; style-def: s}";
    platform.fail("readFile", RunTimeError::FileNotFound);
    const Ref<CRtfDoc> document = CRtfDoc::create(platform);

    document->setStyleSheetFile("style.rtfss");

    EXPECT_EQ(document->GetParagraphStyle("a"), " ");
}

}  // namespace
}  // namespace quorvane
