#include "quorvane/diagnostics/engine/RepeatedDiagnostics.h"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

Diagnostic onLine(std::int64_t line, const std::string& message, const std::string& hint = {}) {
    Diagnostic diagnostic;
    diagnostic.id = DiagnosticId::WrongColor;
    diagnostic.place.line = line;
    diagnostic.message = message;
    diagnostic.hint = hint;
    return diagnostic;
}

TEST(RepeatedDiagnostics, OfOneIdentifierMessageAndHintHaveOneCause) {
    RepeatedDiagnostics causes;
    EXPECT_TRUE(causes.add(onLine(1, "crimson")).isFirst);
    EXPECT_FALSE(causes.add(onLine(2, "crimson")).isFirst);
    EXPECT_EQ(causes.add(onLine(3, "crimson")).cause, 0U);
    EXPECT_EQ(causes.count(), 1U);
}

TEST(RepeatedDiagnostics, ThatDifferInAnythingHaveCausesOfTheirOwn) {
    RepeatedDiagnostics causes;
    causes.add(onLine(1, "crimson"));
    EXPECT_TRUE(causes.add(onLine(1, "navy")).isFirst);
    EXPECT_TRUE(causes.add(onLine(1, "crimson", "did you mean dark-red?")).isFirst);
    Diagnostic other = onLine(1, "crimson");
    other.id = DiagnosticId::WrongBorder;
    EXPECT_TRUE(causes.add(other).isFirst);
    Diagnostic fixed = onLine(1, "crimson");
    fixed.isFixed = true;
    EXPECT_TRUE(causes.add(fixed).isFirst);
    EXPECT_EQ(causes.count(), 5U);
}

TEST(RepeatedDiagnostics, SayOnWhichLinesTheyComeAgain) {
    RepeatedDiagnostics causes;
    causes.add(onLine(1, "crimson"));
    EXPECT_EQ(causes.repetitionText(0), "");
    causes.add(onLine(4, "crimson"));
    EXPECT_EQ(causes.repetitionText(0), "and 1 more like this: line 4");
    causes.add(onLine(4, "crimson"));
    EXPECT_EQ(causes.repetitionText(0), "and 2 more like this: line 4");
    causes.add(onLine(9, "crimson"));
    EXPECT_EQ(causes.repetitionText(0), "and 3 more like this: lines 4 and 9");
    causes.add(onLine(12, "crimson"));
    EXPECT_EQ(causes.repetitionText(0), "and 4 more like this: lines 4, 9 and 12");
}

TEST(RepeatedDiagnostics, NameTenLinesAtMost) {
    RepeatedDiagnostics causes;
    for (std::int64_t line = 1; line <= 11; ++line) {
        causes.add(onLine(line, "crimson"));
    }
    EXPECT_EQ(causes.repetitionText(0),
              "and 10 more like this: lines 2, 3, 4, 5, 6, 7, 8, 9, 10 and 11");
    causes.add(onLine(12, "crimson"));
    causes.add(onLine(13, "crimson"));
    EXPECT_EQ(causes.repetitionText(0),
              "and 12 more like this: lines 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, \xE2\x80\xA6");
}

}  // namespace
}  // namespace quorvane
