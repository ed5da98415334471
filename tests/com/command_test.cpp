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

    EXPECT_EQ(bytesOfFile(document), bytesOfFile(folder + L"\\expected.rtf"));
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

TEST(Command, TellsItsVersion) {
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

}  // namespace
}  // namespace quorvane::host
