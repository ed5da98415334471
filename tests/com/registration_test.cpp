#include <gmock/gmock.h>
#include <olectl.h>
#include <windows.h>

#include <algorithm>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/com/host/ComPtr.h"
#include "tests/com/host/Component.h"
#include "tests/com/host/LateBound.h"
#include "tests/com/host/Process.h"
#include "tests/com/host/imports.h"
#include "tests/com/host/interfaces.h"
#include "tests/com/host/registry.h"
#include "tests/com/host/text.h"

namespace quorvane::host {
namespace {

using testing::IsEmpty;

std::set<std::string> linesOf(const std::string& text) {
    std::set<std::string> lines;
    std::size_t begin = 0;
    while (begin < text.size()) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        lines.insert(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return lines;
}

std::string replaced(std::string text, const std::string& what, const std::string& with) {
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += with.size()) {
        text.replace(at, what.size(), with);
    }
    return text;
}

constexpr bool is64Bit = sizeof(void*) == 8;
const std::string classes = "Software\\Classes\\";
const std::string classesFor32Bits = classes + "Wow6432Node\\";

/// What a registration of that file adds to the classes; as `registration.txt` lists it. On 64-bit
/// systems 32-bit programs find interfaces and type libraries too.
std::set<std::string> agreedEntries(const std::wstring& file) {
    const std::wstring folder = file.substr(0, file.rfind(L'\\'));
    std::string text = bytesOfFile(testSource(L"registration.txt"));
    text = replaced(text, "<classes>\\", classes);
    text = replaced(text, "<component>", utf8Text(file));
    text = replaced(text, "<folder>", utf8Text(folder));
    text = replaced(text, "<system>", is64Bit ? "win64" : "win32");
    std::set<std::string> entries = linesOf(text);
    for (const std::string& entry : linesOf(text)) {
        const bool isForAll =
            entry.starts_with(classes + "Interface\\") || entry.starts_with(classes + "TypeLib\\");
        if (is64Bit && isForAll) {
            entries.insert(classesFor32Bits + entry.substr(classes.size()));
        }
    }
    return entries;
}

/// Entries but for the interfaces for 32-bit programs, which Wine registers for the machine when
/// they are to be registered for the user.
std::set<std::string> withoutInterfacesFor32Bits(std::set<std::string> entries) {
    const std::set<std::string> ours = agreedEntries(componentFile());
    std::erase_if(entries, [&ours](const std::string& entry) {
        return entry.starts_with(classesFor32Bits + "Interface\\") && ours.contains(entry);
    });
    return entries;
}

/// What a registration of the component for the user adds to the user's classes.
std::set<std::string> agreedEntriesOfUser() {
    std::set<std::string> entries = agreedEntries(componentFile());
    std::erase_if(entries,
                  [](const std::string& entry) { return entry.starts_with(classesFor32Bits); });
    return entries;
}

/// The identifier of a class, by its name.
HRESULT classOf(const wchar_t* programId, CLSID& id) {
    return CLSIDFromProgID(programId, &id);
}

/// The name of a class, by its identifier.
std::string nameOf(REFCLSID id) {
    LPOLESTR name = nullptr;
    if (FAILED(ProgIDFromCLSID(id, &name))) {
        return "none";
    }
    const std::string text = utf8Text(name);
    CoTaskMemFree(name);
    return text;
}

HRESULT createByName(const wchar_t* programId, ComPtr<IDispatch>& object) {
    CLSID id;
    const HRESULT outcome = classOf(programId, id);
    return FAILED(outcome) ? outcome
                           : CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                                              object.outVoid());
}

using Install = HRESULT(STDAPICALLTYPE*)(BOOL install, const wchar_t* commandLine);

HRESULT install(const Component& component, bool on, const wchar_t* commandLine) {
    const FARPROC function = GetProcAddress(component.module(), "DllInstall");
    if (!function) {
        throw std::runtime_error("the component does not export DllInstall");
    }
    return reinterpret_cast<Install>(reinterpret_cast<void*>(function))(on, commandLine);
}

/// A registry in which the component is not registered before and after.
class Registration : public testing::Test {
protected:
    void SetUp() override { before(); }
    void TearDown() override { expectAsBefore(); }

