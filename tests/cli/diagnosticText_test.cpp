#include "cli/diagnosticText.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "quorvane/driver/driverErrors.h"

namespace quorvane::cli {
namespace {

Diagnostic event(RtfError error) {
    return {DiagnosticKind::Event, "letter.rtfspec", std::move(error)};
}

TEST(DiagnosticText, TellsFileLineAndMessage) {
    const RtfError error = driverError(eWrongValue, "crimson isn't a recognized color.", "", 12);
    EXPECT_EQ(diagnosticText(event(error)),
              "letter.rtfspec:12: error: crimson isn't a recognized color.");
}

TEST(DiagnosticText, LeavesOutALineThatThereIsNot) {
    const RtfError error = driverError(eWrongRootNode, "(doc must be the first node.");
    EXPECT_EQ(diagnosticText(event(error)), "letter.rtfspec: error: (doc must be the first node.");
}

TEST(DiagnosticText, TellsNoNumber) {
    EXPECT_EQ(diagnosticText(event(RtfError(RunTimeError::TypeMismatch))),
              "letter.rtfspec: error: Type mismatch");
}

TEST(DiagnosticText, LeavesOutAFileThatThereIsNot) {
    const Diagnostic diagnostic{DiagnosticKind::Raised, "", RtfError(RunTimeError::TypeMismatch)};
    EXPECT_EQ(diagnosticText(diagnostic), "error: Type mismatch");
}

TEST(DiagnosticText, TellsTheCauseAfterTheMessage) {
    RtfError error = driverError(eWrongPath, "a.rtfspec doesn't exist or is unreacheable");
    error.cause = std::make_shared<RtfError>(RunTimeError::FileNotFound);
    EXPECT_EQ(diagnosticText(event(error)),
              "letter.rtfspec: error: a.rtfspec doesn't exist or is unreacheable "
              "(File not found)");
}

TEST(DiagnosticText, TellsTheCauseOfACause) {
    RtfError cause(RunTimeError::DiskFull);
    cause.cause = std::make_shared<RtfError>(28, "No space left on device");
    RtfError error = driverError(eWrongPath, "It failed.");
    error.cause = std::make_shared<RtfError>(cause);
    EXPECT_EQ(diagnosticText(event(error)),
              "letter.rtfspec: error: It failed. (Disk full (No space left on device))");
}

TEST(DiagnosticText, IsTheReasonAloneWhereTheSystemHasOne) {
    const Diagnostic diagnostic{DiagnosticKind::Raised, "a\tb",
                                RtfError(RunTimeError::FileNotFound), "No such file or directory"};
    EXPECT_EQ(diagnosticText(diagnostic), "a b: No such file or directory");
}

TEST(DiagnosticText, StaysOnOneLine) {
    const RtfError error = driverError(eRequiredElementMissing,
                                       "Missing some requiered elements:\r\n(doc\r\n(row\r\n(cell");
    EXPECT_EQ(diagnosticText({DiagnosticKind::Event, "a\nb", error}),
              "a b: error: Missing some requiered elements: (doc (row "
              "(cell");
}

}  // namespace
}  // namespace quorvane::cli
