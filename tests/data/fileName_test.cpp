#include "data/fileName.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "data/Template.h"
#include "data/TemplateFilling.h"
#include "quorvane/base/values/RtfError.h"

namespace quorvane::data {
namespace {

using testing::HasSubstr;

/// The name of a file for a value {{x}}, or what is wrong with it.
std::string nameOf(const std::string& pattern, const std::string& x, std::size_t number = 7) {
    std::vector<TemplateError> errors;
    const Template compiled = compileFileName(pattern, errors);
    TemplateFilling filling(compiled, {});
    const DataValue record{.kind = DataValue::Kind::Object,
                           .items = {{.kind = DataValue::Kind::String, .text = x}},
                           .names = {"x"}};
    const std::vector<SourceLine>* lines = nullptr;
    if (errors.empty()) {
        lines = &filling.fill(record, errors, number);
    }
    return errors.empty() ? safeFileName(*lines->front().filled).path : errors.front().message;
}

TEST(FileName, IsFilledWithValues) {
    EXPECT_EQ(nameOf("out/{{x|upper}}-{{@index}}.rtf", "a7"), "out/A7-7.rtf");
    EXPECT_EQ(nameOf("{{#x}}with/{{/x}}{{@index}}.rtf", "yes"), "with/7.rtf");
    EXPECT_EQ(nameOf("{{x|date:yyyy-MM}}.rtf", "2026-11-22"), "2026-11.rtf");
    EXPECT_EQ(nameOf("{{x}}.rtf", "Dvo\u0159\u00E1k & S\u00F6hne"),
              "Dvo\u0159\u00E1k & S\u00F6hne.rtf");
}

TEST(FileName, HasNothingOfAValueThatNamesAFolder) {
    EXPECT_EQ(nameOf("out/{{x}}.rtf", "../../etc/passwd"), "out/_._.._etc_passwd.rtf");
    EXPECT_EQ(nameOf("out/{{x}}/a.rtf", ".."), "out/__/a.rtf");
    EXPECT_EQ(nameOf("out/{{x}}/a.rtf", "."), "out/_/a.rtf");
    EXPECT_EQ(nameOf("out/{{x}}/a.rtf", ""), "out/_/a.rtf");
    EXPECT_EQ(nameOf("{{x}}/a.rtf", "/"), "_/a.rtf");
    EXPECT_EQ(nameOf("{{x}}.rtf", "C:\\a"), "C__a.rtf");
}

TEST(FileName, DoesNotBecomeAFolderAboveThroughAValue) {
    EXPECT_EQ(nameOf("out/..{{x}}/a.rtf", ""), "out/.._/a.rtf");
    EXPECT_EQ(nameOf("out/.{{x}}./a.rtf", ""), "out/.._/a.rtf");
    EXPECT_EQ(nameOf("out/.{{x}}/a.rtf", ""), "out/._/a.rtf");
    EXPECT_EQ(nameOf("out\\.. {{x}}\\a.rtf", ""), "out\\.. _\\a.rtf");
    EXPECT_EQ(nameOf("..{{x}}", ""), ".._");
    EXPECT_EQ(nameOf("..{{x}}/a.rtf", "b"), "..b/a.rtf");
}

TEST(FileName, DoesNotLeadAwayThroughASection) {
    EXPECT_EQ(nameOf("out/..{{#x}}b{{/x}}/a.rtf", ""), "out/.._/a.rtf");
    EXPECT_EQ(nameOf("{{#x}}out{{/x}}/a.rtf", ""), "_/a.rtf");
    EXPECT_EQ(nameOf("{{#x}}out{{/x}}//a.rtf", ""), "_//a.rtf");
    EXPECT_EQ(nameOf("/{{#x}}out{{/x}}/a.rtf", ""), "/_/a.rtf");
    EXPECT_EQ(nameOf("{{#x}}a.rtf{{/x}}", ""), "_");
    EXPECT_EQ(nameOf("out/{{#x}}b/{{/x}}/a.rtf", ""), "out//a.rtf");
}

TEST(FileName, IsNotThatOfStandardOutput) {
    EXPECT_EQ(nameOf("{{x}}", "-"), "_");
    EXPECT_EQ(nameOf("-{{x}}", ""), "_");
    EXPECT_EQ(nameOf("out/{{x}}", "-"), "out/-");
    EXPECT_EQ(nameOf("{{x}}.rtf", "-"), "-.rtf");
}

TEST(FileName, HasNoCharactersThatASystemRefuses) {
    EXPECT_EQ(nameOf("a{{x}}b", "/\\:*?\"<>|"), "a_________b");
    EXPECT_EQ(nameOf("a{{x}}b", std::string("\0\t\n\x1F\x7F", 5)), "a_____b");
    EXPECT_EQ(nameOf("a{{x}}b", "\xFF-\xC3"), "a_-_b");
}

TEST(FileName, DoesNotBeginOrEndWithADotOrBlankOfAValue) {
    EXPECT_EQ(nameOf("{{x}}.rtf", ".hidden"), "_hidden.rtf");
    EXPECT_EQ(nameOf("{{x}}", " a. "), "_a._");
    EXPECT_EQ(nameOf("a{{x}}", "."), "a_");
    EXPECT_EQ(nameOf("a{{x}}b", " . "), "a . b");
    EXPECT_EQ(nameOf("{{x}}.rtf", ""), "_.rtf");
}

TEST(FileName, IsNotThatOfADevice) {
    EXPECT_EQ(nameOf("{{x}}.rtf", "CON"), "CON_.rtf");
    EXPECT_EQ(nameOf("{{x}}", "lpt1.tar.gz"), "lpt1_.tar.gz");
    EXPECT_EQ(nameOf("{{x}}/a.rtf", "nul"), "nul_/a.rtf");
    EXPECT_EQ(nameOf("{{x}}.rtf", "aux "), "aux _.rtf");
    EXPECT_EQ(nameOf("{{x}}.rtf", "com10"), "com10.rtf");
    EXPECT_EQ(nameOf("com/{{x}}.rtf", "con1"), "com/con1.rtf");
}

TEST(FileName, KeepsWhatIsWrittenOutsideTheTags) {
    EXPECT_EQ(nameOf("../a:b/.{{x}}.", "1"), "../a:b/.1.");
    EXPECT_EQ(nameOf("./../{{x}}", "1"), "./../1");
    EXPECT_EQ(nameOf("/{{x}}", "1"), "/1");
    EXPECT_EQ(nameOf("con/{{x}}", "1"), "con/1");
}

TEST(FileName, IsShort) {
    EXPECT_EQ(nameOf("{{x}}.rtf", std::string(500, 'a')), std::string(120, 'a') + ".rtf");
    EXPECT_EQ(nameOf("{{x}}", "a" + std::string(119, 'b') + "\u0159"), "a" + std::string(119, 'b'));
    EXPECT_EQ(nameOf("{{x}}", std::string(119, 'b') + "\u0159"), std::string(119, 'b'));
    EXPECT_EQ(nameOf("{{x}}", std::string(500, '\x80')), std::string(116, '_'));
    EXPECT_THROW(nameOf("{{x}}{{x}}{{x}}", std::string(100, 'a')), RtfError);
}

TEST(FileName, NeedsEveryValue) {
    EXPECT_EQ(nameOf("{{y}}.rtf", ""), "y is not in the data.");
    EXPECT_EQ(nameOf("{{x|number:2}}.rtf", "a"), "x: \"a\" is not a number.");
}

TEST(FileName, HasTagsThatMeanSomething) {
    EXPECT_THAT(nameOf("{{x.rtf", ""), HasSubstr("does not end"));
    EXPECT_THAT(nameOf("{{#x}}a.rtf", ""), HasSubstr("does not end"));
    EXPECT_THAT(nameOf("{{> x}}a.rtf", ""), HasSubstr("A partial stands on a line of its own"));
    EXPECT_THAT(nameOf("{{@last}}.rtf", ""), HasSubstr("not known before all are read"));
    EXPECT_THAT(nameOf("{{@index}}.rtf", "", 0), HasSubstr("stands outside a section for a list"));
}

}  // namespace
}  // namespace quorvane::data
