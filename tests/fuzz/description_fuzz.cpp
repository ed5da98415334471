// Any text as a description, with and without checks, from memory and from a file. With any
// characters in its texts, a description in UTF-8 loses none of them.

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/base/text/codePage1252.h"
#include "quorvane/rtf/unicodeWords.h"
#include "tests/fuzz/DescriptionRun.h"

namespace {

using namespace quorvane;

void requireNothingLost(std::string_view text, bool erroneousInput) {
    DescriptionRun run(erroneousInput);
    run.driver().setUnicodeTexts(true);
    run.document()->setLostCharacterObserver(
        [](const LostCharacter&) { require(false, "no character is lost"); });
    const std::string first = run.parsed(text);
    run.document()->Commit("document.rtf");
    requireEqual(run.parsed(text), first, "parsing twice gives the same errors and text");
    if (!findBeyondCodePage1252(text)) {
        DescriptionRun other(erroneousInput);
        requireEqual(other.parsed(text), first, "Windows-1252 needs no control words");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    for (const bool erroneousInput : {false, true}) {
        DescriptionRun run(erroneousInput);
        requireGoodAnalysis(run, text, !holdsRowWords(text));
        const std::string fromFile = run.parsedFile(text);
        requireEqual(run.parsed(utf8FromCodePage1252(text)), fromFile,
                     "a file is read as the text that its bytes stand for");
        if (!findNotUtf8(text)) {
            requireNothingLost(text, erroneousInput);
        }
    }
    return 0;
}
