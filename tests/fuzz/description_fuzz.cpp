// Any text as a description, with and without checks, from memory and from a file.

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "quorvane/base/text/codePage1252.h"
#include "tests/fuzz/DescriptionRun.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quorvane;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    for (const bool erroneousInput : {false, true}) {
        DescriptionRun run(erroneousInput);
        requireGoodAnalysis(run, text, !holdsRowWords(text));
        const std::string fromFile = run.parsedFile(text);
        requireEqual(run.parsed(utf8FromCodePage1252(text)), fromFile,
                     "a file is read as the text that its bytes stand for");
    }
    return 0;
}
