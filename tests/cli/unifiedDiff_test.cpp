#include "cli/unifiedDiff.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "cli/lineChanges.h"
#include "tests/cli/TemporaryFolder.h"

namespace quorvane::cli {
namespace {

std::string numbered(int first, int last) {
    std::string text;
    for (int i = first; i <= last; ++i) {
        text += std::to_string(i) + "\n";
    }
    return text;
}

/// What `patch` makes of a file with a diff; the file is called as the diff has it.
std::string patched(const TemporaryFolder& folder, const std::string& name,
                    const std::string& before, const std::string& diff) {
    folder.write(name, before);
    folder.write("the.diff", diff);
    const std::string command =
        "cd '" + folder.path().string() + "' && " QUORVANE_PATCH " --binary -s -f -p1 < the.diff";
    EXPECT_EQ(std::system(command.c_str()), 0) << diff;
    return folder.read(name);
}

TEST(UnifiedDiff, OfEqualTextsIsEmpty) {
    EXPECT_EQ(unifiedDiff("a", "", ""), "");
    EXPECT_EQ(unifiedDiff("a", "one\ntwo", "one\ntwo"), "");
}

TEST(UnifiedDiff, HasThreeLinesAroundAChange) {
    EXPECT_EQ(
        unifiedDiff("letter.rtfspec", numbered(1, 9), numbered(1, 4) + "V\n" + numbered(6, 9)),
        "--- a/letter.rtfspec\n+++ b/letter.rtfspec\n"
        "@@ -2,7 +2,7 @@\n 2\n 3\n 4\n-5\n+V\n 6\n 7\n 8\n");
}

TEST(UnifiedDiff, JoinsChangesThatAreSixLinesApartAndPartsOthers) {
    EXPECT_EQ(unifiedDiff("a", "x\n" + numbered(1, 6) + "y\n", numbered(1, 6)),
              "--- a/a\n+++ b/a\n@@ -1,8 +1,6 @@\n-x\n 1\n 2\n 3\n 4\n 5\n 6\n-y\n");
    EXPECT_EQ(
        unifiedDiff("a", "x\n" + numbered(1, 7) + "y\n", numbered(1, 7)),
        "--- a/a\n+++ b/a\n@@ -1,4 +1,3 @@\n-x\n 1\n 2\n 3\n@@ -6,4 +5,3 @@\n 5\n 6\n 7\n-y\n");
}

TEST(UnifiedDiff, CountsFromZeroWhereASideHasNoLine) {
    EXPECT_EQ(unifiedDiff("a", "", "one\n"), "--- a/a\n+++ b/a\n@@ -0,0 +1 @@\n+one\n");
    EXPECT_EQ(unifiedDiff("a", "one\ntwo\n", ""),
              "--- a/a\n+++ b/a\n@@ -1,2 +0,0 @@\n-one\n-two\n");
}

TEST(UnifiedDiff, SaysWhereTheLastLineIsNotEnded) {
    EXPECT_EQ(
        unifiedDiff("a", "one\ntwo", "one\ntwo\n"),
        "--- a/a\n+++ b/a\n@@ -1,2 +1,2 @@\n one\n-two\n\\ No newline at end of file\n+two\n");
}

TEST(UnifiedDiff, NamesFilesAsPatchReadsThem) {
    const auto head = [](const std::string& name) {
        const std::string diff = unifiedDiff(name, "", "x\n");
        return diff.substr(0, diff.find("+++"));
    };
    EXPECT_EQ(head("/home/me/a.rtfspec"), "--- a/home/me/a.rtfspec\n");
    EXPECT_EQ(head("my letter.rtfspec"), "--- a/my letter.rtfspec\t\n");
    EXPECT_EQ(head("a\"b\n\\c"), "--- \"a/a\\\"b\\012\\\\c\"\n");
}

TEST(UnifiedDiff, IsTakenByPatch) {
    const TemporaryFolder folder;
    for (const std::string name : {"a.rtfspec", "my letter.rtfspec", "a\"b\\c.rtfss"}) {
        const std::string before = "one\r\ntw\xF6\r\n\x81\nthree";
        const std::string after = "one\r\ntwo\r\n\x81\nthree\n";
        EXPECT_EQ(patched(folder, name, before, unifiedDiff(name, before, after)), after);
    }
}

/// A text of few different lines, or of many; the last one may lack its end.
std::string randomText(std::mt19937& random, int maxLines, int words) {
    std::string text;
    const int count = static_cast<int>(random() % static_cast<unsigned>(maxLines));
    for (int i = 0; i < count; ++i) {
        text += "line " + std::to_string(random() % static_cast<unsigned>(words)) + "\n";
    }
    if (random() % 2 == 0 && !text.empty()) {
        text.pop_back();
    }
    return text;
}

TEST(UnifiedDiff, OfAnyTwoTextsMakesOneTheOther) {
    const TemporaryFolder folder;
    std::mt19937 random(7);
    for (int round = 0; round < 150; ++round) {
        const int words = round % 3 == 0 ? 2 : round % 3 == 1 ? 10 : 1000;
        const std::string before = randomText(random, 60, words);
        const std::string after = randomText(random, 60, words);
        const std::string diff = unifiedDiff("a", before, after);
        // An empty file is one that patch may remove.
        if (diff.empty() || after.empty()) {
            EXPECT_EQ(diff.empty(), before == after);
            continue;
        }
        ASSERT_EQ(patched(folder, "a", before, diff), after) << diff;
    }
}

using Lines = std::vector<std::string_view>;

/// The number of lines that two lists have in common in their order.
std::size_t mostInCommon(const Lines& before, const Lines& after) {
    std::vector<std::size_t> row(after.size() + 1, 0);
    for (const std::string_view line : before) {
        std::size_t diagonal = 0;
        for (std::size_t j = 0; j < after.size(); ++j) {
            const std::size_t above = row[j + 1];
            row[j + 1] = line == after[j] ? diagonal + 1 : std::max(row[j], above);
            diagonal = above;
        }
    }
    return row.back();
}

TEST(LineChanges, AreTheFewest) {
    const Lines words = {"a", "b", "c", "d", "e"};
    std::mt19937 random(11);
    for (int round = 0; round < 20'000; ++round) {
        Lines before(random() % 14);
        Lines after(random() % 14);
        const auto any = [&] { return words[random() % (2U + random() % 4U)]; };
        std::generate(before.begin(), before.end(), any);
        std::generate(after.begin(), after.end(), any);
        std::size_t removed = 0;
        std::size_t at = 0;
        std::size_t atAfter = 0;
        for (const LineChange& change : lineChanges(before, after)) {
            ASSERT_EQ(change.beginBefore - at, change.beginAfter - atAfter);
            ASSERT_TRUE(std::equal(before.begin() + static_cast<std::ptrdiff_t>(at),
                                   before.begin() + static_cast<std::ptrdiff_t>(change.beginBefore),
                                   after.begin() + static_cast<std::ptrdiff_t>(atAfter)));
            removed += change.endBefore - change.beginBefore;
            at = change.endBefore;
            atAfter = change.endAfter;
        }
        ASSERT_EQ(before.size() - at, after.size() - atAfter);
        ASSERT_EQ(before.size() - removed, mostInCommon(before, after));
    }
}

TEST(LineChanges, OfLongListsThatDifferEverywhereLeadFromOneToTheOther) {
    std::mt19937 random(13);
    const Lines words = {"a", "b", "c", "d", "e", "f", "g", "h"};
    const auto any = [&] { return words[random() % words.size()]; };
    Lines before(20'000);
    Lines after(21'000);
    std::generate(before.begin(), before.end(), any);
    std::generate(after.begin(), after.end(), any);
    Lines result;
    std::size_t at = 0;
    for (const LineChange& change : lineChanges(before, after)) {
        for (; at < change.beginBefore; ++at) {
            result.push_back(before[at]);
        }
        for (std::size_t j = change.beginAfter; j < change.endAfter; ++j) {
            result.push_back(after[j]);
        }
        at = change.endBefore;
    }
    result.insert(result.end(), before.begin() + static_cast<std::ptrdiff_t>(at), before.end());
    EXPECT_EQ(result, after);
}

TEST(DiffForTerminal, IsInUtf8AndInColors) {
    const std::string diff = unifiedDiff("caf\xC3\xA9", "x\n\xE9\x1b\n", "x\n\x80\n");
    EXPECT_EQ(
        diffForTerminal(diff, TextEncoding::Windows1252, Colors::Off),
        "--- a/caf\xC3\xA9\n+++ b/caf\xC3\xA9\n@@ -1,2 +1,2 @@\n x\n-\xC3\xA9 \n+\xE2\x82\xAC\n");
    EXPECT_EQ(diffForTerminal(diff, TextEncoding::Windows1252, Colors::On),
              "\x1b[1m--- a/caf\xC3\xA9\x1b[0m\n\x1b[1m+++ b/caf\xC3\xA9\x1b[0m\n"
              "\x1b[36m@@ -1,2 +1,2 @@\x1b[0m\n x\n\x1b[31m-\xC3\xA9 \x1b[0m\n"
              "\x1b[32m+\xE2\x82\xAC\x1b[0m\n");
}

TEST(DiffForTerminal, ShowsTextsInUtf8AsTheyAre) {
    const std::string diff = unifiedDiff("a", "x\n\u0159\n", "x\n\U0001F600\n");
    EXPECT_EQ(diffForTerminal(diff, TextEncoding::Utf8, Colors::Off),
              "--- a/a\n+++ b/a\n@@ -1,2 +1,2 @@\n x\n-\u0159\n+\U0001F600\n");
}

}  // namespace
}  // namespace quorvane::cli
