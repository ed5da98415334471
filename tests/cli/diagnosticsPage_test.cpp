#include "cli/diagnosticsPage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "quorvane/diagnostics/engine/diagnosticRules.h"
#include "tests/cli/TemporaryFolder.h"
#include "tests/cli/runProgram.h"

namespace quorvane::cli {
namespace {

using testing::HasSubstr;

std::string pageInTheDocuments() {
    std::ifstream file(QUORVANE_DOCUMENTS_FOLDER "/diagnostics.md", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> linesOf(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

TEST(DiagnosticsPage, IsTheOneInTheDocuments) {
    const std::string generated = diagnosticsPage();
    const std::string inDocuments = pageInTheDocuments();
    if (generated == inDocuments) {
        return;
    }
    const std::vector<std::string> expected = linesOf(generated);
    const std::vector<std::string> actual = linesOf(inDocuments);
    const auto [line, other] =
        std::mismatch(expected.begin(), expected.end(), actual.begin(), actual.end());
    ADD_FAILURE() << "docs/diagnostics.md is out of date; scripts/diagnostics-page updates it.\n"
                  << "First difference, in line " << line - expected.begin() + 1 << ":\n"
                  << "  generated:    " << (line == expected.end() ? "(end)" : *line) << "\n"
                  << "  in the file:  " << (other == actual.end() ? "(end)" : *other);
}

/// A section of the page in the documents.
struct Section {
    std::string identifier;
    std::string companion;
    bool isSheet = false;
    std::string wrong;
    std::string report;
    std::string encoding = "auto";
    std::string right;
};

void PrintTo(const Section& section, std::ostream* output) {
    *output << section.identifier;
}

/// The text in the fence after a title; empty if the section has none.
std::string fenced(const std::string& section, const std::string& title) {
    const std::string begin = "\n" + title + "\n\n```\n";
    const std::size_t at = section.find(begin);
    if (at == std::string::npos) {
        return {};
    }
    const std::size_t start = at + begin.size();
    return section.substr(start, section.find("```\n", start) - start);
}

std::vector<Section> sectionsWithExamples() {
    const std::string page = pageInTheDocuments();
    std::vector<Section> sections;
    for (std::size_t at = page.find("\n### "); at != std::string::npos;) {
        const std::size_t next = page.find("\n### ", at + 1);
        const std::string text = page.substr(at, next - at);
        Section section;
        section.identifier = text.substr(5, text.find('\n', 5) - 5);
        section.companion = fenced(text, "With this stylesheet:");
        section.isSheet = text.find("\nWith this description:") != std::string::npos;
        if (section.isSheet) {
            section.companion = fenced(text, "With this description:");
        }
        section.wrong = fenced(text, "Wrong:");
        section.report = fenced(text, "Report:");
        if (section.report.empty()) {
            section.report = fenced(text, "Report with `--encoding windows-1252`:");
            section.encoding = "windows-1252";
        }
        section.right = fenced(text, "Right:");
        if (!section.wrong.empty()) {
            sections.push_back(section);
        }
        at = next;
    }
    return sections;
}

/// The built program, run on an example as a reader of the page would.
class PageExamples : public testing::TestWithParam<Section> {
protected:
    ProgramResult check(const std::string& example) {
        const Section& section = GetParam();
        const std::string file = section.report.substr(0, section.report.find(':'));
        ProgramStart start;
        start.folder = folder.path();
        start.arguments = {"check", "--quiet", "--encoding", section.encoding};
        if (isOffByDefault(findDiagnosticRule(section.identifier)->id)) {
            start.arguments.push_back("--enable=" + section.identifier);
        }
        if (section.isSheet) {
            folder.write("example.rtfss", expandedExample(example));
            folder.write("example.rtfspec", section.companion);
        } else {
            folder.write(file, expandedExample(example));
            if (!section.companion.empty()) {
                folder.write("example.rtfss", section.companion);
            }
        }
        if (!section.companion.empty()) {
            start.arguments.insert(start.arguments.end(), {"--stylesheet", "example.rtfss"});
        }
        start.arguments.push_back(section.isSheet ? "example.rtfspec" : file);
        return runProgram(start);
    }

    TemporaryFolder folder;
};

TEST_P(PageExamples, ThatAreWrongGetTheReportOfThePage) {
    const ProgramResult result = check(GetParam().wrong);
    EXPECT_EQ(result.output, GetParam().report);
    EXPECT_EQ(result.errors, "");
    const bool hasError = result.output.find(": error: ") != std::string::npos;
    EXPECT_EQ(result.status, hasError ? 1 : 3);
    EXPECT_THAT(result.output, HasSubstr("[" + GetParam().identifier + "]"));
}

TEST_P(PageExamples, ThatAreRightGetNone) {
    const ProgramResult result = check(GetParam().right);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.status, 0);
}

INSTANTIATE_TEST_SUITE_P(All, PageExamples, testing::ValuesIn(sectionsWithExamples()),
                         [](const testing::TestParamInfo<Section>& section) {
                             std::string name = section.param.identifier;
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

TEST(DiagnosticsPage, HasASectionForEachIdentifier) {
    const std::string page = pageInTheDocuments();
    for (const DiagnosticRule& rule : diagnosticRules()) {
        EXPECT_THAT(page, HasSubstr("\n### " + std::string(rule.identifier) + "\n"));
    }
    // Those that have an example are run as PageExamples.
    const auto examples =
        std::count_if(diagnosticRules().begin(), diagnosticRules().end(),
                      [](const DiagnosticRule& rule) { return !rule.wrong.empty(); });
    EXPECT_EQ(sectionsWithExamples().size(), static_cast<std::size_t>(examples));
}

}  // namespace
}  // namespace quorvane::cli
