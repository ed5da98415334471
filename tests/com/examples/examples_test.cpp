#include <gmock/gmock.h>
#include <windows.h>

#include <ostream>
#include <string>

#include "tests/com/examples/libraryDocuments.h"
#include "tests/com/examples/runExample.h"
#include "tests/com/host/Process.h"
#include "tests/com/host/text.h"

namespace quorvane::host {
namespace {

using testing::EndsWith;
using testing::StartsWith;

/// An example, how it is run, and what its host makes of errors.
struct Example {
    std::string name;
    std::wstring program;
    /// What is reported about the errors of a description.
    std::string events;
    /// What is reported about the errors `eWrongPath` and 75 before their descriptions.
    std::string wrongPath;
    std::string accessError;
};

void PrintTo(const Example& example, std::ostream* stream) {
    *stream << example.name;
}

// Wine's script host does not connect events. JScript does not show the source of an error.
const Example examples[] = {
    {"VBScript", script("invoice.vbs"), "This script host does not connect events.\n",
     "error 0x80040003 (Error: eWrongPath, CRtfDriver.ParseFile): ", "error 0x800A004B (): "},
    {"JScript", script("invoice.js"), "This script host does not connect events.\n",
     "error 0x80040003: ", "error 0x800A004B: "},
    {"Cpp", builtProgram("invoice.exe"),
     "in the description: error 0x8004000B (sLine is neither a recognized node nor a leaf, sLeaf "
     "= "
     "(para-text=Reminder, CRtfDriver.treeWalkerBuild): (para-text=Reminder has a wrong syntax\n"
     "in the description: error 0x8004000B (CRtfDriver.paraWalkerSyntax): In a para group "
     "para-text is mandatory.\n",
     "error 0x80040003 (Error: eWrongPath, CRtfDriver.ParseFile): ", "error 0x800A004B (): "},
};

class RunExample : public testing::TestWithParam<Example> {
protected:
    static void SetUpTestSuite() { registerComponent(L"/s"); }
    static void TearDownTestSuite() { registerComponent(L"/s /u"); }

    ProcessResult runWith(const std::wstring& arguments) const {
        return run(GetParam().program, arguments);
    }
    ProcessResult runWithBoth() const {
        return runWith(inQuotes(invoice_.path()) + L" " + inQuotes(reminder_.path()));
    }

    WrittenFile invoice_{L"invoice.rtf"};
    WrittenFile reminder_{L"reminder.rtf"};
};

TEST_P(RunExample, CommitsTheBytesOfTheLibrary) {
    runWithBoth();

    EXPECT_EQ(invoice_.bytes(), libraryInvoice());
    EXPECT_EQ(reminder_.bytes(), libraryReminder());
}

TEST_P(RunExample, TellsWhatItDoes) {
    const ProcessResult result = runWithBoth();

    EXPECT_EQ(result.output, utf8Text(invoice_.path()) + " was written.\n" + GetParam().events +
                                 "rows built from the faulty description: 1\n" +
                                 GetParam().wrongPath +
                                 "no-such-file.rtfspec doesn't exist or is unreacheable\n" +
                                 "rows built from the correct description: 3\n" +
                                 utf8Text(reminder_.path()) + " was written.\n");
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.status, 0U);
}

TEST_P(RunExample, NeedsNoPathForTheReminder) {
    const ProcessResult result = runWith(inQuotes(invoice_.path()));

    EXPECT_EQ(invoice_.bytes(), libraryInvoice());
    EXPECT_THAT(result.output, EndsWith("rows built from the correct description: 3\n"));
    EXPECT_EQ(result.status, 0U);
}

TEST_P(RunExample, ReplacesAFile) {
    writeFile(invoice_.path(), "something else");

    runWithBoth();

    EXPECT_EQ(invoice_.bytes(), libraryInvoice());
}

TEST_P(RunExample, TellsTheComponentsErrorWhenAFileCannotBeReplaced) {
    writeFile(invoice_.path(), "held open");
    const HANDLE held = CreateFileW(invoice_.path().c_str(), GENERIC_READ, 0, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);

    const ProcessResult result = runWithBoth();
    CloseHandle(held);

    EXPECT_EQ(result.output,
              GetParam().accessError + "Error accessing " + utf8Text(invoice_.path()) +
                  ". The file seems to be opened with exclusive rights by some other application "
                  "(maybe MS Word) and Quorvane can't modify it.  Use a diferent file name or "
                  "close it.\n");
    EXPECT_EQ(result.status, 1U);
    EXPECT_EQ(invoice_.bytes(), "held open");
    EXPECT_EQ(reminder_.bytes(), "");
}

TEST_P(RunExample, TellsThatAFileIsNotWritten) {
    const std::wstring file = temporaryFile(L"no-such-folder") + L"\\invoice.rtf";

    const ProcessResult result = runWith(inQuotes(file));

    EXPECT_THAT(result.output, EndsWith(utf8Text(file) + " was not written.\n"));
    EXPECT_EQ(result.status, 1U);
}

TEST_P(RunExample, AsksForAPath) {
    const ProcessResult result = runWith(L"");

    EXPECT_THAT(result.output, StartsWith("usage: "));
    EXPECT_EQ(result.status, 2U);
}

INSTANTIATE_TEST_SUITE_P(Examples, RunExample, testing::ValuesIn(examples),
                         [](const testing::TestParamInfo<Example>& tested) {
                             return tested.param.name;
                         });

TEST(CompiledExample, NeedsTheComponentRegistered) {
    const WrittenFile invoice(L"invoice.rtf");

    const ProcessResult result = run(builtProgram("invoice.exe"), inQuotes(invoice.path()));

    EXPECT_THAT(result.output, StartsWith("error 0x800401F3 "));  // CO_E_CLASSSTRING
    EXPECT_EQ(result.status, 1U);
}

TEST(CompiledExample, RunsWithoutRegistrationBesideItsManifest) {
    const WrittenFile invoice(L"invoice.rtf");
    const WrittenFile reminder(L"reminder.rtf");

    const ProcessResult result = run(builtProgram("withoutRegistration/invoice.exe"),
                                     inQuotes(invoice.path()) + L" " + inQuotes(reminder.path()));

    EXPECT_EQ(invoice.bytes(), libraryInvoice());
    EXPECT_EQ(reminder.bytes(), libraryReminder());
    EXPECT_EQ(result.status, 0U);
}

}  // namespace
}  // namespace quorvane::host
