// Any text as a stylesheet, from memory and from a file, for the document and for the driver: it
// has the error that its grammar states, or the styles and the group that the plain steps make of
// it.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/stylesheet/CRtfGrpStyleSheetTable.h"
#include "tests/fuzz/DescriptionRun.h"
#include "tests/fuzz/FuzzInput.h"
#include "tests/fuzz/plainStyleSheet.h"

namespace {

using namespace quorvane;

class NoOwner final : public GroupOwner {
public:
    void beforeChange() override {}
    void markChanged() noexcept override {}
};

/// What a table returns that a document does not pass on.
void requirePlainTable(std::string_view text, const std::vector<std::string>& names,
                       const plain::StyleSheet& plain) {
    NoOwner owner;
    FakePlatform platform;
    CRtfGrpStyleSheetTable table(owner, platform);
    require(errorOfCall([&] { table.loadStyleSheetFromMemory(text); }) == plain.error().number,
            "a table has the error that the grammar states");
    for (const std::string& name : names) {
        requireEqual(table.GetParagraphStyle(name), plain.paragraphWords(name),
                     "a table has the expected words of a paragraph style");
        requireEqual(table.GetMarkedFieldStyle(name), plain.cellFormat(name),
                     "a cell style has the expected format");
        require(table.IsStyleDefined(name) == plain.isDefined(name),
                "a style exists when it is expected to");
    }
}

void requirePlainStyles(CRtfDoc& document, const std::vector<std::string>& names,
                        const plain::StyleSheet& plain) {
    require(document.StyleSheetOk() == plain.isLoaded(),
            "a sheet is loaded unless it has an error");
    plain::Document plainDocument;
    plainDocument.styles = plain;
    for (const std::string& name : names) {
        requireEqual(document.GetParagraphStyle(name), plainDocument.paragraphStyle(name),
                     "a paragraph style has the expected words");
        requireEqual(document.GetCharacterStyle(name), plain.characterWords(name),
                     "a character style has the expected words");
        require(document.getCellStyleBackColor(name) == plain.cellColor(name),
                "a cell style has the expected color");
    }
    plainDocument.refresh();
    requireEqual(renderedTwice(document), plainDocument.contents,
                 "a document holds the expected group");
}

/// The error of a stylesheet in the form that a run reports it.
std::string statedError(const plain::StyleSheet& plain) {
    return plain.error().number == 0
               ? ""
               : errorText({plain.error().number, plain.error().description, "", 0});
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    FuzzInput input(data, size);
    std::vector<std::string> names{"", "normal", "nosuch"};
    for (const std::string& piece : input.pieces(';', 20)) {
        const std::string value = piece.substr(std::min(piece.find(':') + 1, piece.size()));
        names.push_back(value);
        // Names without the line breaks around them, and every one of several.
        const std::size_t begin = std::min(value.find_first_not_of(" \t\r\n"), value.size());
        names.push_back(value.substr(begin, value.find_first_of(",\t\r\n", begin) - begin));
        names.push_back(value.substr(std::min(value.rfind(',') + 1, value.size())));
    }

    const plain::StyleSheet plain(text);
    DescriptionRun run(false);
    // The second time the first styles are there already.
    for (int i = 0; i < 2; ++i) {
        requireEqual(run.styleSheetError(text), statedError(plain),
                     "a stylesheet has the error that its grammar states");
        requirePlainStyles(*run.document(), names, plain);
    }
    requirePlainTable(text, names, plain);

    FakePlatform platform;
    platform.files["style.rtfss"] = text;
    const plain::StyleSheet plainFile(utf8FromCodePage1252(text));
    const Ref<CRtfDoc> other = CRtfDoc::create(platform);
    require(errorOfCall([&other] { other->setStyleSheetFile("style.rtfss"); }) ==
                plainFile.error().number,
            "a file has the error of its text");
    requireEqual(other->StyleSheetFile(), plainFile.isLoaded() ? "style.rtfss" : "",
                 "a good file's name is kept");
    requirePlainStyles(*other, names, plainFile);
    return 0;
}
