#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/text/extendedMark.h"
#include "quorvane/driver/CRtfDriver.h"
#include "tests/golden/goldenCases.h"

namespace quorvane::golden {
namespace {

struct SeenError {
    std::string kind;
    RtfError error;
};

class GoldenLibrary : public testing::TestWithParam<Case> {
protected:
    void SetUp() override {
        folderBefore_ = std::filesystem::current_path();
        // The stylesheet's name is part of its errors.
        std::filesystem::current_path(GetParam().folder);
    }
    void TearDown() override { std::filesystem::current_path(folderBefore_); }

private:
    std::filesystem::path folderBefore_;
};

TEST_P(GoldenLibrary, GivesTheExpectedBytesAndErrors) {
    const Case& expected = GetParam();
    std::vector<SeenError> seen;
    const Ref<CRtfDriver> driver = CRtfDriver::create();
    driver->setNotifyErrorHandler([&seen](CRtfDriver&, const RtfError& error) {
        seen.push_back({"event", error});
    });
    driver->setErroneousInput(expected.checked);
    // Each description says in its first line which language it is in.
    driver->setReadsExtended(isMarkedExtended(readBytes(expected.folder / "description.rtfspec")));
    driver->RtfObject()->setExtendedStyleSheets(true);

    if (expected.hasStyleSheet) {
        try {
            driver->setStyleSheetFile("style.rtfss");
        } catch (const RtfError& error) {
            seen.push_back({"raised", error});
        }
    }
    driver->ParseFile("description.rtfspec");

    EXPECT_EQ(codePage1252FromUtf8(driver->Contents()), expected.expectedRtf);
    ASSERT_EQ(seen.size(), expected.expectedErrors.size());
    for (std::size_t i = 0; i < seen.size(); ++i) {
        const ExpectedError& error = expected.expectedErrors[i];
        EXPECT_EQ(seen[i].kind, error.kind);
        EXPECT_EQ(seen[i].error.number, error.number);
        EXPECT_EQ(seen[i].error.description, error.description);
        if (!error.source.empty()) {
            EXPECT_EQ(seen[i].error.source, error.source);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, GoldenLibrary, testing::ValuesIn(loadCases(QUORVANE_GOLDEN_FOLDER)),
                         [](const testing::TestParamInfo<Case>& case_) {
                             std::string name = case_.param.name;
                             for (char& character : name) {
                                 character = character == '-' ? '_' : character;
                             }
                             return name;
                         });

}  // namespace
}  // namespace quorvane::golden
