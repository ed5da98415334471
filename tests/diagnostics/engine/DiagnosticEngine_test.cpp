#include "quorvane/diagnostics/engine/DiagnosticEngine.h"

#include <gtest/gtest.h>

#include <utility>

#include "quorvane/base/text/placeholders.h"

namespace quorvane {
namespace {

TEST(DiagnosticEngine, TakesSeverityAndMessageFromTheTable) {
    std::vector<Diagnostic> diagnostics;
    DiagnosticEngine engine(
        [&](Diagnostic diagnostic) { diagnostics.push_back(std::move(diagnostic)); });

    engine.report(DiagnosticId::WrongColor, {3, 5, 7, 20}, {"crimson"}, "did you mean dark-red?");

    ASSERT_EQ(diagnostics.size(), 1U);
    EXPECT_EQ(diagnostics[0].message, "crimson isn't a recognized color.");
    EXPECT_EQ(diagnostics[0].severity, Severity::Error);
    EXPECT_EQ(diagnostics[0].hint, "did you mean dark-red?");
    EXPECT_EQ(diagnostics[0].place.line, 3);
}

TEST(Placeholders, GetTheArgumentOfTheirNumber) {
    EXPECT_EQ(withArguments("{1} on {0}, { } {a} {12}", {"red", "blue"}),
              "blue on red, { } {a} {12}");
}

TEST(Placeholders, WithoutAnArgumentAreLeftOut) {
    EXPECT_EQ(withArguments("{0} and {1}.", {"red"}), "red and .");
    EXPECT_EQ(withArguments("{0}", {}), "");
}

}  // namespace
}  // namespace quorvane
