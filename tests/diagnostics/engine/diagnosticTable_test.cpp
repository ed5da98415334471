// The table of diagnostics as a whole.

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "quorvane/diagnostics/description/DescriptionCheck.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/diagnosticRules.h"
#include "tests/diagnostics/randomDescriptions.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

std::string sourcesOfTheChecks() {
    std::string all;
    for (const char* const folder : {"quorvane", "data", "cli"}) {
        for (const auto& entry :
             fs::recursive_directory_iterator(fs::path(QUORVANE_SOURCE_FOLDER) / folder)) {
            if (entry.path().extension() == ".cpp") {
                all += bytesOf(entry.path());
            }
        }
    }
    return all;
}

std::vector<std::string> enumerators() {
    const std::string source = bytesOf(fs::path(QUORVANE_SOURCE_FOLDER) / "quorvane/diagnostics" /
                                       "engine/DiagnosticId.h");
    std::istringstream lines(source.substr(source.find("enum class DiagnosticId {")));
    std::vector<std::string> names;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("    ") && line.ends_with(',')) {
            names.push_back(line.substr(4, line.size() - 5));
        }
    }
    return names;
}

TEST(DiagnosticTable, HasNoIdentifierThatNothingUses) {
    const std::string sources = sourcesOfTheChecks();
    ASSERT_EQ(enumerators().size(), diagnosticRules().size());
    for (const std::string& name : enumerators()) {
        const std::string used = "DiagnosticId::" + name;
        std::size_t at = sources.find(used);
        const auto isWhole = [&] {
            const char next = sources[at + used.size()];
            return std::isalnum(static_cast<unsigned char>(next)) == 0;
        };
        while (at != std::string::npos && !isWhole()) {
            at = sources.find(used, at + 1);
        }
        EXPECT_NE(at, std::string::npos) << name;
    }
}

TEST(DiagnosticTable, NamesEachKindOnceAndInLowerCase) {
    std::set<std::string_view> names;
    for (const DiagnosticRule& rule : diagnosticRules()) {
        EXPECT_TRUE(names.insert(rule.identifier).second) << rule.identifier;
        EXPECT_EQ(rule.identifier.find_first_not_of("abcdefghijklmnopqrstuvwxyz-8"),
                  std::string_view::npos)
            << rule.identifier;
        EXPECT_EQ(findDiagnosticRule(rule.identifier), &rule);
        EXPECT_EQ(&diagnosticRule(rule.id), &rule);
        EXPECT_FALSE(rule.explanation.empty());
        EXPECT_EQ(rule.wrong.empty(), rule.right.empty());
    }
    EXPECT_EQ(findDiagnosticRule("no-such-thing"), nullptr);
}

TEST(DiagnosticTable, GivesEveryDiagnosticATitleOfItsOwn) {
    std::set<std::string> titles;
    for (const DiagnosticRule& rule : diagnosticRules()) {
        // Both are about whatever else the library rejects.
        const bool isAboutTheRest =
            rule.id == DiagnosticId::Rejected || rule.id == DiagnosticId::StyleSheetRejected;
        EXPECT_TRUE(isAboutTheRest || titles.insert(ruleTitle(rule)).second) << rule.identifier;
    }
}

TEST(DiagnosticTable, TakesItsTitleOrItsMessageOrItsExplanation) {
    EXPECT_EQ(ruleTitle(diagnosticRule(DiagnosticId::Overflow)), "A number is too large.");
    EXPECT_EQ(ruleTitle(diagnosticRule(DiagnosticId::WrongColor)),
              "\xE2\x80\xA6 isn't a recognized color.");
    EXPECT_EQ(
        ruleTitle(diagnosticRule(DiagnosticId::Rejected)),
        "The library rejects the description with an error that has no diagnostic of its own.");
}

TEST(DiagnosticTable, RepeatsLinesOfExamples) {
    EXPECT_EQ(expandedExample("a\n; 3 times:\nb\nc\n; so far\nd\n"), "a\nb\nc\nb\nc\nb\nc\nd\n");
    EXPECT_EQ(expandedExample("; three times:\na\n"), "; three times:\na\n");
    EXPECT_EQ(expandedExample(""), "");
}

}  // namespace
}  // namespace quorvane
