#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "tests/com/host/Process.h"

namespace quorvane::host {
namespace {

/// Programs whose threads end, each in a way of its own; see `threadHost`. Process::wait fails for
/// one that does not end.
class EndingThreads : public testing::Test {
protected:
    static void expectToEndWell(const std::wstring& scene) {
        const ProcessResult result =
            Process(L"\"" + testProgram(L"threadHost.exe") + L"\" " + scene, L"C:\\").wait();

        EXPECT_EQ(result.status, 0U) << result.errors;
    }
};

TEST_F(EndingThreads, MayHaveMetErrors) {
    expectToEndWell(L"end");
}

TEST_F(EndingThreads, MayHaveLoadedTheComponentThemselves) {
    expectToEndWell(L"endAfterFreeing");
}

TEST_F(EndingThreads, MayOutliveTheComponent) {
    expectToEndWell(L"outliveTheComponent");
}

TEST_F(EndingThreads, MayBeKilled) {
    expectToEndWell(L"areKilled");
}

TEST_F(EndingThreads, MayBeStoppedInACallByTheEndOfTheProcess) {
    for (int i = 0; i < 10; ++i) {
        expectToEndWell(L"workToTheEnd");
    }
}

TEST_F(EndingThreads, MayHaveBeenFibers) {
    expectToEndWell(L"areFibers");
}

TEST_F(EndingThreads, MayLeaveTheirObjectsToOthers) {
    expectToEndWell(L"leaveObjectsBehind");
}

TEST_F(EndingThreads, MayLoadTheComponentThousandsOfTimes) {
    expectToEndWell(L"loadAndFree");
}

TEST_F(EndingThreads, MayHaveHadNoPlaceForTheirErrors) {
    expectToEndWell(L"haveNoSlot");
}

}  // namespace
}  // namespace quorvane::host
