#include <string>
#include <vector>

#include "cli/runCommand.h"
#include "quorvane/base/text/utf16.h"

int wmain(int argc, wchar_t** argv) {
    std::vector<std::string> arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.push_back(quorvane::utf8FromUtf16(std::wstring_view(argv[i])));
    }
    return quorvane::cli::runCommand(arguments);
}
