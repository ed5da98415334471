// What is reported about a text is reported about the document made from it.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/diagnostics/description/DescriptionCheck.h"
#include "quorvane/diagnostics/rtf/RtfCheck.h"
#include "quorvane/driver/CRtfDriver.h"
#include "quorvane/rtf/RtfWord.h"
#include "tests/support/FakePlatform.h"

namespace quorvane {
namespace {

std::string descriptionOf(const std::string& text) {
    return "(doc\n(r\n(c\n(p\n(pt=" + text + ")\np)\nc)\nr)\ndoc)\n";
}

std::vector<Diagnostic> diagnosticsOfText(const std::string& text) {
    return checkDescription(descriptionOf(text), nullptr);
}

std::vector<Diagnostic> diagnosticsOfDocument(const std::string& text) {
    FakePlatform platform;
    const Ref<CRtfDriver> driver = CRtfDriver::create(platform);
    driver->ParseFromMemmory(descriptionOf(text));
    return checkRtf(codePage1252FromUtf8(driver->Contents()));
}

bool has(const std::vector<Diagnostic>& diagnostics, std::vector<DiagnosticId> ids) {
    return std::any_of(diagnostics.begin(), diagnostics.end(), [&](const Diagnostic& diagnostic) {
        return std::find(ids.begin(), ids.end(), diagnostic.id) != ids.end();
    });
}

bool hasUnknownNumber(const std::string& text) {
    return has(diagnosticsOfText(text), {DiagnosticId::UnknownNumber});
}

bool documentHasUnknownNumber(const std::string& text) {
    return has(diagnosticsOfDocument(text),
               {DiagnosticId::UnknownFont, DiagnosticId::UnknownColor, DiagnosticId::UnknownStyle});
}

TEST(TextsAndDocuments, AgreeOnNumbersThatNoTableHas) {
    int unknown = 0;
    for (const RtfWord& word : rtfWords()) {
        // Without a stylesheet it is not known which of its styles a text may use.
        const bool isOfStyleSheet =
            word.role == RtfRole::ParagraphStyle || word.role == RtfRole::CharacterStyle;
        // What a document begins with, and data, is not of a text.
        const bool isTable = word.destination == RtfDestination::FontTable ||
                             word.destination == RtfDestination::StyleSheet;
        if (isOfStyleSheet || isTable || word.role == RtfRole::Binary) {
            continue;
        }
        const std::string letters(word.word);
        for (const std::string& text :
             {"{\\" + letters + "999 x}", "{\\" + letters + "\\cf99 x}",
              "{\\*\\" + letters + "\\acf99 x}", "{\\header{\\" + letters + "\\af99 x}}"}) {
            EXPECT_EQ(hasUnknownNumber(text), documentHasUnknownNumber(text)) << text;
            unknown += hasUnknownNumber(text) ? 1 : 0;
        }
    }
    EXPECT_GT(unknown, 3000);
}

TEST(TextsAndDocuments, AgreeOnGroupsThatBeginWithAnUnknownWord) {
    for (const std::string text : {"{\\odd\\cf99 x}", "{\\*\\odd\\cf99 x}", "{\\odd{\\cf99 x}}",
                                   "{\\*\\odd{\\cf99 x}}", "{ \\footnote\\cf99 x}"}) {
        EXPECT_EQ(hasUnknownNumber(text), documentHasUnknownNumber(text)) << text;
    }
    EXPECT_TRUE(has(diagnosticsOfText("{\\odd x}"), {DiagnosticId::UnknownControlWord}));
    EXPECT_TRUE(has(diagnosticsOfDocument("{\\odd x}"), {DiagnosticId::UnknownDestination}));
}

TEST(TextsAndDocuments, AgreeOnControlsThatBreakTheTable) {
    int broken = 0;
    for (const RtfWord& word : rtfWords()) {
        if (word.role >= RtfRole::Font || word.role == RtfRole::Document ||
            word.destination == RtfDestination::StyleSheet) {
            continue;
        }
        const std::string letters(word.word);
        for (const std::string& text : {"a\\" + letters + "2 b", "a{\\" + letters + "\\cell b}"}) {
            const bool isBroken = has(diagnosticsOfText(text), {DiagnosticId::TableControl});
            EXPECT_EQ(isBroken, !diagnosticsOfDocument(text).empty()) << text;
            broken += isBroken ? 1 : 0;
        }
    }
    EXPECT_GT(broken, 1000);
}

TEST(TextsAndDocuments, AgreeOnBracesAndEscapes) {
    EXPECT_TRUE(has(diagnosticsOfText("a{b"), {DiagnosticId::UnbalancedBrace}));
    EXPECT_TRUE(has(diagnosticsOfDocument("a{b"), {DiagnosticId::UnclosedGroup}));
    EXPECT_TRUE(has(diagnosticsOfText("a}b"), {DiagnosticId::UnbalancedBrace}));
    EXPECT_FALSE(diagnosticsOfDocument("a}b").empty());
    EXPECT_TRUE(has(diagnosticsOfText("a\\'zb"), {DiagnosticId::LoneBackslash}));
    EXPECT_TRUE(has(diagnosticsOfDocument("a\\'zb"), {DiagnosticId::BadHexEscape}));
    for (const std::string text : {"a\\bin3 }}{b", "a\\{b\\}", "a\\\\b", "a\\'7db"}) {
        EXPECT_FALSE(has(diagnosticsOfText(text), {DiagnosticId::UnbalancedBrace})) << text;
        EXPECT_TRUE(diagnosticsOfDocument(text).empty()) << text;
    }
}

}  // namespace
}  // namespace quorvane
