// Any text as a description in the extended language, after its first line: the driver reports an
// error exactly where check does, and then builds nothing; a document is sound RTF, whatever the
// texts hold; and the canonical form means the same.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "quorvane/base/text/extendedMark.h"
#include "quorvane/diagnostics/description/DescriptionCheck.h"
#include "quorvane/diagnostics/rtf/RtfCheck.h"
#include "quorvane/formatting/formatDescription.h"
#include "tests/fuzz/DescriptionRun.h"

namespace {

using namespace quorvane;

bool hasErrors(const std::vector<Diagnostic>& diagnostics) {
    return std::any_of(diagnostics.begin(), diagnostics.end(), [](const Diagnostic& diagnostic) {
        return diagnostic.severity == Severity::Error;
    });
}

/// What comes of a text: its document, or nothing after an error.
std::string documentOf(std::string_view text, bool& isWrong) {
    DescriptionRun run(false);
    run.driver().setReadsExtended(true);
    run.driver().setPictureSource([](const std::string&) { return std::string("no picture"); });
    const std::string parsed = run.parsed(text);
    isWrong = !run.events().empty();
    require(isWrong || run.document()->TableRows()->Count() > 0, "a sound description has rows");
    require(!isWrong || run.document()->TableRows()->Count() == 0,
            "nothing is built from a wrong description");
    return isWrong ? std::string() : parsed;
}

/// Raw control words can be anything that has its braces in pairs.
bool holdsRawRtf(std::string_view text) {
    return text.find("rtf") != std::string_view::npos;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text =
        std::string(extendedMark) + "\n" + std::string(reinterpret_cast<const char*>(data), size);
    bool isWrong = false;
    const std::string document = documentOf(text, isWrong);
    const auto noPicture = [](const std::string&) { return std::string("no picture"); };
    require(hasErrors(checkDescription(text, nullptr, TextEncoding::Utf8, noPicture)) == isWrong,
            "check finds an error where the driver reports one");
    if (!isWrong && !holdsRawRtf(text)) {
        require(!hasErrors(checkRtf(document)), "no text damages a document");
    }
    const std::string formatted = formattedDescription(text);
    bool isFormattedWrong = false;
    requireEqual(documentOf(formatted, isFormattedWrong), document,
                 "the canonical form renders to the same document");
    require(isFormattedWrong == isWrong, "the canonical form has an error where the text has one");
    requireEqual(formattedDescription(formatted), formatted, "the canonical form is stable");
    return 0;
}
