#include "cli/DiagnosticExcerpt.h"

#include <gtest/gtest.h>

#include <string>

#include "quorvane/diagnostics/engine/SourceText.h"

namespace quorvane::cli {
namespace {

/// The excerpt at a part of a file in UTF-8, with the marked part in brackets.
std::string excerpt(const std::string& bytes, const std::string& part) {
    const TextEncoding encoding = encodingOf(bytes, EncodingChoice::Utf8);
    const std::string text = decodedText(bytes, encoding);
    const SourceText source(text, encoding);
    const std::size_t at = text.find(part);
    const DiagnosticExcerpt shown =
        excerptAt(source.place(at, at + part.size()), windowOf(bytes, encoding));
    return shown.before + "[" + shown.marked + "]" + shown.after;
}

std::string repeated(const std::string& text, int times) {
    std::string result;
    for (; times > 0; --times) {
        result += text;
    }
    return result;
}

TEST(DiagnosticExcerpt, ShowsALineInUtf8) {
    EXPECT_EQ(excerpt("x\n\u0159\u4E2D(a)\U0001F600\ny", "(a)"), "\u0159\u4E2D[(a)]\U0001F600");
    EXPECT_EQ(excerpt("\u0159", "\u0159"), "[\u0159]");
}

TEST(DiagnosticExcerpt, DoesNotShowTheByteOrderMark) {
    EXPECT_EQ(excerpt("\xEF\xBB\xBF\u0159(a", "(a"), "\u0159[(a]");
}

TEST(DiagnosticExcerpt, CutsALongLineBetweenCharacters) {
    for (const std::string character : {"a", "\u0159", "\u4E2D", "\U0001F600"}) {
        const std::string many = repeated(character, 300);
        EXPECT_EQ(excerpt(many + "[" + many, "["),
                  "..." + repeated(character, 80) + "[[]" + repeated(character, 60) + "...");
        EXPECT_EQ(excerpt(repeated(character, 80) + "[" + repeated(character, 60), "["),
                  repeated(character, 80) + "[[]" + repeated(character, 60));
        EXPECT_EQ(excerpt("x" + many, many),
                  "x[" + repeated(character, 100) + "]" + repeated(character, 60) + "...");
    }
}

TEST(DiagnosticExcerpt, HasBlanksForCharactersThatWouldMoveOthers) {
    EXPECT_EQ(excerpt("\u202E\u2067(a\u0085\u2028", "(a"), "  [(a]  ");
}

}  // namespace
}  // namespace quorvane::cli