    /// What the registration of the file has added for the machine is what was agreed.
    static void expectAgreedEntries(const std::wstring& file,
                                    const ClassRegistry& after = classRegistry()) {
        const std::vector<std::string> entries = added(before().machine, after.machine);
        expectSame({entries.begin(), entries.end()}, agreedEntries(file));
    }
    static void expectSame(const std::set<std::string>& actual,
                           const std::set<std::string>& expected) {
        EXPECT_THAT(added(expected, actual), IsEmpty());
        EXPECT_THAT(added(actual, expected), IsEmpty());
    }
    void expectAsBefore() const {
        const ClassRegistry after = classRegistry();
        expectSame(after.machine, before().machine);
        expectSame(after.user, before().user);
    }

    /// The registry before the first test, to which every test must come back.
    static const ClassRegistry& before() {
        static const ClassRegistry registry = classRegistry();
        return registry;
    }

    Component component_;
};

TEST_F(Registration, ForTheMachineWritesWhatWasAgreed) {
    EXPECT_EQ(component_.call("DllRegisterServer"), S_OK);

    const ClassRegistry after = classRegistry();
    expectAgreedEntries(componentFile(), after);
    EXPECT_THAT(added(after.machine, before().machine), IsEmpty());
    EXPECT_TRUE(after.user == before().user);

    EXPECT_EQ(component_.call("DllUnregisterServer"), S_OK);
}

TEST_F(Registration, CanBeRepeated) {
    EXPECT_EQ(component_.call("DllRegisterServer"), S_OK);
    const ClassRegistry once = classRegistry();
    EXPECT_EQ(component_.call("DllRegisterServer"), S_OK);
    EXPECT_TRUE(classRegistry() == once);
    EXPECT_EQ(component_.call("DllUnregisterServer"), S_OK);
    EXPECT_EQ(component_.call("DllUnregisterServer"), S_OK);
}

TEST_F(Registration, ForTheUserWritesTheSameInTheUsersPart) {
    EXPECT_EQ(install(component_, true, L"user"), S_OK);

    const ClassRegistry after = classRegistry();
    const std::vector<std::string> entries = added(before().user, after.user);
    EXPECT_THAT(added({entries.begin(), entries.end()}, agreedEntriesOfUser()), IsEmpty());
    EXPECT_THAT(added(after.user, before().user), IsEmpty());
    EXPECT_TRUE(withoutInterfacesFor32Bits(after.machine) == before().machine);

    EXPECT_EQ(install(component_, false, L"user"), S_OK);
}

TEST_F(Registration, ForAnybodyElseIsForTheMachine) {
    EXPECT_EQ(install(component_, true, L""), S_OK);
    expectAgreedEntries(componentFile());
    EXPECT_EQ(install(component_, false, nullptr), S_OK);
}

TEST_F(Registration, LeavesTheRegistryOfTheProcessAsItWas) {
    EXPECT_EQ(install(component_, true, L"user"), S_OK);
    EXPECT_EQ(install(component_, false, L"user"), S_OK);

    HKEY key = nullptr;
    EXPECT_EQ(RegOpenKeyExW(HKEY_CLASSES_ROOT, L"CLSID", 0, KEY_READ, &key), ERROR_SUCCESS);
    RegCloseKey(key);
}

TEST_F(Registration, ForTheMachineLeavesTheUsersAlone) {
    EXPECT_EQ(install(component_, true, L"user"), S_OK);
    const ClassRegistry forUser = classRegistry();

    EXPECT_EQ(component_.call("DllRegisterServer"), S_OK);
    EXPECT_TRUE(classRegistry().user == forUser.user);
    EXPECT_EQ(component_.call("DllUnregisterServer"), S_OK);

    EXPECT_TRUE(classRegistry().user == forUser.user);
    EXPECT_EQ(install(component_, false, L"user"), S_OK);
}

#ifdef _WIN64
TEST_F(Registration, LeavesItsNamesToAComponentFor32Bits) {
    const std::wstring otherClass =
        L"Software\\Classes\\Wow6432Node\\CLSID\\{1811CD11-270D-4B00-A52C-4047F643EAB9}";
    HKEY key = nullptr;
    ASSERT_EQ(RegCreateKeyExW(HKEY_LOCAL_MACHINE, otherClass.c_str(), 0, nullptr, 0, KEY_WRITE,
                              nullptr, &key, nullptr),
              ERROR_SUCCESS);
    RegCloseKey(key);
    EXPECT_EQ(component_.call("DllRegisterServer"), S_OK);

    EXPECT_EQ(component_.call("DllUnregisterServer"), S_OK);

    CLSID id;
    EXPECT_EQ(classOf(L"Quorvane.CRtfDoc", id), S_OK);
    EXPECT_EQ(classOf(L"Quorvane.CRtfDriver", id), CO_E_CLASSSTRING);
    EXPECT_EQ(RegDeleteKeyW(HKEY_LOCAL_MACHINE, otherClass.c_str()), ERROR_SUCCESS);
    EXPECT_EQ(component_.call("DllUnregisterServer"), S_OK);
    EXPECT_EQ(classOf(L"Quorvane.CRtfDoc", id), CO_E_CLASSSTRING);
}
#endif

TEST_F(Registration, LetsHostsMakeObjectsByName) {
    ComPtr<IDispatch> object;
    CLSID id;
    EXPECT_EQ(classOf(L"Quorvane.CRtfDoc", id), CO_E_CLASSSTRING);
    ASSERT_EQ(component_.call("DllRegisterServer"), S_OK);

    for (const wchar_t* name : {L"Quorvane.CRtfDoc", L"Quorvane.CRtfDoc.1", L"Quorvane.CRtfDriver",
                                L"Quorvane.CRtfDriver.1"}) {
        EXPECT_EQ(createByName(name, object), S_OK);
        EXPECT_EQ(LateBound(object).get("Contents").value.text(), "{}");
    }
    for (const wchar_t* name : {L"Quorvane.Document", L"Quorvane.Document.1"}) {
        EXPECT_EQ(createByName(name, object), S_OK);
        EXPECT_EQ(LateBound(object).object("Rows").get("Count").value.number(), 0);
    }
    EXPECT_EQ(createByName(L"Quorvane.CRtfTableRow", object), CO_E_CLASSSTRING);

    EXPECT_EQ(component_.call("DllUnregisterServer"), S_OK);
    EXPECT_EQ(classOf(L"Quorvane.CRtfDoc", id), CO_E_CLASSSTRING);
}

TEST_F(Registration, NamesTheClasses) {
    ASSERT_EQ(component_.call("DllRegisterServer"), S_OK);

    EXPECT_EQ(nameOf(__uuidof(::CRtfDoc)), "Quorvane.CRtfDoc.1");
    EXPECT_EQ(nameOf(__uuidof(::CRtfDriver)), "Quorvane.CRtfDriver.1");
    EXPECT_EQ(nameOf(__uuidof(::Document)), "Quorvane.Document.1");

    EXPECT_EQ(component_.call("DllUnregisterServer"), S_OK);
}

TEST_F(Registration, LetsHostsCallFromOtherApartments) {
    ASSERT_EQ(component_.call("DllRegisterServer"), S_OK);

    const ProcessResult result = Process(testProgram(L"registeredHost.exe"), L"C:\\").wait();

    EXPECT_EQ(result.status, 0U) << result.output;
    EXPECT_EQ(component_.call("DllUnregisterServer"), S_OK);
}

TEST_F(Registration, LetsHostsFindTheTypeLibrary) {
    ComPtr<ITypeLib> library;
    GUID id;
    ASSERT_EQ(IIDFromString(L"{1811CD00-270D-4B00-A52C-4047F643EAB9}", &id), S_OK);
    ASSERT_EQ(component_.call("DllRegisterServer"), S_OK);
    EXPECT_EQ(LoadRegTypeLib(id, 1, 0, LOCALE_NEUTRAL, library.out()), S_OK);
    EXPECT_EQ(component_.call("DllUnregisterServer"), S_OK);
    EXPECT_NE(LoadRegTypeLib(id, 1, 0, LOCALE_NEUTRAL, library.out()), S_OK);
}

TEST_F(Registration, WorksWithTheSystemsProgram) {
    const auto run = [](const std::wstring& options, const std::wstring& file) {
        return Process(L"regsvr32.exe /s " + options + L" \"" + file + L"\"", L"C:\\")
            .wait()
            .status;
    };
    EXPECT_EQ(run(L"", componentFile()), 0U);
    expectAgreedEntries(componentFile());
    EXPECT_EQ(run(L"/u", componentFile()), 0U);
    expectAsBefore();

    EXPECT_EQ(run(L"/n /i:user", componentFile()), 0U);
    const ClassRegistry forUser = classRegistry();
    EXPECT_TRUE(withoutInterfacesFor32Bits(forUser.machine) == before().machine);
    EXPECT_FALSE(forUser.user == before().user);
    EXPECT_EQ(run(L"/u /n /i:user", componentFile()), 0U);
    EXPECT_EQ(run(L"", L"C:\\no such file.dll"), 3U);
}

/// A copy of the component in a folder of its own.
std::wstring copyOfComponent(const std::wstring& folderName) {
    const std::wstring folder = temporaryFile(folderName);
    const std::wstring copy = folder + L"\\quorvane.dll";
    if (!CreateDirectoryW(folder.c_str(), nullptr) ||
        !CopyFileW(componentFile().c_str(), copy.c_str(), TRUE)) {
        throw std::runtime_error("cannot copy the component");
    }
    return copy;
}

TEST_F(Registration, IsOfTheFileWhereverItIs) {
    const std::wstring moved = copyOfComponent(L"\u00DCn\u00EF c\u00F6d\u00EB");
    const Component elsewhere(moved);

    EXPECT_EQ(elsewhere.call("DllRegisterServer"), S_OK);

    expectAgreedEntries(moved);
    EXPECT_EQ(elsewhere.call("DllUnregisterServer"), S_OK);
}

TEST_F(Registration, OfANewFileStaysWhenTheOldOneIsUnregistered) {
    const std::wstring newFile = copyOfComponent(L"new");
    const Component newer(newFile);
    EXPECT_EQ(component_.call("DllRegisterServer"), S_OK);
    EXPECT_EQ(newer.call("DllRegisterServer"), S_OK);

    EXPECT_EQ(component_.call("DllUnregisterServer"), S_OK);

    expectAgreedEntries(newFile);
    ComPtr<IDispatch> object;
    EXPECT_EQ(createByName(L"Quorvane.CRtfDoc", object), S_OK);
    EXPECT_EQ(newer.call("DllUnregisterServer"), S_OK);
}

TEST_F(Registration, OfANewFileForTheUserStaysWhenTheOldOneIsUnregistered) {
    const Component newer(copyOfComponent(L"new for the user"));
    EXPECT_EQ(install(newer, true, L"user"), S_OK);
    const ClassRegistry registered = classRegistry();

    EXPECT_EQ(install(component_, false, L"user"), S_OK);

    expectSame(classRegistry().user, registered.user);
    EXPECT_EQ(install(newer, false, L"user"), S_OK);
}

constexpr const wchar_t* serverOfDocuments =
    L"Software\\Classes\\CLSID\\{1811CD11-270D-4B00-A52C-4047F643EAB9}\\InprocServer32";

void setServerOfDocuments(const std::wstring& text, DWORD type) {
    EXPECT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, serverOfDocuments, nullptr, type, text.c_str(),
                              static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t))),
              ERROR_SUCCESS);
}

