#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/com/host/Process.h"
#include "tests/com/host/text.h"

namespace quorvane::host {
namespace {

std::wstring inQuotes(const std::wstring& text) {
    return L"\"" + text + L"\"";
}

ProcessResult runCommand(const std::wstring& arguments, const std::wstring& folder = L".") {
    wchar_t path[MAX_PATH];
    GetFullPathNameW(wideText(QUORVANE_COMMAND).c_str(), MAX_PATH, path, nullptr);
    return Process(inQuotes(path) + L" " + arguments, folder).wait();
}

/// Runs the command with a standard output that nobody reads and the standard error of the test.
DWORD statusWithoutReader(const std::wstring& arguments) {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    HANDLE readEnd = nullptr;
    HANDLE writeEnd = nullptr;
    if (!CreatePipe(&readEnd, &writeEnd, &inherited, 0)) {
        return GetLastError();
    }
    CloseHandle(readEnd);
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = writeEnd;
    start.hStdError = GetStdHandle(STD_ERROR_HANDLE);
    std::wstring line = inQuotes(wideText(QUORVANE_COMMAND)) + L" " + arguments;
    PROCESS_INFORMATION process{};
    DWORD status = 0;
    if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start,
                       &process)) {
        WaitForSingleObject(process.hProcess, INFINITE);
        GetExitCodeProcess(process.hProcess, &status);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
    } else {
        status = GetLastError();
    }
    CloseHandle(writeEnd);
    return status;
}

/// The folders of the descriptions with the bytes that must come out of them.
std::vector<std::wstring> goldenCases() {
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW(testSource(L"..\\golden\\*").c_str(), &found);
    if (search != INVALID_HANDLE_VALUE) {
        do {
            const std::wstring name = found.cFileName;
            if (!bytesOfFile(testSource(L"..\\golden\\" + name + L"\\case.json")).empty()) {
                names.push_back(name);
            }
        } while (FindNextFileW(search, &found));
        FindClose(search);
    }
    std::sort(names.begin(), names.end());
    return names;
}

class GoldenCommand : public testing::TestWithParam<std::wstring> {};

TEST_P(GoldenCommand, GivesTheExpectedBytes) {
    const std::wstring folder = testSource(L"..\\golden\\" + GetParam());
    const std::wstring document = temporaryFile(L"golden.rtf");
    const bool isChecked =
        bytesOfFile(folder + L"\\case.json").find("\"checked\": true") != std::string::npos;
    const bool hasStyleSheet = !bytesOfFile(folder + L"\\style.rtfss").empty();
    const bool hasErrors = !bytesOfFile(folder + L"\\expected.events.jsonl").empty();

    const ProcessResult result = runCommand(
        L"render --keep-going -o " + inQuotes(document) + (isChecked ? L" --check" : L"") +
            (hasStyleSheet ? L" -s style.rtfss" : L"") + L" description.rtfspec",
        folder);

    // Where nothing could be built in spite of errors, nothing is written.
    const std::string expected = bytesOfFile(folder + L"\\expected.rtf");
    const bool hasRows = expected.find("\\trowd") != std::string::npos;
    EXPECT_EQ(bytesOfFile(document), hasErrors && !hasRows ? "" : expected);
    EXPECT_EQ(result.status, hasErrors ? 1U : 0U);
    EXPECT_EQ(result.errors.empty(), !hasErrors) << result.errors;
    DeleteFileW(document.c_str());
}

