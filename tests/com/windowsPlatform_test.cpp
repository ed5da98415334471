#include <gtest/gtest.h>
#include <windows.h>

#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "quorvane/base/platform/Platform.h"
#include "quorvane/base/platform/windowsStringCollection.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/support/CStringList.h"
#include "quorvane/support/GError.h"
#include "quorvane/support/currentError.h"
#include "tests/com/host/Component.h"
#include "tests/com/host/Process.h"
#include "tests/com/host/text.h"
#include "tests/support/errorNumberOf.h"

namespace quorvane::host {
namespace {

std::string programPath() {
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return utf8Text(path);
}

/// Waits for a dialogue of that title, returns its text and its buttons, and closes it with OK.
class DialogWatcher {
public:
    explicit DialogWatcher(const wchar_t* title) : thread_([this, title] { watch(title); }) {}
    ~DialogWatcher() { finish(); }

    void finish() {
        if (thread_.joinable()) {
            thread_.join();
        }
    }

    bool found = false;
    std::string text;
    bool hasOk = false;
    bool hasCancel = false;
    bool hasIcon = false;

private:
    static constexpr int iconItem = 1088;
    static constexpr int textItem = 0xFFFF;

    void watch(const wchar_t* title) {
        constexpr int attempts = 1200;
        for (int i = 0; i < attempts && !found; ++i) {
            Sleep(50);
            const HWND dialogue = FindWindowW(L"#32770", title);
            // Before it is shown, its texts need not be there.
            if (dialogue && IsWindowVisible(dialogue)) {
                read(dialogue);
                PostMessageW(dialogue, WM_COMMAND, IDOK, 0);
                found = true;
            }
        }
    }
    void read(HWND dialogue) {
        wchar_t content[1024] = L"";
        GetDlgItemTextW(dialogue, textItem, content, 1024);
        text = utf8Text(content);
        hasOk = GetDlgItem(dialogue, IDOK) != nullptr || GetDlgItem(dialogue, IDCANCEL) != nullptr;
        hasCancel =
            GetDlgItem(dialogue, IDOK) != nullptr && GetDlgItem(dialogue, IDCANCEL) != nullptr;
        hasIcon = GetDlgItem(dialogue, iconItem) != nullptr;
    }

    std::thread thread_;
};

const RtfError cannotCreate(RunTimeError::CannotCreateObject);

TEST(ErrorsOfTheLibrary, ShowABoxWhenAnObjectCannotBeCreated) {
    DialogWatcher watcher(L"Quorvane");
    GError errors(systemPlatform());

    errors.handleError(cannotCreate, "CRtfDoc.cls", "Commit");

    watcher.finish();
    EXPECT_TRUE(watcher.found);
    EXPECT_EQ(watcher.text,
              "Number: 429\r\nDescription: ActiveX component can't create object\r\n"
              "Module: CRtfDoc.cls\r\nFuntion: Commit\r\nSource: ");
    EXPECT_TRUE(watcher.hasOk);
    EXPECT_FALSE(watcher.hasCancel);
    EXPECT_TRUE(watcher.hasIcon);
}

TEST(ErrorsOfTheLibrary, ShowTheBoxAlsoWhenTheErrorCollectionIsNotThere) {
    DialogWatcher watcher(L"Quorvane");
    GError errors(systemPlatform());
    errors.setReporterSwitch(true);

    errors.handleError(cannotCreate, "CRtfDoc.cls", "Commit");

    watcher.finish();
    EXPECT_TRUE(watcher.found);
}

TEST(ErrorsOfTheLibrary, ShowNothingElse) {
    GError errors(systemPlatform());

    errors.handleError(RtfError(RunTimeError::PathNotFound), "GFileSystem.bas", "saveStringToFile");

    EXPECT_EQ(FindWindowW(L"#32770", nullptr), nullptr);
}

/// The error collection is registered, and writes what it receives into a file.
class ErrorCollectionTest : public testing::Test {
protected:
    void SetUp() override {
        SetEnvironmentVariableW(L"QUORVANE_ERROR_COLLECTION", file_.c_str());
        ASSERT_EQ(components_.call("DllRegisterServer"), S_OK);
    }
    void TearDown() override {
        EXPECT_EQ(components_.call("DllUnregisterServer"), S_OK);
        DeleteFileW(file_.c_str());
    }

