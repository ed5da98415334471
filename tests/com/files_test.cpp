#include <gmock/gmock.h>
#include <windows.h>

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

#include "tests/com/host/ComPtr.h"
#include "tests/com/host/Component.h"
#include "tests/com/host/DebugOutput.h"
#include "tests/com/host/LateBound.h"
#include "tests/com/host/Outcome.h"
#include "tests/com/host/Process.h"
#include "tests/com/host/interfaces.h"
#include "tests/com/host/text.h"

namespace quorvane::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Files : public testing::Test {
protected:
    Component component_;
    LateBound document_{component_.create<IDispatch>(__uuidof(::CRtfDoc))};
    LateBound driver_{component_.create<IDispatch>(__uuidof(::CRtfDriver))};
};

/// A file that another program holds open for itself alone.
class HeldFile {
public:
    explicit HeldFile(const std::string& bytes) : path_(temporaryFile(L"held.rtf")) {
        writeFile(path_, bytes);
        const std::wstring eventName = L"held-" + std::to_wstring(GetCurrentProcessId());
        const HANDLE event = CreateEventW(nullptr, TRUE, FALSE, eventName.c_str());
        holder_ = std::make_unique<Process>(
            L"\"" + testProgram(L"fileHolder.exe") + L"\" \"" + path_ + L"\" " + eventName,
            L"C:\\");
        const DWORD waited = WaitForSingleObject(event, 30000);
        CloseHandle(event);
        if (waited != WAIT_OBJECT_0) {
            throw std::runtime_error("the file is not held");
        }
    }
    ~HeldFile() {
        releaseHolder();
        DeleteFileW(path_.c_str());
    }

    std::string path() const { return utf8Text(path_); }
    void releaseHolder() { holder_.reset(); }
    std::string bytes() {
        releaseHolder();
        return bytesOfFile(path_);
    }

private:
    std::wstring path_;
    std::unique_ptr<Process> holder_;
};

std::wstring clipboardText() {
    std::wstring text;
    if (OpenClipboard(nullptr)) {
        if (const HANDLE data = GetClipboardData(CF_UNICODETEXT)) {
            text = static_cast<const wchar_t*>(GlobalLock(data));
            GlobalUnlock(data);
        }
        CloseClipboard();
    }
    return text;
}

void emptyClipboard() {
    OpenClipboard(nullptr);
    EmptyClipboard();
    CloseClipboard();
}

/// The texts in a file's version resource.
class VersionInformation {
public:
    explicit VersionInformation(const std::wstring& file) {
        DWORD ignored = 0;
        bytes_.resize(GetFileVersionInfoSizeW(file.c_str(), &ignored));
        if (!GetFileVersionInfoW(file.c_str(), 0, static_cast<DWORD>(bytes_.size()),
                                 bytes_.data())) {
            throw std::runtime_error("no version resource in " + utf8Text(file));
        }
    }

    /// `std::nullopt` when there is no such text.
    std::optional<std::string> text(const std::wstring& name) const {
        void* found = nullptr;
        UINT length = 0;
        if (!VerQueryValueW(bytes_.data(), (L"\\StringFileInfo\\040904B0\\" + name).c_str(), &found,
                            &length)) {
            return std::nullopt;
        }
        return utf8Text(static_cast<const wchar_t*>(found));
    }

private:
    std::string bytes_;
};

TEST_F(Files, WhichAnotherProgramHoldsAreError75AndUntouched) {
    HeldFile file("as it was");
    const HostError expected = {
        runTimeError(75), "",
        "Error accessing " + file.path() +
            ". The file seems to be opened with exclusive rights by some other application (maybe "
            "MS Word) and Quorvane can't modify it.  Use a diferent file name or close it.",
        0};

    EXPECT_EQ(document_.call("Commit", {file.path()}).error, expected);
    EXPECT_EQ(driver_.call("Commit", {file.path()}).error, expected);
    EXPECT_EQ(
        outcomeOf(
            ComPtr<IDispatch>(document_.get()).as<_CRtfDoc>()->Commit(Bstr(file.path()).get()))
            .error,
        expected);

    EXPECT_EQ(file.bytes(), "as it was");
    EXPECT_TRUE(document_.call("Commit", {file.path()}).succeeded());
    EXPECT_EQ(file.bytes(), "{}");
}

TEST_F(Files, AreReplacedWhole) {
    const std::wstring file = temporaryFile(L"replaced.rtf");
    writeFile(file, std::string(1000, 'x'));

    EXPECT_TRUE(document_.call("Commit", {file}).succeeded());

    EXPECT_EQ(bytesOfFile(file), "{}");
}

TEST_F(Files, HaveNamesInAnyScript) {
    const std::wstring file =
        temporaryFile(L"\u00DCbung \u0440\u0443\u0441\u0441\u043A\u0438\u0439.rtf");

    EXPECT_TRUE(document_.call("Commit", {file}).succeeded());

    EXPECT_EQ(bytesOfFile(file), "{}");
}

TEST_F(Files, ThatCannotBeWrittenAreNotAnErrorForTheHost) {
    EXPECT_TRUE(document_.call("Commit", {"C:\\no such folder\\x.rtf"}).succeeded());
    EXPECT_TRUE(document_.call("Commit", {""}).succeeded());
}

