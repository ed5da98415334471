// The fixes that diagnostics carry.

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "quorvane/diagnostics/engine/DiagnosticEngine.h"

namespace quorvane {
namespace {

TEST(DiagnosticEngine, MakesTheReplacementOfAHintTheFixForThePlace) {
    std::vector<Diagnostic> findings;
    DiagnosticEngine engine([&](Diagnostic finding) { findings.push_back(std::move(finding)); });
    engine.report(DiagnosticId::WrongColor, {3, 5, 4, 20}, {"gren"},
                  {"did you mean green?", "green"});
    engine.report(DiagnosticId::WrongColor, {4, 5, 7, 40}, {"crimson"}, "did you mean dark-red?");
    ASSERT_TRUE(findings.at(0).fix);
    EXPECT_EQ(findings.at(0).hint, "did you mean green?");
    EXPECT_EQ(findings.at(0).fix->replacement, "green");
    EXPECT_EQ(findings.at(0).fix->place.offset, 20);
    EXPECT_EQ(findings.at(0).fix->place.length, 4);
    EXPECT_FALSE(findings.at(1).fix);
}

}  // namespace
}  // namespace quorvane