    std::wstring file_ = temporaryFile(L"collection.txt");
    Component components_{testProgram(L"testComponents.dll")};
};

std::string programId() {
    const std::string path = programPath();
    const ProgramVersion version = systemPlatform().programVersion();
    return path + std::to_string(version.major) + "-" + std::to_string(version.minor) + "-" +
           std::to_string(version.revision);
}

std::string versionText() {
    const ProgramVersion version = systemPlatform().programVersion();
    return std::to_string(version.major) + "." + std::to_string(version.minor) + "." +
           std::to_string(version.revision);
}

TEST_F(ErrorCollectionTest, IsToldOfErrorsWhenTheSwitchIsOn) {
    GError errors(systemPlatform());
    errors.setReporterSwitch(true);
    RtfError error(RunTimeError::PathNotFound);
    error.source = "somewhere";

    errors.handleError(error, "GFileSystem.bas", "saveStringToFile");

    EXPECT_EQ(bytesOfFile(file_),
              "Create [BSTR Quorvane] [by reference BSTR " + programId() +
                  "]\n"
                  "sendError [I4 76] [BSTR Path not found] [BSTR GFileSystem.bas] [BSTR "
                  "saveStringToFile] [BSTR " +
                  versionText() + "] [BSTR somewhere] [by reference Nothing]\n");
}

TEST_F(ErrorCollectionTest, GetsFurtherInformation) {
    GError errors(systemPlatform());
    errors.setReporterSwitch(true);

    CStringList extra;
    extra.AddTail("more");
    extra.AddTail("Caf\xC3\xA9", "key");
    errors.handleError(RtfError(5, "Caf\xC3\xA9", "s"), "m", "p",
                       std::make_shared<const CStringList>(extra));

    const std::string written = bytesOfFile(file_);
    EXPECT_NE(written.find("sendError [I4 5] [BSTR Caf\xC3\xA9] [BSTR m] [BSTR p] "),
              std::string::npos);
    EXPECT_TRUE(written.ends_with("[BSTR s] [by reference Object]\n"));
}

TEST(FurtherInformation, IsAnAutomationCollectionForTheErrorCollection) {
    CStringList list;
    list.AddTail("more");
    list.AddTail("Caf\xC3\xA9", "key");
    IDispatch* collection = makeWindowsStringCollection(std::make_shared<const CStringList>(list));
    const auto itemAt = [&](VARIANT index) {
        VARIANT item;
        VariantInit(&item);
        DISPPARAMS arguments{&index, nullptr, 1, 0};
        const HRESULT result =
            collection->Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET,
                               &arguments, &item, nullptr, nullptr);
        const std::string text = result == S_OK ? utf8Text(V_BSTR(&item)) : "no element";
        VariantClear(&item);
        return text;
    };
    VARIANT index;
    VariantInit(&index);
    V_VT(&index) = VT_I4;
    V_I4(&index) = 2;
    EXPECT_EQ(itemAt(index), "Caf\xC3\xA9");
    V_I4(&index) = 3;
    EXPECT_EQ(itemAt(index), "no element");
    V_VT(&index) = VT_BSTR;
    V_BSTR(&index) = SysAllocString(L"KEY");
    EXPECT_EQ(itemAt(index), "Caf\xC3\xA9");
    VariantClear(&index);
    EXPECT_EQ(collection->Release(), 0U);
}

TEST_F(ErrorCollectionTest, IsNotToldWhenTheSwitchIsOff) {
    GError errors(systemPlatform());

    errors.handleError(RtfError(RunTimeError::PathNotFound), "GFileSystem.bas", "saveStringToFile");

    EXPECT_EQ(bytesOfFile(file_), "");
}

TEST_F(ErrorCollectionTest, TakesError429InPlaceOfTheBox) {
    GError errors(systemPlatform());
    errors.setReporterSwitch(true);

    errors.handleError(cannotCreate, "CRtfDoc.cls", "Commit");

    EXPECT_NE(bytesOfFile(file_).find("sendError [I4 429]"), std::string::npos);
}

TEST(ErrorCollectionOfWindows, IsError429WhenItIsNotRegistered) {
    EXPECT_EQ(errorNumberOf([] { systemPlatform().createReporter("Vantrel.CVantrel"); }), 429);
}

/// Files in a folder of their own.
class WindowsFiles : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(CreateDirectoryW(folder_.c_str(), nullptr)); }

    std::string path(const std::string& name) const { return utf8Text(folder_) + "\\" + name; }

    std::wstring folder_ = temporaryFile(L"folder");
    Platform& platform_ = systemPlatform();
};