INSTANTIATE_TEST_SUITE_P(Cases, GoldenCommand, testing::ValuesIn(goldenCases()),
                         [](const testing::TestParamInfo<std::wstring>& tested) {
                             std::string name = utf8Text(tested.param);
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

TEST(Command, PrintsItsVersion) {
    const ProcessResult result = runCommand(L"--version");

    EXPECT_EQ(result.output.substr(0, 9), "quorvane ");
    EXPECT_EQ(result.status, 0U);
}

TEST(Command, ShowsItsLicensesWhole) {
    const ProcessResult result = runCommand(L"--licenses");

    EXPECT_EQ(result.output, bytesOfFile(testSource(L"..\\..\\LICENSE")) + "\n" +
                                 bytesOfFile(testSource(L"..\\..\\THIRD-PARTY-NOTICES")));
    EXPECT_EQ(result.status, 0U);
}

TEST(Command, TakesNamesInAnyScript) {
    const std::wstring description = temporaryFile(L"\u00DCbung \u0440\u0443.rtfspec");
    const std::wstring document = temporaryFile(L"\u65E5\u672C.rtf");
    writeFile(description, "(doc\r\n(r\r\n(c\r\nc)\r\nr)\r\ndoc)");

    const ProcessResult result =
        runCommand(L"render -o " + inQuotes(document) + L" " + inQuotes(description));

    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.status, 0U);
    EXPECT_EQ(bytesOfFile(document).substr(0, 6), "{\\rtf1");
    DeleteFileW(description.c_str());
    DeleteFileW(document.c_str());
}

/// Descriptions beside which their documents go; every third has an error.
class ManyDescriptions {
public:
    ManyDescriptions() {
        for (int i = 0; i < 12; ++i) {
            const std::wstring name = temporaryFile(L"many" + std::to_wstring(i));
            descriptions_.push_back(name + L".rtfspec");
            documents_.push_back(name + L".rtf");
            const std::string color = i % 3 == 0 ? "crimson" : "red";
            writeFile(descriptions_.back(),
                      "(doc\r\n(r\r\n(rb=" + color + ")\r\n(c\r\nc)\r\nr)\r\ndoc)");
        }
    }
    ManyDescriptions(const ManyDescriptions&) = delete;
    ManyDescriptions& operator=(const ManyDescriptions&) = delete;
    ~ManyDescriptions() {
        for (const std::wstring& description : descriptions_) {
            DeleteFileW(description.c_str());
        }
    }

    ProcessResult render(const std::wstring& option) const {
        std::wstring arguments = L"render " + option;
        for (const std::wstring& description : descriptions_) {
            arguments += L" " + inQuotes(description);
        }
        return runCommand(arguments);
    }

    /// The bytes of the documents, which it removes.
    std::vector<std::string> takeDocuments() const {
        std::vector<std::string> bytes;
        for (const std::wstring& document : documents_) {
            bytes.push_back(bytesOfFile(document));
            DeleteFileW(document.c_str());
        }
        return bytes;
    }

private:
    std::vector<std::wstring> descriptions_;
    std::vector<std::wstring> documents_;
};

TEST(Command, RendersSeveralDescriptionsAtATimeAsOneAfterTheOther) {
    const ManyDescriptions many;
    const ProcessResult inTurn = many.render(L"-j1");
    const std::vector<std::string> documents = many.takeDocuments();
    EXPECT_EQ(inTurn.status, 1U);
    EXPECT_EQ(documents[0], "");
    EXPECT_EQ(documents[1].substr(0, 6), "{\\rtf1");

    const ProcessResult sideBySide = many.render(L"-j4");

    EXPECT_EQ(sideBySide.status, 1U);
    EXPECT_EQ(sideBySide.errors, inTurn.errors);
    EXPECT_EQ(many.takeDocuments(), documents);
}

TEST(Command, FailsWhenAnotherProgramHoldsTheDocument) {
    const std::wstring description = temporaryFile(L"held.rtfspec");
    const std::wstring document = temporaryFile(L"held.rtf");
    writeFile(description, "(doc\r\n(r\r\n(c\r\nc)\r\nr)\r\ndoc)");
    writeFile(document, "as it was");
    const HANDLE held = CreateFileW(document.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);

    const ProcessResult result =
        runCommand(L"render -o " + inQuotes(document) + L" " + inQuotes(description));
    CloseHandle(held);

    EXPECT_NE(result.errors, "");
    EXPECT_EQ(result.status, 2U);
    EXPECT_EQ(bytesOfFile(document), "as it was");
    DeleteFileW(description.c_str());
    DeleteFileW(document.c_str());
}

TEST(Command, EndsQuietlyWhenNobodyReadsItsOutput) {
    EXPECT_EQ(statusWithoutReader(L"--help"), 0U);
    EXPECT_EQ(statusWithoutReader(L"check --explain wrong-color"), 0U);
}

TEST(Command, NeverWritesOverADescription) {
    const std::string bytes = "(doc\r\n(r\r\n(c\r\nc)\r\nr)\r\ndoc)";
    const std::wstring description = temporaryFile(L"over.rtfspec");
    const std::wstring other = temporaryFile(L"other.rtf");
    writeFile(description, bytes);
    writeFile(other, bytes);

    for (const std::wstring& output :
         {L"-o " + inQuotes(other), L"-o " + inQuotes(description), std::wstring(L"--output=")}) {
        const ProcessResult result = runCommand(L"render " + output + L" " + inQuotes(description));

        EXPECT_EQ(result.errors.substr(0, 10), "quorvane: ");
        EXPECT_EQ(result.status, 2U);
    }

    EXPECT_EQ(bytesOfFile(description), bytes);
    EXPECT_EQ(bytesOfFile(other), bytes);
    DeleteFileW(description.c_str());
    DeleteFileW(other.c_str());
}

TEST(Command, NamesAFileThatIsNotThereInTheWordsOfTheSystem) {
    for (const wchar_t* command : {L"render", L"check", L"format"}) {
        const ProcessResult result = runCommand(command + std::wstring(L" nosuch.rtfspec"));

        EXPECT_EQ(result.errors, "nosuch.rtfspec: No such file or directory\n");
        EXPECT_EQ(result.status, 2U);
    }
}

}  // namespace
}  // namespace quorvane::host
