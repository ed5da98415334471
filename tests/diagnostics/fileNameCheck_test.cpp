#include "quorvane/diagnostics/fileNameCheck.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto description = CheckedLanguage::Description;
constexpr auto styleSheet = CheckedLanguage::StyleSheet;
constexpr auto rtf = CheckedLanguage::Rtf;

/// The diagnostics, each as its place, its severity, its identifier and its message.
std::vector<std::string> found(const std::string& bytes, CheckedLanguage language,
                               const std::string& fileName) {
    std::vector<std::string> list;
    for (const Diagnostic& diagnostic : findNameMismatch(bytes, language, fileName)) {
        list.push_back(
            std::to_string(diagnostic.place.line) + ":" + std::to_string(diagnostic.place.column) +
            " " + std::string(severityName(diagnostic.severity)) + " " +
            std::string(diagnosticRule(diagnostic.id).identifier) + " " + diagnostic.message);
    }
    return list;
}

std::string hintOf(CheckedLanguage language, const std::string& fileName) {
    const std::vector<Diagnostic> diagnostics = findNameMismatch("x", language, fileName);
    return diagnostics.empty() ? "" : diagnostics.front().hint;
}

TEST(FileNameCheck, FindsNothingWhereNameAndContentAgree) {
    EXPECT_THAT(found("(doc\n", description, "a.rtfspec"), IsEmpty());
    EXPECT_THAT(found("{ name: a }", styleSheet, "A.RTFSS"), IsEmpty());
    EXPECT_THAT(found("{\\rtf1 a}", rtf, "a.Rtf"), IsEmpty());
}

TEST(FileNameCheck, FindsNothingInFilesOfOtherNames) {
    for (const char* name : {"", "-", "a.txt", "rtfspec", "a.rtfx"}) {
        EXPECT_THAT(found("(doc\n", description, name), IsEmpty()) << name;
        EXPECT_THAT(found("{\\rtf1 a}", rtf, name), IsEmpty()) << name;
    }
}

TEST(FileNameCheck, FindsWhatADriverRejects) {
    EXPECT_THAT(found("\n  { name: a }\n", styleSheet, "a.rtfspec"),
                ElementsAre("2:3 error wrong-file-type The provided file isn't a correct rtfspec "
                            "file."));
    EXPECT_THAT(found("{\\rtf1 a}", rtf, "a.RTFSPEC"),
                ElementsAre("1:1 error wrong-file-type The provided file isn't a correct rtfspec "
                            "file."));
}

TEST(FileNameCheck, FindsWhatTheLoadingOfAStyleSheetRejects) {
    EXPECT_THAT(found("{\\rtf1 a}", rtf, "a.rtfss"),
                ElementsAre("1:1 error stylesheet-rejected Error while processing "
                            "stylesheet.\r\n\\rtf1 a is not a valid keyword."));
}

TEST(FileNameCheck, WarnsOfADescriptionThatIsLoadedAsAStyleSheetWithoutStyles) {
    EXPECT_THAT(found("; mine\n(doc\n", description, "a.rtfss"),
                ElementsAre("2:1 warning description-as-stylesheet This is a description, not a "
                            "stylesheet."));
}

TEST(FileNameCheck, WarnsOfAnExtensionThatMisleads) {
    EXPECT_THAT(found("(doc\n", description, "a.rtf"),
                ElementsAre("1:1 warning wrong-extension This is a description, but its extension "
                            "is .rtf."));
    EXPECT_THAT(found("{ name: a }", styleSheet, "a.rtf"),
                ElementsAre("1:1 warning wrong-extension This is a stylesheet, but its extension "
                            "is .rtf."));
    EXPECT_THAT(found("\\rtf1 a", rtf, "a.rtfss"),
                ElementsAre("1:1 warning wrong-extension This is an RTF file, but its extension is "
                            ".rtfss."));
}

TEST(FileNameCheck, PointsToTheBeginningOfAFileThatSaysNothing) {
    EXPECT_THAT(found("", description, "a.rtf"),
                ElementsAre("1:1 warning wrong-extension This is a description, but its extension "
                            "is .rtf."));
}

TEST(FileNameCheck, SuggestsTheExtensionThatFitsTheContent) {
    EXPECT_EQ(hintOf(description, "a.rtf"),
              "the file looks like a description; its extension should be .rtfspec");
    EXPECT_EQ(hintOf(styleSheet, "a.rtf"),
              "the file looks like a stylesheet; its extension should be .rtfss");
    EXPECT_EQ(hintOf(rtf, "a.rtfss"),
              "the file looks like an RTF file; its extension should be .rtf");
}

}  // namespace
}  // namespace quorvane
