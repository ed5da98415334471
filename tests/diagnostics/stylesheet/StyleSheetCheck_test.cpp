#include "quorvane/diagnostics/stylesheet/StyleSheetCheck.h"

#include <gmock/gmock.h>

#include <string>
#include <string_view>
#include <vector>

#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The diagnostics, each as its line, its identifier, its message and its hint.
std::vector<std::string> found(std::string_view text) {
    std::vector<std::string> list;
    for (const Diagnostic& diagnostic : checkStyleSheet(text)) {
        list.push_back(std::to_string(diagnostic.place.line) + " " +
                       std::string(diagnosticRule(diagnostic.id).identifier) + ": " +
                       diagnostic.message + (diagnostic.hint.empty() ? "" : " " + diagnostic.hint));
    }
    return list;
}

TEST(StyleSheetCheck, ReportsOnlyTheEncodingOfUtf16) {
    // Read in Windows-1252, as files are.
    EXPECT_THAT(found(std::string_view("\xC3\xBF\xC3\xBEn\0a\0", 8)),
                ElementsAre("1 no-styles: The stylesheet has no styles. the file is in UTF-16; "
                            "save it in Windows-1252"));
    const std::vector<Diagnostic> diagnostics =
        checkStyleSheet(std::string_view("\xC3\xBF\xC3\xBE{\0x\0}\0", 10));
    ASSERT_EQ(diagnostics.size(), 1u);
    EXPECT_EQ(diagnostics[0].id, DiagnosticId::StyleSheetRejected);
    EXPECT_EQ(diagnostics[0].hint, "the file is in UTF-16; save it in Windows-1252");
    EXPECT_EQ(diagnostics[0].message,
              std::string_view("Error while processing stylesheet.\r\n\0x\0 is not a valid "
                               "keyword.",
                               63));
}

TEST(StyleSheetCheck, ReportsWhatAnotherValueIsMeantToBe) {
    EXPECT_THAT(found("{ name: a; style-def: para }\n{ name: b; style-def: character }\n"
                      "{ name: c; style-def: cel }\n{ name: d; style-def: }\n"),
                ElementsAre("1 bad-style-kind: para is not a valid value for style-def write "
                            "s for a paragraph style",
                            "2 bad-style-kind: character is not a valid value for style-def write "
                            "cs for a character style",
                            "3 bad-style-kind: cel is not a valid value for style-def did you "
                            "mean cell?",
                            "4 bad-style-kind:  is not a valid value for style-def write s, cs or "
                            "cell"));
    EXPECT_THAT(
        found("{ name: a; style-def: s; additive: true }\n"),
        ElementsAre("1 bad-additive: Error while processing stylesheet.\r\ntrue is not a valid "
                    "value for additive write yes or no"));
}

TEST(StyleSheetCheck, ReportsAColorOfACellThatDoesNotExist) {
    EXPECT_THAT(found("{ name: a; style-def: cell; format: sliver }\n"
                      "{ name: b; style-def: cell; format: }\n"
                      "{ name: c; style-def: cell; format: None }\n"
                      "{ name: d; style-def: cell; format: Dark-Red }\n"),
                ElementsAre("1 unknown-cell-color: sliver is not a color; cells of this "
                            "style get background 0. did you mean silver?",
                            "2 unknown-cell-color: An empty format is not a color; cells of "
                            "this style get background 0. write none for no color"));
}

TEST(StyleSheetCheck, TakesAnEmptyReferenceForNone) {
    EXPECT_THAT(found("{ name: a; style-def: s; next: a; based-on: }\n"), IsEmpty());
}

}  // namespace
}  // namespace quorvane
