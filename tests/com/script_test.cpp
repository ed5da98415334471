#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/com/host/Component.h"
#include "tests/com/host/Process.h"
#include "tests/com/host/text.h"

namespace quorvane::host {
namespace {

/// The component is registered while the scripts run.
class Registration : public testing::Environment {
public:
    void SetUp() override {
        ASSERT_EQ(component_.call("DllRegisterServer"), S_OK);
        ASSERT_EQ(testComponents_.call("DllRegisterServer"), S_OK);
    }
    void TearDown() override {
        EXPECT_EQ(testComponents_.call("DllUnregisterServer"), S_OK);
        EXPECT_EQ(component_.call("DllUnregisterServer"), S_OK);
    }

private:
    Component component_;
    Component testComponents_{testProgram(L"testComponents.dll")};
};

const testing::Environment* const registration =
    testing::AddGlobalTestEnvironment(new Registration);

/// A host that runs a script file with arguments.
struct ScriptRunner {
    std::string name;
    std::wstring commandLine;
};

std::vector<ScriptRunner> scriptRunners() {
    return {{"scriptHost", L"\"" + testProgram(L"scriptHost.exe") + L"\""},
            {"cscript", L"cscript.exe /nologo"}};
}

struct ScriptCase {
    std::wstring folder;
    std::wstring file;
    ScriptRunner runner;
};

std::vector<std::wstring> filesOf(const std::wstring& pattern) {
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW(pattern.c_str(), &found);
    if (search != INVALID_HANDLE_VALUE) {
        do {
            if (found.cFileName[0] != L'.') {
                names.emplace_back(found.cFileName);
            }
        } while (FindNextFileW(search, &found));
        FindClose(search);
    }
    std::sort(names.begin(), names.end());
    return names;
}

// Every script in every host, but for those that need what only ours has.
std::vector<ScriptCase> scriptCases() {
    std::vector<ScriptCase> cases;
    for (const std::wstring& folder : filesOf(testSource(L"scripts") + L"\\*")) {
        for (const std::wstring& file :
             filesOf(testSource(L"scripts\\" + folder) + L"\\script.*")) {
            for (const ScriptRunner& runner : scriptRunners()) {
                if (runner.name != "cscript" || !folder.starts_with(L"connected-")) {
                    cases.push_back({folder, file, runner});
                }
            }
        }
    }
    return cases;
}

// What a script echoes ends with CR LF or LF, as its host has it.
std::string withPlainLineEnds(std::string text) {
    std::erase(text, '\r');
    return text;
}

class Script : public testing::TestWithParam<ScriptCase> {};

TEST_P(Script, WritesTheExpectedTranscriptAndDocument) {
    const ScriptCase& tested = GetParam();
    const std::wstring folder = testSource(L"scripts\\" + tested.folder);
    const std::wstring document = temporaryFile(L"script.rtf");

    const ProcessResult result =
        Process(tested.runner.commandLine + L" \"" + folder + L"\\" + tested.file + L"\" \"" +
                    document + L"\" \"" + folder + L"\"",
                folder)
            .wait();

    EXPECT_EQ(withPlainLineEnds(result.output),
              withPlainLineEnds(bytesOfFile(folder + L"\\expected.transcript")));
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.status, 0U);
    EXPECT_EQ(bytesOfFile(document), bytesOfFile(folder + L"\\expected.rtf"));
    DeleteFileW(document.c_str());
}

INSTANTIATE_TEST_SUITE_P(Scripts, Script, testing::ValuesIn(scriptCases()),
                         [](const testing::TestParamInfo<ScriptCase>& tested) {
                             std::string name = utf8Text(tested.param.folder) + "_" +
                                                utf8Text(tested.param.file) + "_" +
                                                tested.param.runner.name;
                             std::replace_if(
                                 name.begin(), name.end(),
                                 [](char character) { return !std::isalnum(character); }, '_');
                             return name;
                         });

}  // namespace
}  // namespace quorvane::host
