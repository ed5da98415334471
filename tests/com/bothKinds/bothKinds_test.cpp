// The component for 32-bit programs and the one for 64-bit programs in one registry, as on 64-bit
// Windows. This program is a 64-bit one; the build for 32 bits must have been made before.

#include <gmock/gmock.h>
#include <windows.h>

#include <array>
#include <set>
#include <string>
#include <vector>

#include "tests/com/host/Component.h"
#include "tests/com/host/Process.h"
#include "tests/com/host/registry.h"
#include "tests/com/host/text.h"

namespace quorvane::host {
namespace {

using testing::IsEmpty;

/// The component of one kind and the programs that it is for.
struct Kind {
    std::wstring component;
    std::wstring host;
    /// The system's program that registers components of this kind; empty for this program's own.
    std::wstring regsvr32;
};

const Kind& kind64() {
    static const Kind kind{componentFile(), testProgram(L"registeredHost.exe"), {}};
    return kind;
}

std::wstring buildFor32Bits(const std::wstring& file) {
    std::wstring path = wideText(QUORVANE_BUILD_FOR_32_BITS) + L"/" + file;
    for (wchar_t& letter : path) {
        letter = letter == L'/' ? L'\\' : letter;
    }
    return L"Z:" + path;
}

const Kind& kind32() {
    static const Kind kind{buildFor32Bits(L"quorvane.dll"),
                           buildFor32Bits(L"tests/com/registeredHost.exe"),
                           L"C:\\windows\\syswow64\\regsvr32.exe"};
    return kind;
}

/// Calls the component's function, or lets the system's program of its kind do so.
void call(const Kind& kind, const char* function, const std::wstring& option) {
    if (&kind == &kind64()) {
        EXPECT_EQ(Component(kind.component).call(function), S_OK) << function;
        return;
    }
    const ProcessResult result =
        Process(kind.regsvr32 + L" /s" + option + L" \"" + kind.component + L"\"", L"C:\\").wait();
    EXPECT_EQ(result.status, 0U) << function;
}

void registerKind(const Kind& kind) {
    call(kind, "DllRegisterServer", L"");
}

void unregisterKind(const Kind& kind) {
    call(kind, "DllUnregisterServer", L" /u");
}

/// All that a host of a kind does with the registered component works.
void expectToServe(const Kind& kind) {
    const ProcessResult result = Process(L"\"" + kind.host + L"\"", L"C:\\").wait();
    EXPECT_EQ(result.status, 0U) << utf8Text(kind.host) << "\n" << result.output << result.errors;
}

using Entries = std::set<std::string>;

/// All that the registry holds of the component, for programs of both kinds.
Entries entries() {
    std::vector<std::wstring> keys = {L"TypeLib\\{1811CD00-270D-4B00-A52C-4047F643EAB9}",
                                      L"CLSID\\{1811CD11-270D-4B00-A52C-4047F643EAB9}",
                                      L"CLSID\\{1811CD18-270D-4B00-A52C-4047F643EAB9}",
                                      L"CLSID\\{3BE06E29-68C4-4DD1-B641-A56A2DEDA596}",
                                      L"Interface\\{5A5A9899-D878-4057-806D-F9142DE3F21D}",
                                      L"Quorvane.Document",
                                      L"Quorvane.Document.1",
                                      L"Quorvane.CRtfDoc",
                                      L"Quorvane.CRtfDoc.1",
                                      L"Quorvane.CRtfDriver",
                                      L"Quorvane.CRtfDriver.1"};
    for (const wchar_t digit : std::wstring(L"123456789")) {
        keys.push_back(std::wstring(L"Interface\\{1811CD0") + digit +
                       L"-270D-4B00-A52C-4047F643EAB9}");
    }
    Entries all;
    for (const std::wstring& key : keys) {
        all.merge(registryExport(HKEY_LOCAL_MACHINE, L"Software\\Classes\\" + key));
        all.merge(registryExport(HKEY_LOCAL_MACHINE, L"Software\\Classes\\Wow6432Node\\" + key));
    }
    return all;
}

void expectSame(const Entries& actual, const Entries& expected) {
    EXPECT_THAT(added(expected, actual), IsEmpty());
    EXPECT_THAT(added(actual, expected), IsEmpty());
}

class BothKinds : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_NE(GetFileAttributesW(kind32().host.c_str()), INVALID_FILE_ATTRIBUTES)
            << "Build the preset win32 with QUORVANE_BUILD_TESTS=ON first: "
            << utf8Text(kind32().host) << " is not there.";
    }

    /// Both are registered, in either order, and one goes: the other finds the registry as if it
    /// had been there alone.
    void expectToStay(const Kind& stays, const Kind& goes) const {
        const Entries none;
        registerKind(stays);
        const Entries alone = entries();
        unregisterKind(stays);
        expectSame(entries(), none);
        for (const auto& order : {std::array{&stays, &goes}, std::array{&goes, &stays}}) {
            registerKind(*order[0]);
            registerKind(*order[1]);
            unregisterKind(goes);

            expectSame(entries(), alone);
            expectToServe(stays);
            unregisterKind(stays);
            expectSame(entries(), none);
        }
    }
};

TEST_F(BothKinds, The32BitOneStaysRegisteredWhenTheOtherGoes) {
    expectToStay(kind32(), kind64());
}

TEST_F(BothKinds, The64BitOneStaysRegisteredWhenTheOtherGoes) {
    expectToStay(kind64(), kind32());
}

TEST_F(BothKinds, ServeSideBySide) {
    registerKind(kind32());
    registerKind(kind64());

    expectToServe(kind32());
    expectToServe(kind64());

    unregisterKind(kind32());
    unregisterKind(kind64());
}

TEST_F(BothKinds, UnregisteringOneThatIsNotRegisteredLeavesTheOtherAlone) {
    registerKind(kind64());
    const Entries registered = entries();

    unregisterKind(kind32());

    expectSame(entries(), registered);
    expectToServe(kind64());
    unregisterKind(kind64());
}

}  // namespace
}  // namespace quorvane::host
