// Runs a script: scriptHost FILE.vbs|FILE.js [arguments]. What the script echoes goes to the
// standard output in UTF-8. The exit status is the script's own (`WScript.Quit`), 0 at its end, 1
// when an error ended it, 2 when it cannot be run at all.

#include <activscp.h>
#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include "tests/com/host/ComPtr.h"
#include "tests/com/host/text.h"
#include "tests/com/scriptHost/ScriptSite.h"
#include "tests/com/scriptHost/WScript.h"

namespace quorvane::host {
namespace {

// A text file in UTF-8 with its mark, or else in Windows-1252.
std::optional<std::wstring> readScript(const std::wstring& path) {
    std::FILE* file = _wfopen(path.c_str(), L"rb");
    if (!file) {
        return std::nullopt;
    }
    std::string bytes;
    char buffer[4096];
    for (std::size_t read; (read = std::fread(buffer, 1, sizeof buffer, file)) > 0;) {
        bytes.append(buffer, read);
    }
    std::fclose(file);
    if (bytes.starts_with("\xEF\xBB\xBF")) {
        return wideText(std::string_view(bytes).substr(3));
    }
    const int size = static_cast<int>(bytes.size());
    std::wstring text(bytes.size(), L'\0');
    MultiByteToWideChar(1252, 0, bytes.data(), size, text.data(), size);
    return text;
}

const wchar_t* engineFor(const std::wstring& path) {
    return path.ends_with(L".js") ? L"JScript" : L"VBScript";
}

HRESULT runScript(IActiveScript& engine, ScriptSite& site, WScript& wscript,
                  const std::wstring& script) {
    const auto parser = ComPtr<IActiveScript>(&engine).as<IActiveScriptParse>();
    ComPtr<IDispatch> procedures;
    HRESULT outcome = parser ? engine.SetScriptSite(&site) : E_NOINTERFACE;
    if (SUCCEEDED(outcome)) {
        outcome = parser->InitNew();
    }
    if (SUCCEEDED(outcome)) {
        outcome = engine.AddNamedItem(L"WScript", SCRIPTITEM_ISVISIBLE);
    }
    if (SUCCEEDED(outcome)) {
        outcome = engine.GetScriptDispatch(nullptr, procedures.out());
    }
    if (SUCCEEDED(outcome)) {
        wscript.setScript(procedures.get());
        outcome = engine.SetScriptState(SCRIPTSTATE_STARTED);
    }
    if (SUCCEEDED(outcome)) {
        outcome = parser->ParseScriptText(script.c_str(), nullptr, nullptr, nullptr, 0, 0,
                                          SCRIPTTEXT_ISVISIBLE, nullptr, nullptr);
    }
    wscript.disconnectAll();
    wscript.setScript(nullptr);
    engine.Close();
    return outcome;
}

int run(const std::vector<std::wstring>& arguments) {
    if (arguments.empty()) {
        std::fprintf(stderr, "usage: scriptHost FILE.vbs|FILE.js [arguments]\r\n");
        return 2;
    }
    const std::wstring& path = arguments[0];
    const std::optional<std::wstring> script = readScript(path);
    if (!script) {
        std::fprintf(stderr, "cannot read %s\r\n", utf8Text(path).c_str());
        return 2;
    }
    CLSID id;
    ComPtr<IActiveScript> engine;
    if (FAILED(CLSIDFromProgID(engineFor(path), &id)) ||
        FAILED(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IActiveScript),
                                engine.outVoid()))) {
        std::fprintf(stderr, "there is no engine for %s\r\n", utf8Text(path).c_str());
        return 2;
    }
    const auto wscript =
        makeCom<WScript>(path, std::vector<std::wstring>(arguments.begin() + 1, arguments.end()));
    const auto site = makeCom<ScriptSite>(path, ComPtr<IDispatch>(wscript.get()));
    const HRESULT outcome = runScript(*engine.get(), *site.get(), *wscript.get(), *script);
    if (site->failed()) {
        return 1;
    }
    if (FAILED(outcome)) {
        std::fprintf(stderr, "%s: 0x%08lX\r\n", utf8Text(path).c_str(),
                     static_cast<unsigned long>(outcome));
        return 1;
    }
    return 0;
}

}  // namespace
}  // namespace quorvane::host

int main() {
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
    int count = 0;
    LPWSTR* words = CommandLineToArgvW(GetCommandLineW(), &count);
    const std::vector<std::wstring> arguments(words + 1, words + count);
    LocalFree(words);
    if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {
        return 2;
    }
    const int status = quorvane::host::run(arguments);
    CoUninitialize();
    return status;
}