std::wstring shortPath(const std::wstring& file) {
    wchar_t path[MAX_PATH];
    GetShortPathNameW(file.c_str(), path, MAX_PATH);
    return path;
}

std::wstring inUpperCase(std::wstring text) {
    CharUpperW(text.data());
    return text;
}

TEST_F(Registration, IsOfTheFileHoweverItsPathIsSpelled) {
    const std::wstring file = copyOfComponent(L"a folder with a long name");
    const std::wstring folder = file.substr(0, file.rfind(L'\\'));
    const Component component(file);
    SetEnvironmentVariableW(L"QUORVANE_TEST_FOLDER", folder.c_str());
    const auto expectOwn = [&](const std::wstring& text, DWORD type = REG_SZ) {
        EXPECT_EQ(component.call("DllRegisterServer"), S_OK);
        setServerOfDocuments(text, type);
        EXPECT_EQ(component.call("DllUnregisterServer"), S_OK);
        CLSID id;
        EXPECT_EQ(classOf(L"Quorvane.CRtfDoc", id), CO_E_CLASSSTRING) << utf8Text(text);
    };
    EXPECT_NE(shortPath(file), file);

    expectOwn(inUpperCase(file));
    expectOwn(shortPath(file));
    expectOwn(L'"' + file + L'"');
    expectOwn(L"\\\\?\\" + file);
    expectOwn(folder + L"\\.\\..\\" + folder.substr(folder.rfind(L'\\') + 1) + L"/quorvane.dll");
    expectOwn(L"%QUORVANE_TEST_FOLDER%\\quorvane.dll", REG_EXPAND_SZ);
    expectOwn(L"\"%QUORVANE_TEST_FOLDER%\\quorvane.dll\"", REG_EXPAND_SZ);
}

