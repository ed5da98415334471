// The fixes that diagnostics carry.

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "quorvane/diagnostics/engine/DiagnosticEngine.h"

namespace quorvane {
namespace {

TEST(DiagnosticEngine, MakesTheReplacementOfAHintTheFixForThePlace) {
    std::vector<Diagnostic> diagnostics;
    DiagnosticEngine engine(
        [&](Diagnostic diagnostic) { diagnostics.push_back(std::move(diagnostic)); });
    engine.report(DiagnosticId::WrongColor, {3, 5, 4, 20}, {"gren"},
                  {"did you mean green?", "green"});
    engine.report(DiagnosticId::WrongColor, {4, 5, 7, 40}, {"crimson"}, "did you mean dark-red?");
    ASSERT_TRUE(diagnostics.at(0).fix);
    EXPECT_EQ(diagnostics.at(0).hint, "did you mean green?");
    EXPECT_EQ(diagnostics.at(0).fix->replacement, "green");
    EXPECT_EQ(diagnostics.at(0).fix->place.offset, 20);
    EXPECT_EQ(diagnostics.at(0).fix->place.length, 4);
    EXPECT_FALSE(diagnostics.at(1).fix);
}

}  // namespace
}  // namespace quorvane
