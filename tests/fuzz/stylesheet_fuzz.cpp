// Any text as a stylesheet, from memory and from a file, for the document and for the driver.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "quorvane/support/codePage1252.h"
#include "tests/fuzz/DescriptionRun.h"
#include "tests/fuzz/FuzzInput.h"
#include "tests/fuzz/plainStyleSheet.h"

namespace {

using namespace quorvane;

std::string answers(CRtfDoc& document, const std::vector<std::string>& names) {
    std::string all = document.StyleSheetOk() ? "ok\n" : "not loaded\n";
    for (const std::string& name : names) {
        all += name + ": " + std::string(document.GetParagraphStyle(name)) + "|" +
               std::string(document.GetCharacterStyle(name)) + "|" +
               std::to_string(document.getCellStyleBackColor(name)) + "\n";
    }
    document.setChanged(true);
    return all + renderedTwice(document);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    FuzzInput input(data, size);
    std::vector<std::string> names{"", "normal", "nosuch"};
    for (const std::string& piece : input.pieces(';', 20)) {
        names.push_back(piece.substr(std::min(piece.find(':') + 1, piece.size())));
    }

    DescriptionRun run(false);
    CRtfDoc& document = *run.document();
    const std::string error = run.styleSheetError(text);
    const std::string first = answers(document, names);
    require(document.StyleSheetOk() == error.empty(), "a sheet is loaded unless it has an error");
    requireEqual(run.styleSheetError(text), error, "a stylesheet has the same error every time");
    requireEqual(answers(document, names), first, "loading twice gives the same styles");
    requirePlainAnswer(text, error);

    FakePlatform platform;
    platform.files["style.rtfss"] = text;
    const Ref<CRtfDoc> other = CRtfDoc::create(platform);
    const std::int32_t fileError =
        errorOfCall([&other] { other->setStyleSheetFile("style.rtfss"); });
    const std::string asText = utf8FromCodePage1252(text);
    DescriptionRun again(false);
    const std::string textError = again.styleSheetError(asText);
    require((fileError == 0) == textError.empty(), "a file is a sheet when its text is one");
    requireEqual(answers(*other, names), answers(*again.document(), names),
                 "a stylesheet file gives the styles of its text");
    return 0;
}