TEST_F(Registration, OfAnotherFileStaysWhateverItsName) {
    for (const std::wstring& other :
         {std::wstring(L"C:\\nosuch\\quorvane.dll"), std::wstring(L"quorvane.dll"),
          componentFile() + L".old", std::wstring(L"\\\\server\\share\\quorvane.dll")}) {
        EXPECT_EQ(component_.call("DllRegisterServer"), S_OK);
        setServerOfDocuments(other, REG_SZ);

        EXPECT_EQ(component_.call("DllUnregisterServer"), S_OK);

        CLSID id;
        EXPECT_EQ(classOf(L"Quorvane.CRtfDoc", id), S_OK) << utf8Text(other);
        EXPECT_EQ(classOf(L"Quorvane.CRtfDriver", id), CO_E_CLASSSTRING) << utf8Text(other);
        setServerOfDocuments(componentFile(), REG_SZ);
        EXPECT_EQ(component_.call("DllUnregisterServer"), S_OK);
    }
}

/// Functions of the system that the component is refused, as long as it lives. The first calls may
/// be allowed.
class RefusedCalls {
public:
    RefusedCalls(const Component& component, const char* library, const char* name, void* refusal,
                 int allowed = 0)
        : module_(component.module()), name_(name) {
        original_ = reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA(library), name));
        create_ = reinterpret_cast<Create>(original_);
        allowed_ = allowed;
        EXPECT_TRUE(redirectImport(module_, name_, refusal)) << name;
    }
    RefusedCalls(const RefusedCalls&) = delete;
    RefusedCalls& operator=(const RefusedCalls&) = delete;
    ~RefusedCalls() { redirectImport(module_, name_, original_); }

    static LSTATUS WINAPI createKey(HKEY parent, LPCWSTR path, DWORD reserved, LPWSTR type,
                                    DWORD options, REGSAM access, LPSECURITY_ATTRIBUTES security,
                                    PHKEY key, LPDWORD disposition) {
        return --allowed_ < 0 ? ERROR_ACCESS_DENIED
                              : create_(parent, path, reserved, type, options, access, security,
                                        key, disposition);
    }
    static LSTATUS WINAPI deleteTree(HKEY, LPCWSTR) { return ERROR_ACCESS_DENIED; }
    static HRESULT WINAPI registerTypeLibrary(ITypeLib*, OLECHAR*, OLECHAR*) {
        return TYPE_E_REGISTRYACCESS;
    }

