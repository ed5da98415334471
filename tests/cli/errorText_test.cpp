#include "cli/errorText.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "quorvane/driver/driverErrors.h"

namespace quorvane::cli {
namespace {

ReportedError event(RtfError error) {
    return {ErrorKind::Event, "letter.rtfspec", std::move(error)};
}

TEST(ErrorText, ReportsFileLineAndMessage) {
    const RtfError error = driverError(eWrongValue, "crimson isn't a recognized color.", "", 12);
    EXPECT_EQ(errorText(event(error)),
              "letter.rtfspec:12: error: crimson isn't a recognized color.");
}

TEST(ErrorText, LeavesOutAMissingLine) {
    const RtfError error = driverError(eWrongRootNode, "(doc must be the first node.");
    EXPECT_EQ(errorText(event(error)), "letter.rtfspec: error: (doc must be the first node.");
}

TEST(ErrorText, ReportsNoNumber) {
    EXPECT_EQ(errorText(event(RtfError(RunTimeError::TypeMismatch))),
              "letter.rtfspec: error: Type mismatch");
}

TEST(ErrorText, LeavesOutAMissingFile) {
    const ReportedError diagnostic{ErrorKind::Raised, "", RtfError(RunTimeError::TypeMismatch)};
    EXPECT_EQ(errorText(diagnostic), "error: Type mismatch");
}

TEST(ErrorText, ReportsTheCauseAfterTheMessage) {
    RtfError error = driverError(eWrongPath, "a.rtfspec doesn't exist or is unreacheable");
    error.cause = std::make_shared<RtfError>(RunTimeError::FileNotFound);
    EXPECT_EQ(errorText(event(error)),
              "letter.rtfspec: error: a.rtfspec doesn't exist or is unreacheable "
              "(File not found)");
}

TEST(ErrorText, ReportsTheCauseOfACause) {
    RtfError cause(RunTimeError::DiskFull);
    cause.cause = std::make_shared<RtfError>(28, "No space left on device");
    RtfError error = driverError(eWrongPath, "It failed.");
    error.cause = std::make_shared<RtfError>(cause);
    EXPECT_EQ(errorText(event(error)),
              "letter.rtfspec: error: It failed. (Disk full (No space left on device))");
}

TEST(ErrorText, IsTheReasonAloneWhereTheSystemHasOne) {
    const ReportedError diagnostic{ErrorKind::Raised, "a\tb", RtfError(RunTimeError::FileNotFound),
                                   "No such file or directory"};
    EXPECT_EQ(errorText(diagnostic), "a b: No such file or directory");
}

TEST(ErrorText, StaysOnOneLine) {
    const RtfError error = driverError(eRequiredElementMissing,
                                       "Missing some requiered elements:\r\n(doc\r\n(row\r\n(cell");
    EXPECT_EQ(errorText({ErrorKind::Event, "a\nb", error}),
              "a b: error: Missing some requiered elements: (doc (row "
              "(cell");
}

}  // namespace
}  // namespace quorvane::cli