TEST_F(WindowsFiles, AreFoundByNameAndByPattern) {
    writeFile(wideText(path("a.rtf")), "x");

    EXPECT_TRUE(platform_.fileExists(path("a.rtf")));
    EXPECT_TRUE(platform_.fileExists(path("A.RTF")));
    EXPECT_TRUE(platform_.fileExists(path("*.rtf")));
    EXPECT_TRUE(platform_.fileExists(path("?.rtf")));
    EXPECT_TRUE(platform_.fileExists(utf8Text(folder_)));
    EXPECT_FALSE(platform_.fileExists(path("b.rtf")));
    EXPECT_FALSE(platform_.fileExists(path("*.txt")));
    EXPECT_FALSE(platform_.fileExists(path("no folder\\a.rtf")));
    EXPECT_FALSE(platform_.fileExists(""));
    EXPECT_FALSE(platform_.fileExists(path(std::string("a.rtf\0x", 7))));
}

TEST_F(WindowsFiles, AreReadWhole) {
    const std::string bytes("a\0b\r\n\xFF", 6);
    writeFile(wideText(path("a")), bytes);
    writeFile(wideText(path("empty")), "");
    writeFile(wideText(path("large")), std::string(300000, 'x'));

    EXPECT_EQ(platform_.readFile(path("a")), bytes);
    EXPECT_EQ(platform_.readFile(path("empty")), "");
    EXPECT_EQ(platform_.readFile(path("large")), std::string(300000, 'x'));
}

TEST_F(WindowsFiles, ThatCannotBeReadAreErrors) {
    EXPECT_EQ(errorNumberOf([&] { platform_.readFile(path("no file")); }), 53);
    EXPECT_EQ(errorNumberOf([&] { platform_.readFile(path("no folder\\a")); }), 76);
    EXPECT_EQ(errorNumberOf([&] { platform_.readFile(utf8Text(folder_)); }), 75);
    EXPECT_EQ(errorNumberOf([&] { platform_.readFile("NUL"); }), 75);
}

TEST_F(WindowsFiles, AreDeleted) {
    writeFile(wideText(path("a")), "x");

    platform_.deleteFile(path("a"));

    EXPECT_FALSE(platform_.fileExists(path("a")));
    EXPECT_EQ(errorNumberOf([&] { platform_.deleteFile(path("a")); }), 53);
    EXPECT_EQ(errorNumberOf([&] { platform_.deleteFile(path("no folder\\a")); }), 76);
    EXPECT_EQ(errorNumberOf([&] { platform_.deleteFile(utf8Text(folder_)); }), 75);
}

TEST_F(WindowsFiles, ThatMayOnlyBeReadAreNotDeleted) {
    writeFile(wideText(path("a")), "x");
    SetFileAttributesW(wideText(path("a")).c_str(), FILE_ATTRIBUTE_READONLY);

    EXPECT_EQ(errorNumberOf([&] { platform_.deleteFile(path("a")); }), 75);

    SetFileAttributesW(wideText(path("a")).c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(WindowsFiles, AreWrittenFromTheirFirstByteAndNotShortened) {
    writeFile(wideText(path("a")), "0123456789");

    const auto file = platform_.createFile(path("a"));
    file->write("ab");
    file->write("c");
    file->close();

    EXPECT_EQ(platform_.readFile(path("a")), "abc3456789");
}

TEST_F(WindowsFiles, ThatAreNewAndLetGoOfBeforeTheirEndGo) {
    writeFile(wideText(path("a")), "0123456789");

    platform_.createFile(path("new"))->write("ab");
    platform_.createFile(path("a"))->write("ab");

    EXPECT_FALSE(platform_.fileExists(path("new")));
    EXPECT_EQ(platform_.readFile(path("a")), "ab23456789");
}

TEST_F(WindowsFiles, ThatCannotBeWrittenAreErrors) {
    EXPECT_EQ(errorNumberOf([&] { platform_.createFile(path("no folder\\a")); }), 76);
    EXPECT_EQ(errorNumberOf([&] { platform_.createFile(utf8Text(folder_)); }), 75);
    const auto held = platform_.createFile(path("a"));
    EXPECT_EQ(errorNumberOf([&] { platform_.createFile(path("a")); }), 75);
    EXPECT_EQ(errorNumberOf([&] { platform_.deleteFile(path("a")); }), 75);
}

TEST(WindowsProgram, TellsWhoItIs) {
    const std::string path = programPath();
    const std::size_t separator = path.rfind('\\');

    EXPECT_EQ(systemPlatform().programFolder(), path.substr(0, separator));
    EXPECT_EQ(systemPlatform().programFileName(), path.substr(separator + 1));
    EXPECT_EQ(systemPlatform().resourceString(8700), "Quorvane");
    EXPECT_EQ(systemPlatform().resourceString(8701), std::nullopt);
}

}  // namespace
}  // namespace quorvane::host