private:
    using Create = decltype(&createKey);

    HMODULE module_;
    const char* name_;
    void* original_;
    static inline Create create_ = nullptr;
    static inline int allowed_ = 0;
};

TEST_F(Registration, WithoutRightsIsRefusedAndChangesNothing) {
    // Of the part of the registry and of the 13 entries of each class.
    for (const int allowed : {0, 1, 7, 15, 26, 39}) {
        {
            const RefusedCalls refused(component_, "advapi32.dll", "RegCreateKeyExW",
                                       reinterpret_cast<void*>(&RefusedCalls::createKey), allowed);
            EXPECT_EQ(component_.call("DllRegisterServer"), E_ACCESSDENIED) << allowed;
        }
        const ClassRegistry after = classRegistry();
        EXPECT_TRUE(after == before()) << allowed;
    }
}

TEST_F(Registration, WithoutTheRightToTheTypeLibraryIsRefusedAndChangesNothing) {
    const RefusedCalls refused(component_, "oleaut32.dll", "RegisterTypeLib",
                               reinterpret_cast<void*>(&RefusedCalls::registerTypeLibrary));

    EXPECT_EQ(component_.call("DllRegisterServer"), E_ACCESSDENIED);
}

TEST_F(Registration, IsNotRemovedWithoutRights) {
    EXPECT_EQ(component_.call("DllRegisterServer"), S_OK);
    const ClassRegistry registered = classRegistry();
    {
        const RefusedCalls refused(component_, "advapi32.dll", "RegCreateKeyExW",
                                   reinterpret_cast<void*>(&RefusedCalls::createKey));
        EXPECT_EQ(component_.call("DllUnregisterServer"), E_ACCESSDENIED);
    }
    EXPECT_TRUE(classRegistry() == registered);
    {
        const RefusedCalls refused(component_, "advapi32.dll", "RegDeleteTreeW",
                                   reinterpret_cast<void*>(&RefusedCalls::deleteTree));
        EXPECT_EQ(component_.call("DllUnregisterServer"), E_ACCESSDENIED);
    }
    EXPECT_EQ(component_.call("DllUnregisterServer"), S_OK);
}

