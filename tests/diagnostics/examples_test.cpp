// The examples of the table of diagnostics show what they are there for.

#include <gmock/gmock.h>

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/diagnostics/description/DescriptionCheck.h"
#include "quorvane/diagnostics/engine/diagnosticRules.h"
#include "quorvane/diagnostics/languageOf.h"
#include "quorvane/diagnostics/rtf/RtfCheck.h"
#include "quorvane/diagnostics/stylesheet/StyleSheetCheck.h"

namespace quorvane {

/// How a test shows the rule.
static void PrintTo(const DiagnosticRule& rule, std::ostream* output) {
    *output << rule.identifier;
}

namespace {

using testing::Contains;
using testing::IsEmpty;

std::vector<std::string> identifiers(const std::vector<Diagnostic>& diagnostics) {
    std::vector<std::string> names;
    for (const Diagnostic& diagnostic : diagnostics) {
        names.emplace_back(diagnosticRule(diagnostic.id).identifier);
    }
    return names;
}

/// The diagnostics about an example, together with its companion. Examples are files: their bytes
/// are read in the encoding of the rule.
std::vector<std::string> diagnosticsOf(std::string_view example, const DiagnosticRule& rule) {
    const std::string text = expandedExample(example);
    const std::string companion(rule.companion);
    switch (rule.language) {
        case CheckedLanguage::Description: {
            KnownStyles styles(decodedText(companion, rule.encoding), rule.encoding);
            return identifiers(checkDescription(decodedText(text, rule.encoding),
                                                companion.empty() ? nullptr : &styles,
                                                rule.encoding));
        }
        case CheckedLanguage::StyleSheet: {
            KnownStyles styles(decodedText(text, rule.encoding), rule.encoding);
            std::vector<std::string> names =
                identifiers(checkStyleSheet(decodedText(text, rule.encoding), rule.encoding));
            if (!companion.empty()) {
                checkDescription(decodedText(companion, rule.encoding), &styles, rule.encoding);
                const std::vector<std::string> unused = identifiers(findUnusedStyles(styles));
                names.insert(names.end(), unused.begin(), unused.end());
            }
            return names;
        }
        case CheckedLanguage::Rtf:
            break;
    }
    return identifiers(checkRtf(text));
}

std::vector<DiagnosticRule> rulesWithExamples() {
    std::vector<DiagnosticRule> rules;
    std::copy_if(diagnosticRules().begin(), diagnosticRules().end(), std::back_inserter(rules),
                 [](const DiagnosticRule& rule) { return !rule.wrong.empty(); });
    return rules;
}

class Examples : public testing::TestWithParam<DiagnosticRule> {};

TEST_P(Examples, ThatAreWrongHaveTheFinding) {
    EXPECT_THAT(diagnosticsOf(GetParam().wrong, GetParam()),
                Contains(std::string(GetParam().identifier)));
}

TEST_P(Examples, ThatAreRightHaveNoFinding) {
    EXPECT_THAT(diagnosticsOf(GetParam().right, GetParam()), IsEmpty());
}

TEST_P(Examples, AreTakenForWhatTheyAre) {
    EXPECT_EQ(languageOf(expandedExample(GetParam().right)), GetParam().language);
    // Two are about what is taken for something else without its extension.
    const bool isTakenForAnother = GetParam().id == DiagnosticId::DescriptionAsStyleSheet ||
                                   GetParam().id == DiagnosticId::NoStyles;
    EXPECT_EQ(languageOf(expandedExample(GetParam().wrong)),
              isTakenForAnother ? CheckedLanguage::Description : GetParam().language);
}

INSTANTIATE_TEST_SUITE_P(Table, Examples, testing::ValuesIn(rulesWithExamples()),
                         [](const testing::TestParamInfo<DiagnosticRule>& rule) {
                             std::string name(rule.param.identifier);
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

TEST(ExamplesOfTheTable, AreThereForAllButWhatFewLinesCannotShow) {
    std::vector<std::string> without;
    for (const DiagnosticRule& rule : diagnosticRules()) {
        if (rule.wrong.empty()) {
            without.emplace_back(rule.identifier);
        }
    }
    EXPECT_THAT(without,
                testing::ElementsAre("not-a-text-file", "not-utf-8", "wrong-extension", "rejected",
                                     "wrong-picture", "wrong-tag", "wrong-partial", "missing-name",
                                     "wrong-data", "wrong-json", "wrong-schema", "schema-mismatch",
                                     "stylesheet-rejected", "bad-character"));
}

}  // namespace
}  // namespace quorvane
