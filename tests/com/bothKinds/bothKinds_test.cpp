// The component for 32-bit programs and the one for 64-bit programs in one registry, as on 64-bit
// Windows. This program is a 64-bit one; the build for 32 bits must have been made before.

#include <gmock/gmock.h>
#include <windows.h>

#include <array>
#include <string>

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
    std::wstring regsvr32;
};

const Kind& kind64() {
    static const Kind kind{componentFile(), testProgram(L"registeredHost.exe"),
                           L"C:\\windows\\system32\\regsvr32.exe"};
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

/// Whom a registration is for, as options of the system's program.
const std::wstring forMachine;
const std::wstring forUser = L" /n /i:user";

void registerFor(const std::wstring& whom, const Kind& kind) {
    const ProcessResult result =
        Process(kind.regsvr32 + L" /s" + whom + L" \"" + kind.component + L"\"", L"C:\\").wait();
    EXPECT_EQ(result.status, 0U) << "registering " << utf8Text(kind.component);
}

void unregisterFor(const std::wstring& whom, const Kind& kind) {
    const ProcessResult result =
        Process(kind.regsvr32 + L" /s /u" + whom + L" \"" + kind.component + L"\"", L"C:\\").wait();
    EXPECT_EQ(result.status, 0U) << "unregistering " << utf8Text(kind.component);
}

/// All that a host of a kind does with the registered component works.
void expectToServe(const Kind& kind) {
    const ProcessResult result = Process(L"\"" + kind.host + L"\"", L"C:\\").wait();
    EXPECT_EQ(result.status, 0U) << utf8Text(kind.host) << "\n" << result.output << result.errors;
}

void expectSame(const ClassRegistry& actual, const ClassRegistry& expected) {
    EXPECT_THAT(added(expected.machine, actual.machine), IsEmpty());
    EXPECT_THAT(added(actual.machine, expected.machine), IsEmpty());
    EXPECT_THAT(added(expected.user, actual.user), IsEmpty());
    EXPECT_THAT(added(actual.user, expected.user), IsEmpty());
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
    void expectToStay(const Kind& stays, const Kind& goes, const std::wstring& whom) const {
        const ClassRegistry none = classRegistry();
        registerFor(whom, stays);
        const ClassRegistry alone = classRegistry();
        unregisterFor(whom, stays);
        expectSame(classRegistry(), none);
        for (const auto& order : {std::array{&stays, &goes}, std::array{&goes, &stays}}) {
            registerFor(whom, *order[0]);
            registerFor(whom, *order[1]);
            if (whom == forMachine) {
                expectToServe(stays);
                expectToServe(goes);
            }

            unregisterFor(whom, goes);

            expectSame(classRegistry(), alone);
            if (whom == forMachine) {
                expectToServe(stays);
            }
            unregisterFor(whom, stays);
            expectSame(classRegistry(), none);
        }
    }
};

TEST_F(BothKinds, The32BitOneStaysRegisteredWhenTheOtherGoes) {
    expectToStay(kind32(), kind64(), forMachine);
}

TEST_F(BothKinds, The64BitOneStaysRegisteredWhenTheOtherGoes) {
    expectToStay(kind64(), kind32(), forMachine);
}

// Wine does not activate classes of the user.

TEST_F(BothKinds, The32BitOneStaysRegisteredForTheUserWhenTheOtherGoes) {
    expectToStay(kind32(), kind64(), forUser);
}

TEST_F(BothKinds, The64BitOneStaysRegisteredForTheUserWhenTheOtherGoes) {
    expectToStay(kind64(), kind32(), forUser);
}

TEST_F(BothKinds, UnregisteringOneThatIsNotRegisteredLeavesTheOtherAlone) {
    registerFor(forMachine, kind64());
    const ClassRegistry registered = classRegistry();

    unregisterFor(forMachine, kind32());

    expectSame(classRegistry(), registered);
    expectToServe(kind64());
    unregisterFor(forMachine, kind64());
}

}  // namespace
}  // namespace quorvane::host
