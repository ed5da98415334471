// The built program with --join.

#include <gmock/gmock.h>

#include <string>

#include "tests/cli/ProgramTest.h"
#include "tests/cli/runProgram.h"

namespace quorvane::cli {
namespace {

using testing::Contains;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class JoinTest : public ProgramTest {
protected:
    JoinTest() : ProgramTest({"render"}) {
        folder.write("a.rtfspec",
                     "; quorvane 2\n(doc\n(page={{page}})\n{{#title}}\n(header={{title}})\n"
                     "{{/title}}\n(r\n(c\n(cb={{color}})\n(p\n(pt={{@index}}: {{name}})\np)\nc)\n"
                     "r)\ndoc)\n");
        folder.write("data.jsonl",
                     R"({"name":"Ann","page":"a4","title":"To Ann","color":"#102030"})"
                     "\n"
                     R"({"name":"Bob","page":"a5","title":"","color":"#zzz"})"
                     "\n"
                     R"({"name":"Cleo","page":"a5","title":"","color":"#102031"})"
                     "\n"
                     R"({"name":"Dora","page":"a4","title":"","color":"#102030"})"
                     "\n");
        folder.write("good.csv", "name,page,title,color\nAnn,a4,,red\nBob,a4,,red\n");
    }
};

// The number of a color is the same in all sections, also after a record that fails.
TEST_F(JoinTest, MakesASectionOfEachRecord) {
    const ProgramResult result =
        run({"--data", "data.jsonl", "--each", "--join", "-o", "all.rtf", "a.rtfspec"});
    EXPECT_THAT(result.errors, StartsWith("a.rtfspec:9:5: error: record 2: \"#zzz\" is not a "));
    EXPECT_THAT(result.errors, EndsWith("data.jsonl: 1 record failed; all.rtf has 3 records\n"));
    EXPECT_EQ(result.status, 1);
    const std::string document = folder.read("all.rtf");
    EXPECT_THAT(
        document,
        EndsWith(
            ";\r\n\\red16\\green32\\blue48;\r\n\\red16\\green32\\blue49;}\r\n"
            "\\deftab360\\defformat\\margb1418\\margl1701\\margt1418\\margr1701\\paperw11906"
            "\\paperh16838\\pgnstart1\\widowctrl\r\n\r\n"
            "\\sectd\\sbkpage\\pgwsxn11906\\pghsxn16838\\marglsxn1701\\margrsxn1701\\margtsxn1418"
            "\\margbsxn1418\\pgnrestart\\pgnstarts1\r\n\r\n"
            "\\headery709\r\n{\\header\r\n\\pard\\plain \\tqc\\tx4252\\tqr\\tx8504\\sa0 To Ann"
            "\\tab \\tab \\par}\r\n"
            "{\\intbl\\trowd\\trql\\trgaph70\\trleft0 \\clcbpat58\\cellx8504 \r\n\r\n\r\n"
            "\\pard\\plain\\intbl 1: Ann\\cell\\row}\r\n"
            "\\pard\\plain\\sl-20\\slmult0\\fs2\\sect\r\n"
            "\\sectd\\sbkpage\\pgwsxn8391\\pghsxn11906\\marglsxn1701\\margrsxn1701\\margtsxn1418"
            "\\margbsxn1418\\pgnrestart\\pgnstarts1\r\n"
            "\\headery0{\\header\\pard\\plain\\fs2\\par}\\pard\\plain\\sl-20\\slmult0\\fs2\\par\r\n"
            "{\\intbl\\trowd\\trql\\trgaph70\\trleft0 \\clcbpat59\\cellx4989 \r\n\r\n\r\n"
            "\\pard\\plain\\intbl 3: Cleo\\cell\\row}\r\n"
            "\\pard\\plain\\sl-20\\slmult0\\fs2\\sect\r\n"
            "\\sectd\\sbkpage\\pgwsxn11906\\pghsxn16838\\marglsxn1701\\margrsxn1701\\margtsxn1418"
            "\\margbsxn1418\\pgnrestart\\pgnstarts1\r\n"
            "\\pard\\plain\\sl-20\\slmult0\\fs2\\par\r\n"
            "{\\intbl\\trowd\\trql\\trgaph70\\trleft0 \\clcbpat58\\cellx8504 \r\n\r\n\r\n"
            "\\pard\\plain\\intbl 4: Dora\\cell\\row}\r\n"
            "\\pard\\plain\\sl-20\\slmult0\\fs2\\par}"));
}

TEST_F(JoinTest, MakesADocumentThatTheCheckFindsClean) {
    const ProgramResult result = run({"--data", "good.csv", "--join", "a.rtfspec"});
    EXPECT_EQ(result.errors, "a.rtf has 2 records\n");
    EXPECT_EQ(result.status, 0);
    start.arguments = {"check", "--quiet", "a.rtf"};
    const ProgramResult checked = runProgram(start);
    EXPECT_EQ(checked.status, 0);
    EXPECT_EQ(checked.output, "");
}

TEST_F(JoinTest, WritesToStandardOutput) {
    run({"--data", "good.csv", "--join", "a.rtfspec"});
    const ProgramResult result = run({"--data", "good.csv", "--join", "-o", "-", "a.rtfspec"});
    EXPECT_EQ(result.output, folder.read("a.rtf"));
    EXPECT_EQ(result.errors, "<stdout> has 2 records\n");
}

TEST_F(JoinTest, ReportsTheRecords) {
    run({"--data", "good.csv", "--join", "--records", "2-", "--report", "report.jsonl",
         "a.rtfspec"});
    EXPECT_EQ(folder.read("report.jsonl"),
              "{\"record\":2,\"line\":3,\"status\":\"written\",\"file\":\"a.rtf\"}\n");
}

TEST_F(JoinTest, WritesNothingWithoutAGoodRecord) {
    const ProgramResult failed =
        run({"--data", "data.jsonl", "--join", "--records", "2-2", "a.rtfspec"});
    EXPECT_THAT(failed.errors, EndsWith("data.jsonl: 1 record failed; nothing was written\n"));
    EXPECT_EQ(failed.status, 1);
    folder.write("none.jsonl", "");
    const ProgramResult none = run({"--data", "none.jsonl", "--join", "a.rtfspec"});
    EXPECT_EQ(none.errors, "none.jsonl: there are no records; nothing was written\n");
    EXPECT_EQ(none.status, 1);
    EXPECT_THAT(folder.names(), Not(Contains("a.rtf")));
}

TEST_F(JoinTest, CreatesTheFolderOfTheDocument) {
    const ProgramResult without = run({"--data", "good.csv", "--join", "-o", "x/a", "a.rtfspec"});
    EXPECT_THAT(without.errors, HasSubstr("--mkdir creates it"));
    EXPECT_EQ(without.status, 2);
    EXPECT_EQ(run({"--data", "good.csv", "--join", "--mkdir", "-o", "x/a", "a.rtfspec"}).status, 0);
    EXPECT_THAT(folder.read("x/a"), StartsWith("{\\rtf1"));
}

TEST_F(JoinTest, RefusesOptionsThatMakeNoSense) {
    EXPECT_THAT(run({"--data", "good.csv", "--join", "-j", "2", "a.rtfspec"}).errors,
                HasSubstr("--join takes one record after the other; leave --jobs out"));
    EXPECT_THAT(run({"--data", "good.csv", "--join", "-o", "{{name}}.rtf", "a.rtfspec"}).errors,
                HasSubstr("--join writes one document; --output takes no tags then"));
    EXPECT_THAT(run({"--data", "good.csv", "--join", "--report", "a.rtf", "a.rtfspec"}).errors,
                HasSubstr("the report and the document would both be written to a.rtf"));
    EXPECT_THAT(run({"--data", "good.csv", "--join", "-o", "good.csv", "a.rtfspec"}).errors,
                HasSubstr("would replace good.csv"));
    EXPECT_THAT(run({"--join", "a.rtfspec"}).errors, HasSubstr("--data"));
}

}  // namespace
}  // namespace quorvane::cli
