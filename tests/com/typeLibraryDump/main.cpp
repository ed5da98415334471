// Writes a type library as a text: typeLibraryDump FILE. This is how typeLibrary.txt is made.

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <cstdio>

#include "tests/com/host/ComPtr.h"
#include "tests/com/host/text.h"
#include "tests/com/host/typeLibraryText.h"

int main(int argc, char** argv) {
    using namespace quorvane::host;
    ComPtr<ITypeLib> library;
    if (argc != 2 || FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) ||
        FAILED(LoadTypeLibEx(wideText(argv[1]).c_str(), REGKIND_NONE, library.out()))) {
        std::fprintf(stderr, "usage: typeLibraryDump FILE\n");
        return 1;
    }
    _setmode(_fileno(stdout), _O_BINARY);
    std::fputs(typeLibraryText(*library.get()).c_str(), stdout);
    return 0;
}