TEST_F(Files, ThatCannotBeWrittenAreReportedInTheDebugOutput) {
    const DebugOutput output;

    document_.call("Commit", {"C:\\no such folder\\\xC3\xA9.rtf"});
    driver_.call("Commit", {"C:\\no such folder\\y.rtf"});
    driver_.object("RtfObject").call("Commit", {""});

    EXPECT_THAT(
        output.lines(),
        ElementsAre(
            "Quorvane: CRtfDoc.Commit: C:\\no such folder\\\xC3\xA9.rtf: Path not found (76)\n",
            "Quorvane: CRtfDriver.Commit: C:\\no such folder\\y.rtf: Path not found (76)\n",
            "Quorvane: CRtfDoc.Commit: (empty path): Path not found (76)\n"));
}

TEST_F(Files, WhoseErrorTheHostGetsAreNotInTheDebugOutput) {
    HeldFile file("as it was");
    const DebugOutput output;

    document_.call("Commit", {file.path()});

    EXPECT_THAT(output.lines(), IsEmpty());
}

TEST_F(Files, ThatAreWrittenAreNotInTheDebugOutput) {
    const DebugOutput output;

    document_.call("Commit", {temporaryFile(L"written.rtf")});

    EXPECT_THAT(output.lines(), IsEmpty());
}

TEST_F(Files, AreNamedInNoReportOfAnotherAbsorbedError) {
    document_.call("Commit", {temporaryFile(L"written.rtf")});
    document_.object("TableRows").call("AddTail");
    const LateBound cells = document_.object("TableRows").object("Item", {1}).object("TableCells");
    cells.call("AddTail");
    const DebugOutput output;

    cells.object("Item", {1}).call("asMarkedField", {1.5});

    EXPECT_THAT(output.lines(),
                ElementsAre("Quorvane: CRtfTableCell.asMarkedField: A Marked Text Field Data can "
                            "only be String or Long (-2147219990)\n"));
}

TEST_F(Files, OfDescriptionsAreReadInWindows1252) {
    const std::wstring file = temporaryFile(L"description.rtfspec");
    writeFile(file, "(doc\r\n(r\r\n(c\r\n(p\r\n(pt=\x80 \xC9\x81)\r\np)\r\nc)\r\nr)\r\ndoc)");

    EXPECT_TRUE(driver_.call("ParseFile", {file}).succeeded());

    const LateBound row = driver_.object("RtfObject").object("TableRows").object("Item", {1});
    const LateBound cell = row.object("TableCells").object("Item", {1});
    EXPECT_EQ(cell.object("Paragraphs").object("Item", {1}).get("Text").value.wide(),
              L"\x20AC \xC9\x81");
}

TEST_F(Files, OfStylesheetsAreReadOnce) {
    const std::wstring file = temporaryFile(L"styles.rtfss");
    writeFile(file, "{name: head; style-def: cell; format: navy-blue}");

    EXPECT_TRUE(driver_.set("StyleSheetFile", {file}).succeeded());

    const LateBound document = driver_.object("RtfObject");
    EXPECT_TRUE(document.get("StyleSheetOk").value.truth());
    EXPECT_EQ(document.call("getCellStyleBackColor", {"head"}).value.number(), 24);
}

TEST_F(Files, ThatAreRejectedAreOnTheClipboard) {
    const std::string rejected = "(row\r\nr\xC3\xA9jet\xC3\xA9\r\nrow)";
    emptyClipboard();

    EXPECT_TRUE(driver_.call("ParseFromMemmory", {rejected}).succeeded());

    EXPECT_EQ(clipboardText(), wideText(rejected));
}

TEST_F(Files, ThatAreAcceptedLeaveTheClipboardAlone) {
    emptyClipboard();

    EXPECT_TRUE(driver_.call("ParseFromMemmory", {"(doc\n(r\n(c\nc)\nr)\ndoc)"}).succeeded());

    EXPECT_EQ(clipboardText(), L"");
}

TEST(ComponentFile, HasATitleForMessages) {
    wchar_t title[32] = L"";
    const Component component;

    EXPECT_GT(LoadStringW(component.module(), 8700, title, 32), 0);
    EXPECT_STREQ(title, L"Quorvane");
}

TEST(ComponentFile, DescribesItself) {
    const VersionInformation information(componentFile());

    EXPECT_EQ(information.text(L"CompanyName"), "the Quorvane authors");
    EXPECT_EQ(information.text(L"FileDescription"), "Quorvane component for RTF documents");
    EXPECT_EQ(information.text(L"InternalName"), "quorvane");
    EXPECT_EQ(information.text(L"LegalCopyright"), "Copyright \xC2\xA9 the Quorvane authors");
    EXPECT_EQ(information.text(L"OriginalFilename"), "quorvane.dll");
    EXPECT_EQ(information.text(L"ProductName"), "Quorvane");
    EXPECT_EQ(information.text(L"FileVersion"), QUORVANE_VERSION);
    EXPECT_EQ(information.text(L"ProductVersion"), QUORVANE_VERSION);
}

TEST(ComponentFile, DeclaresThatItCanRegisterItself) {
    EXPECT_EQ(VersionInformation(componentFile()).text(L"OLESelfRegister"), "");
}

}  // namespace
}  // namespace quorvane::host
