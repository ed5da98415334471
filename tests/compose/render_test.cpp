#include "quorvane/compose/render.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "quorvane/diagnostics/engine/diagnosticRules.h"
#include "tests/compose/described.h"
#include "tests/support/FakePlatform.h"

namespace quorvane {
namespace {

using testing::HasSubstr;

constexpr std::string_view sheet = "{ name: normal; style-def: s; format: \\f0\\fs20 }\n";

std::string row(const std::string& paragraph) {
    return "(row\n(cell\n(para\n" + paragraph + "para)\ncell)\nrow)\n";
}

std::string extended(const std::string& body) {
    return "; quorvane 2\n(doc\n" + body + "doc)\n";
}

template <class Action>
Error errorOf(Action action) {
    try {
        action();
    } catch (const Error& error) {
        return error;
    }
    return Error({.message = "no error", .identifier = {}});
}

TEST(Render, MakesTheDocumentThatADriverMakes) {
    const std::string body = row("(pt=Vase {blue})\n(ps=normal)\n");
    Rendering rendering = render(extended(body), {.styleSheet = std::string(sheet)});
    EXPECT_EQ(rendering.document.rtf(), described(body, sheet));
    EXPECT_TRUE(rendering.diagnostics.empty());
}

TEST(Render, TakesDescriptionsInTheOriginalLanguage) {
    Rendering rendering = render("\xEF\xBB\xBF(doc\n(r\n(c\n(p\n(pt=\\b ř)\np)\nc)\nr)\ndoc)\n");
    EXPECT_THAT(rendering.document.rtf(), HasSubstr("\\b {\\uc1\\u345?}\\cell"));
    EXPECT_EQ(rendering.document.native()->PageWidth(), 12242);
}

TEST(Render, MakesADocumentThatCanBeChanged) {
    Rendering rendering = render(extended(row("(pt=a)\n")));
    rendering.document.row("10000001")[0].addParagraph("b");
    EXPECT_EQ(rendering.document.rtf(),
              described("(row\n(cell\n(para\n(pt=a)\npara)\n(para\n(pt=b)\npara)\ncell)\nrow)\n"));
}

TEST(Render, ReturnsWarnings) {
    const Rendering rendering = render(extended("; quorvane: ignore nonsense\n" + row("(pt=a)\n")));
    ASSERT_EQ(rendering.diagnostics.size(), 1U);
    EXPECT_EQ(rendering.diagnostics[0].severity, Severity::Warning);
    EXPECT_TRUE(
        render(extended("; quorvane: ignore nonsense\n" + row("(pt=a)\n")), {.check = false})
            .diagnostics.empty());
}

TEST(Render, ThrowsTheFirstErrorWithAllDiagnostics) {
    const Error error = errorOf([] {
        render(extended("(page=a44)\n; quorvane: ignore nonsense\n" + row("(pa=lft)\n(pt=a)\n")),
               {.path = "prices.rtfspec"});
    });
    EXPECT_EQ(error.file(), "prices.rtfspec");
    EXPECT_EQ(error.line(), 3);
    EXPECT_EQ(error.column(), 7);
    EXPECT_EQ(error.identifier(), "wrong-value");
    EXPECT_THAT(error.message(), testing::StartsWith("\"a44\" is not a page"));
    EXPECT_THAT(error.what(), testing::StartsWith("prices.rtfspec:3:7: \"a44\" is not a page"));
    EXPECT_EQ(error.diagnostics().size(), 3U);
}

TEST(Render, LocatesErrorsWithoutChecksToo) {
    const Error error = errorOf([] {
        render("(doc\n(r\n(rb=crimson)\n(c\n(p\n(pt=a)\np)\nc)\nr)\ndoc)", {.check = false});
    });
    EXPECT_EQ(error.line(), 3);
    EXPECT_THAT(error.message(), HasSubstr("crimson"));
}

TEST(Render, RefusesTextsThatWouldBreakTheDocumentUnlessToldNotToCheck) {
    const std::string broken = "(doc\n(r\n(c\n(p\n(pt={a)\np)\nc)\nr)\ndoc)\n";
    EXPECT_EQ(errorOf([&] { render(broken); }).identifier(), "unbalanced-brace");
    EXPECT_THAT(render(broken, {.check = false}).document.rtf(), HasSubstr(" {a\\cell"));
}

TEST(Render, RefusesBytesThatAreNotText) {
    EXPECT_EQ(errorOf([] { render("(doc\n\xFF"); }).line(), 2);
    EXPECT_EQ(errorOf([] { render(std::string("%PDF-1.4\n\0\0", 11)); }).identifier(),
              "not-a-text-file");
    EXPECT_EQ(check("(doc\n\xFF").size(), 1U);
    EXPECT_EQ(errorOf([] { render("(doc\ndoc)", {.styleSheet = "{ \xFF }"}); }).line(), 1);
}

TEST(Render, ReadsPicturesBesideTheDescription) {
    FakePlatform platform;
    platform.files["in/a.png"] = logoPng();
    const std::string body = row("(picture=a.png)\n");
    EXPECT_EQ(render(extended(body), {.path = "in/x.rtfspec"}, platform).document.rtf(),
              described(body));
    EXPECT_EQ(render(extended(body), {.pictures = [](const std::string&) { return logoPng(); }})
                  .document.rtf(),
              described(body));
    EXPECT_THAT(errorOf([&] { render(extended(body)); }).message(), HasSubstr("a.png"));
    EXPECT_THAT(errorOf([&] { render(extended(body), {.path = "x"}, platform); }).message(),
                HasSubstr("a.png"));
}

TEST(Render, ReadsFilesInEitherEncoding) {
    FakePlatform platform;
    platform.files["a.rtfspec"] = "(doc\n(r\n(c\n(p\n(pt=caf\xE9)\np)\nc)\nr)\ndoc)\n";
    platform.files["b.rtfspec"] = "(doc\n(r\n(c\n(p\n(pt=caf\xC3\xA9)\np)\nc)\nr)\ndoc)\n";
    EXPECT_EQ(renderFile("a.rtfspec", {}, platform).document.rtf(),
              renderFile("b.rtfspec", {}, platform).document.rtf());
    platform.files["a.rtfss"] = std::string(sheet);
    const std::string body = row("(pt=a)\n(ps=normal)\n");
    EXPECT_EQ(render(extended(body), {.styleSheetFile = "a.rtfss"}, platform).document.rtf(),
              described(body, sheet));
    EXPECT_EQ(errorOf([&] {
                  check(extended(body), {.styleSheetFile = "b.rtfss"}, platform);
              }).identifier(),
              "unreadable-file");
    const Error error = errorOf([&] { renderFile("c.rtfspec", {}, platform); });
    EXPECT_EQ(error.identifier(), "unreadable-file");
    EXPECT_EQ(error.file(), "c.rtfspec");
}

TEST(Check, ReturnsAllDiagnosticsThatAreNotIgnored) {
    const std::string text =
        extended("(page=a44)\n; quorvane: ignore wrong-value\n(footer=a|b|c|d)\n" +
                 row("(pt=a)\n(ps=odd)\n"));
    const std::vector<Diagnostic> found = check(text, {.styleSheet = std::string(sheet)});
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].place.line, 3);
    EXPECT_EQ(diagnosticRule(found[1].id).identifier, "undefined-style");
}

TEST(Errors, SayWhereTheyAreAsFarAsThatIsKnown) {
    EXPECT_STREQ(Error({.message = "a", .identifier = "b"}).what(), "a");
    EXPECT_STREQ(Error({.message = "a", .identifier = "b", .file = "f"}).what(), "f: a");
    EXPECT_STREQ(Error({.message = "a", .identifier = "b", .file = "f", .line = 2}).what(),
                 "f:2: a");
    EXPECT_STREQ(
        Error({.message = "a", .identifier = "b", .file = {}, .line = 2, .column = 3}).what(),
        "line 2:3: a");
}

}  // namespace
}  // namespace quorvane
