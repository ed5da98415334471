// Any text as a description, with and without checks, from memory and from a file. With any
// characters in its texts, a description in UTF-8 loses none of them. In the extended language it
// is a description without errors, or what it cannot be is said.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/text/extendedMark.h"
#include "quorvane/diagnostics/description/DescriptionCheck.h"
#include "quorvane/formatting/upgradeDescription.h"
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

void requireSoundUpgrade(std::string_view text) {
    const std::string styles = "{ name: normal; style-def: s }{ name: b; style-def: cs }";
    const Upgrade upgrade = upgradedDescription(text, styles);
    require(upgrade.errors.empty() != upgrade.text.empty(), "an upgrade has a text or errors");
    for (const UpgradeRemark& error : upgrade.errors) {
        require(error.line > 0 && !error.message.empty(), "an error of an upgrade has a line");
    }
    if (upgrade.errors.empty() && !isMarkedExtended(text)) {
        for (const Diagnostic& diagnostic : checkDescription(upgrade.text)) {
            require(diagnostic.severity == Severity::Warning, "an upgrade has no errors");
        }
        requireEqual(upgradedDescription(upgrade.text, styles).text, upgrade.text,
                     "an upgraded description stays as it is");
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
    if (!findNotUtf8(text)) {
        requireSoundUpgrade(text);
    }
    return 0;
}