/// What a manifest makes known, as long as it lives.
class Activation {
public:
    explicit Activation(const std::wstring& manifest) {
        ACTCTXW context{};
        context.cbSize = sizeof context;
        context.lpSource = manifest.c_str();
        handle_ = CreateActCtxW(&context);
        if (handle_ == INVALID_HANDLE_VALUE || !ActivateActCtx(handle_, &cookie_)) {
            throw std::runtime_error("the manifest is not accepted: " + utf8Text(manifest));
        }
    }
    Activation(const Activation&) = delete;
    Activation& operator=(const Activation&) = delete;
    ~Activation() {
        DeactivateActCtx(0, cookie_);
        ReleaseActCtx(handle_);
    }

private:
    HANDLE handle_;
    ULONG_PTR cookie_ = 0;
};

std::wstring besideComponent(const wchar_t* name) {
    const std::wstring file = componentFile();
    return file.substr(0, file.rfind(L'\\') + 1) + name;
}

TEST_F(Registration, IsNotNeededWithTheManifestOfTheComponent) {
    ComPtr<IDispatch> object;
    {
        const Activation activation(besideComponent(L"Quorvane.Component.manifest"));
        for (const wchar_t* name : {L"Quorvane.CRtfDoc", L"Quorvane.CRtfDriver",
                                    L"Quorvane.CRtfDoc.1", L"Quorvane.CRtfDriver.1"}) {
            EXPECT_EQ(createByName(name, object), S_OK);
        }
        EXPECT_EQ(nameOf(__uuidof(::CRtfDoc)), "Quorvane.CRtfDoc.1");
        EXPECT_EQ(nameOf(__uuidof(::CRtfDriver)), "Quorvane.CRtfDriver.1");
        EXPECT_EQ(nameOf(__uuidof(::Document)), "Quorvane.Document.1");
        ComPtr<IDispatch> document;
        EXPECT_EQ(createByName(L"Quorvane.Document", document), S_OK);
        EXPECT_EQ(LateBound(document).call("AddRow", {"x"}).value.type(), VT_DISPATCH);
    }
    EXPECT_EQ(LateBound(object).get("Contents").value.text(), "{}");
    EXPECT_EQ(LateBound(object).object("RtfObject").object("TableRows").get("Count").value.number(),
              0);
    EXPECT_EQ(createByName(L"Quorvane.CRtfDoc", object), CO_E_CLASSSTRING);
}

TEST_F(Registration, IsNotNeededWithAManifestThatNamesTheComponent) {
    ComPtr<IDispatch> object;
    const Activation activation(besideComponent(L"program.exe.manifest"));

    EXPECT_EQ(createByName(L"Quorvane.CRtfDoc", object), S_OK);

    EXPECT_EQ(LateBound(object).get("Contents").value.text(), "{}");
}

}  // namespace
}  // namespace quorvane::host
