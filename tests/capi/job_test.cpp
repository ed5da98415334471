#include <gtest/gtest.h>
#include <quorvane.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "quorvane/compose/render.h"
#include "tests/capi/support.h"

namespace quorvane::capi {
namespace {

constexpr const char* description =
    "; quorvane 2\n(doc\n(row\n(cell\n(para\n(pt=a {b})\npara)\ncell)\nrow)\ndoc)\n";
constexpr const char* wrongDescription =
    "; quorvane 2\n(doc\n(page=a44)\n(row\n(cell\n(para\n(pt=a)\npara)\ncell)\nrow)\ndoc)\n";
constexpr const char* original = "(doc\n(r\n(c\n(p\n(pt=old)\np)\nc)\nr)\ndoc)\n";
constexpr const char* templateText =
    "; quorvane 2\n(doc\n(row\n(cell\n(para\n(pt={{name}} {{price | money}})\npara)\ncell)\nrow)\n"
    "doc)\n";

std::string rendered(const JobHandle& job, const char* text) {
    return textOf([&](char** bytes, size_t* length) {
        return quorvane_job_render(job.get(), QUORVANE_TEXT(text), bytes, length);
    });
}

std::string errorOf(const JobHandle& job) {
    return errorText(quorvane_job_error(job.get()));
}

std::vector<std::string> diagnosticsOf(const JobHandle& job) {
    std::vector<std::string> texts;
    for (size_t i = 0; i < quorvane_job_diagnostic_count(job.get()); ++i) {
        const quorvane_diagnostic* const each = quorvane_job_diagnostic(job.get(), i);
        texts.push_back(std::string(each->file) + ":" + std::to_string(each->line) + ":" +
                        std::to_string(each->column) + " " + each->identifier);
    }
    return texts;
}

using Texts = std::vector<std::string>;

class TemporaryFolder {
public:
    TemporaryFolder()
        : path_(std::filesystem::temp_directory_path() /
                ("quorvane-capi-" +
                 std::to_string(::testing::UnitTest::GetInstance()->random_seed()) + "-" +
                 ::testing::UnitTest::GetInstance()->current_test_info()->name())) {
        std::filesystem::create_directories(path_);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() { std::filesystem::remove_all(path_); }

    std::string file(const std::string& name) const { return (path_ / name).string(); }

private:
    std::filesystem::path path_;
};

std::string bytesOf(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

TEST(Job, RendersTheBytesOfTheCppLibrary) {
    const JobHandle job = newJob();
    EXPECT_EQ(rendered(job, description), render(description).document.rtf());
    EXPECT_EQ(rendered(job, original), render(original).document.rtf());
    EXPECT_EQ(quorvane_job_error(job.get())->status, QUORVANE_OK);
    EXPECT_EQ(quorvane_job_diagnostic_count(job.get()), 0U);
}

TEST(Job, RendersEachDescriptionByItself) {
    const JobHandle job = newJob();
    const std::string first = rendered(job, description);
    const std::string nothing = rendered(newJob(), "; nothing\n");
    EXPECT_EQ(rendered(job, "; nothing\n"), nothing);
    EXPECT_EQ(rendered(job, wrongDescription), "<none>");
    EXPECT_EQ(rendered(job, description), first);
}

TEST(Job, TakesTextsByTheirLength) {
    const JobHandle job = newJob();
    const std::string text = std::string(description) + "rest";
    EXPECT_EQ(textOf([&](char** bytes, size_t* length) {
                  return quorvane_job_render(job.get(), text.data(), text.size() - 4, bytes,
                                             length);
              }),
              rendered(job, description));
}

TEST(Job, RendersThroughACallback) {
    const JobHandle job = newJob();
    Received received;
    EXPECT_EQ(
        quorvane_job_render_to(job.get(), QUORVANE_TEXT(description), Received::write, &received),
        QUORVANE_OK);
    EXPECT_EQ(received.bytes, rendered(job, description));
}

TEST(Job, StopsWhenTheCallbackSaysSo) {
    const JobHandle job = newJob();
    Received received;
    received.result = 1;
    EXPECT_EQ(
        quorvane_job_render_to(job.get(), QUORVANE_TEXT(description), Received::write, &received),
        QUORVANE_STOPPED);
    EXPECT_EQ(received.calls, 1);
    EXPECT_EQ(errorOf(job), "stopped: The callback stopped the call.");
}

TEST(Job, WritesNothingOfAWrongDescription) {
    const JobHandle job = newJob();
    Received received;
    EXPECT_EQ(quorvane_job_render_to(job.get(), QUORVANE_TEXT(wrongDescription), Received::write,
                                     &received),
              QUORVANE_WRONG_CONTENT);
    EXPECT_EQ(received.calls, 0);
}

TEST(Job, RendersIntoAFile) {
    const TemporaryFolder folder;
    const JobHandle job = newJob();
    const std::string path = folder.file("out.rtf");
    EXPECT_EQ(
        quorvane_job_render_file(job.get(), QUORVANE_TEXT(description), path.data(), path.size()),
        QUORVANE_OK);
    EXPECT_EQ(bytesOf(path), rendered(job, description));
}

TEST(Job, ReportsAFileThatCannotBeWritten) {
    const TemporaryFolder folder;
    const JobHandle job = newJob();
    const std::string path = folder.file("missing/out.rtf");
    EXPECT_EQ(
        quorvane_job_render_file(job.get(), QUORVANE_TEXT(description), path.data(), path.size()),
        QUORVANE_FILE_ERROR);
    EXPECT_EQ(errorOf(job), path + ": unwritable-file: " + noFolder);
}

TEST(Job, ReportsWhereADescriptionIsWrong) {
    const JobHandle job = newJob();
    EXPECT_EQ(rendered(job, wrongDescription), "<none>");
    EXPECT_EQ(errorOf(job),
              "description:3:7: wrong-value: \"a44\" is not a page; write one of a3, a4, a5, a6, "
              "b5, letter, legal, tabloid, executive, each also with -landscape, or use "
              "paper-width and paper-height.");
    EXPECT_EQ(diagnosticsOf(job), Texts{"description:3:7 wrong-value"});
    const quorvane_diagnostic* const diagnostic = quorvane_job_diagnostic(job.get(), 0);
    EXPECT_EQ(diagnostic->severity, QUORVANE_ERROR);
    EXPECT_EQ(diagnostic->length, 3U);
    EXPECT_EQ(diagnostic->byte_offset, 24U);
    EXPECT_EQ(diagnostic->byte_length, 3U);
    EXPECT_EQ(quorvane_job_diagnostic(job.get(), 1), nullptr);
}

TEST(Job, HasTheNumberOfTheSystemsError) {
    const JobHandle job = newJob();
    EXPECT_EQ(rendered(job, "(doc\n(r\n(rb=pinkish)\n(c\n(p\n(pt=a)\np)\nc)\nr)\ndoc)\n"),
              "<none>");
    EXPECT_EQ(quorvane_job_error(job.get())->number, -2147221504 + 8);
}

TEST(Job, HasTheMessageWithThePlaceBeforeIt) {
    const JobHandle job = newJob();
    EXPECT_STREQ(quorvane_job_error_text(job.get()), "");
    quorvane_job_set_path(job.get(), QUORVANE_TEXT("order.rtfspec"));
    EXPECT_EQ(rendered(job, wrongDescription), "<none>");
    EXPECT_STREQ(quorvane_job_error_text(job.get()),
                 "order.rtfspec:3:7: \"a44\" is not a page; write one of a3, a4, a5, a6, b5, "
                 "letter, legal, tabloid, executive, each also with -landscape, or use "
                 "paper-width and paper-height.");
    EXPECT_EQ(quorvane_job_render_file(job.get(), QUORVANE_TEXT(description),
                                       QUORVANE_TEXT("/missing/order.rtf")),
              QUORVANE_FILE_ERROR);
    EXPECT_EQ(quorvane_job_error_text(job.get()), "/missing/order.rtf: " + noFolder);
    EXPECT_EQ(quorvane_job_ignore(job.get(), QUORVANE_TEXT("wrong-colour")),
              QUORVANE_WRONG_CONTENT);
    EXPECT_STREQ(quorvane_job_error_text(job.get()),
                 "\"wrong-colour\" is not the name of a diagnostic.");
}

TEST(Job, NamesItsPath) {
    const JobHandle job = newJob();
    quorvane_job_set_path(job.get(), QUORVANE_TEXT("folder/order.rtfspec"));
    EXPECT_EQ(rendered(job, wrongDescription), "<none>");
    EXPECT_EQ(diagnosticsOf(job), Texts{"folder/order.rtfspec:3:7 wrong-value"});
}

TEST(Job, ReportsWarningsIfItChecks) {
    const JobHandle job = newJob();
    const char* const text = "(doc\n(r\n(c\n(p\n(pt=<b>a</b>)\np)\nc)\nr)\ndoc)\n";
    EXPECT_NE(rendered(job, text), "<none>");
    EXPECT_EQ(diagnosticsOf(job), Texts{});
    quorvane_job_set_checks(job.get(), 1);
    EXPECT_NE(rendered(job, text), "<none>");
    EXPECT_EQ(diagnosticsOf(job), Texts{"description:5:5 html-tag"});
    EXPECT_EQ(quorvane_job_diagnostic(job.get(), 0)->severity, QUORVANE_WARNING);
}

TEST(Job, RefusesWhatBreaksTheDocumentIfItChecks) {
    const JobHandle job = newJob();
    const char* const text = "(doc\n(r\n(c\n(p\n(pt=a { b)\np)\nc)\nr)\ndoc)\n";
    EXPECT_NE(rendered(job, text), "<none>");
    quorvane_job_set_checks(job.get(), 1);
    EXPECT_EQ(rendered(job, text), "<none>");
    EXPECT_EQ(diagnosticsOf(job), Texts{"description:5:7 unbalanced-brace"});
}

TEST(Job, RendersWithAStylesheet) {
    const JobHandle job = newJob();
    constexpr const char* sheet = "{ name: normal; style-def: s; format: \\f0\\fs44 }";
    EXPECT_EQ(quorvane_job_set_stylesheet(job.get(), QUORVANE_TEXT(sheet), nullptr, 0),
              QUORVANE_OK);
    EXPECT_EQ(rendered(job, original), render(original, {.styleSheet = sheet}).document.rtf());
    EXPECT_NE(rendered(job, original).find("\\fs44"), std::string::npos);
    EXPECT_EQ(quorvane_job_set_stylesheet(job.get(), nullptr, 0, nullptr, 0), QUORVANE_OK);
    EXPECT_EQ(rendered(job, original), rendered(newJob(), original));
}

TEST(Job, KeepsItsStylesheetWhenANewOneIsWrong) {
    const JobHandle job = newJob();
    quorvane_job_set_stylesheet(
        job.get(), QUORVANE_TEXT("{ name: normal; style-def: s; format: \\f0\\fs44 }"), nullptr, 0);
    const std::string before = rendered(job, original);
    EXPECT_EQ(quorvane_job_set_stylesheet(job.get(), QUORVANE_TEXT("{ name: a; color: }\n{"),
                                          QUORVANE_TEXT("mine.rtfss")),
              QUORVANE_WRONG_CONTENT);
    EXPECT_STREQ(quorvane_job_error(job.get())->file, "mine.rtfss");
    EXPECT_GT(quorvane_job_diagnostic_count(job.get()), 0U);
    EXPECT_EQ(rendered(job, original), before);
}

TEST(Job, FillsTemplatesWithData) {
    const JobHandle job = newJob();
    EXPECT_EQ(quorvane_job_set_data(
                  job.get(), QUORVANE_TEXT("{\"name\": \"Vase\", \"price\": 1250}"), nullptr, 0),
              QUORVANE_OK);
    EXPECT_NE(rendered(job, templateText).find("Vase 1,250.00"), std::string::npos);
    EXPECT_EQ(quorvane_job_set_locale(job.get(), QUORVANE_TEXT("de")), QUORVANE_OK);
    EXPECT_NE(rendered(job, templateText).find("Vase 1.250,00"), std::string::npos);
    EXPECT_EQ(quorvane_job_set_locale(job.get(), nullptr, 0), QUORVANE_OK);
    EXPECT_NE(rendered(job, templateText).find("Vase 1,250.00"), std::string::npos);
}

TEST(Job, ReportsDataThatATemplateMisses) {
    const JobHandle job = newJob();
    quorvane_job_set_data(job.get(), QUORVANE_TEXT("{\"name\": \"Vase\"}"), nullptr, 0);
    EXPECT_EQ(rendered(job, templateText), "<none>");
    EXPECT_EQ(diagnosticsOf(job), Texts{"description:6:14 missing-name"});
}

TEST(Job, ReportsWrongData) {
    const JobHandle job = newJob();
    EXPECT_EQ(quorvane_job_set_data(job.get(), QUORVANE_TEXT("{\"name\": }"),
                                    QUORVANE_TEXT("order.json")),
              QUORVANE_WRONG_CONTENT);
    EXPECT_EQ(diagnosticsOf(job), Texts{"order.json:1:10 wrong-json"});
}

TEST(Job, RefusesAnUnknownLocale) {
    const JobHandle job = newJob();
    EXPECT_EQ(quorvane_job_set_locale(job.get(), QUORVANE_TEXT("klingon")), QUORVANE_WRONG_CONTENT);
    EXPECT_STREQ(quorvane_job_error(job.get())->identifier, "wrong-value");
}

int giveFile(void* user, quorvane_file_kind kind, const char* name, size_t length,
             const char** bytes, size_t* bytesLength) {
    *static_cast<std::string*>(user) += std::to_string(kind) + std::string(name, length) + ";";
    *bytes = "(row\n(cell\n(para\n(pt=from the partial)\npara)\ncell)\nrow)\n";
    *bytesLength = QUORVANE_NUL_TERMINATED;
    return kind == QUORVANE_PARTIAL ? 0 : 1;
}

TEST(Job, TakesPartialsAndPicturesFromACallback) {
    const JobHandle job = newJob();
    std::string asked;
    quorvane_job_set_files(job.get(), giveFile, &asked);
    quorvane_job_set_data(job.get(), QUORVANE_TEXT("{}"), nullptr, 0);
    EXPECT_NE(rendered(job, "; quorvane 2\n(doc\n{{> part}}\ndoc)\n").find("from the partial"),
              std::string::npos);
    EXPECT_EQ(asked, "1part.rtfpart;");
    EXPECT_EQ(rendered(job,
                       "; quorvane 2\n(doc\n(row\n(cell\n(para\n(picture=a.png)\npara)\ncell)\nrow)"
                       "\ndoc)\n"),
              "<none>");
    EXPECT_EQ(diagnosticsOf(job), Texts{"description:6:10 wrong-picture"});
}

TEST(Job, ReadsNoFileWithoutAPath) {
    const JobHandle job = newJob();
    EXPECT_EQ(rendered(job,
                       "; quorvane 2\n(doc\n(row\n(cell\n(para\n(picture=a.png)\npara)\ncell)\nrow)"
                       "\ndoc)\n"),
              "<none>");
    EXPECT_EQ(diagnosticsOf(job), Texts{"description:6:10 wrong-picture"});
    quorvane_job_set_data(job.get(), QUORVANE_TEXT("{}"), nullptr, 0);
    EXPECT_EQ(rendered(job, "; quorvane 2\n(doc\n{{> part}}\ndoc)\n"), "<none>");
    EXPECT_EQ(diagnosticsOf(job), Texts{"description:3:1 wrong-partial"});
}

TEST(Job, FindsPicturesBesideItsPathAndInAllowedFolders) {
    const JobHandle job = newJob();
    const std::string path = std::string(QUORVANE_EXAMPLES_FOLDER) + "/mine.rtfspec";
    quorvane_job_set_path(job.get(), path.data(), path.size());
    EXPECT_NE(rendered(job,
                       "; quorvane 2\n(doc\n(row\n(cell\n(para\n(picture=parts-logo.png)\npara)\n"
                       "cell)\nrow)\ndoc)\n")
                  .find("\\pict"),
              std::string::npos);
    const std::string below = std::string(QUORVANE_EXAMPLES_FOLDER) + "/c/mine.rtfspec";
    quorvane_job_set_path(job.get(), below.data(), below.size());
    constexpr const char* above =
        "; quorvane 2\n(doc\n(row\n(cell\n(para\n(picture=../parts-logo.png)\npara)\ncell)\nrow)\n"
        "doc)\n";
    EXPECT_EQ(rendered(job, above), "<none>");
    quorvane_job_allow_pictures(job.get(), QUORVANE_TEXT(QUORVANE_EXAMPLES_FOLDER));
    EXPECT_NE(rendered(job, above).find("\\pict"), std::string::npos);
}

TEST(Job, ReadsWindows1252IfItIsAsked) {
    const JobHandle job = newJob();
    const char* const text = "(doc\n(r\n(c\n(p\n(pt=caf\xE9)\np)\nc)\nr)\ndoc)\n";
    EXPECT_EQ(rendered(job, text), "<none>");
    EXPECT_EQ(diagnosticsOf(job), Texts{"description:5:8 not-utf-8"});
    EXPECT_EQ(quorvane_job_set_encoding(job.get(), QUORVANE_WINDOWS_1252), QUORVANE_OK);
    EXPECT_NE(rendered(job, text).find("caf\xE9"), std::string::npos);
    EXPECT_EQ(quorvane_job_set_encoding(job.get(), QUORVANE_ANY_ENCODING), QUORVANE_OK);
    EXPECT_NE(rendered(job, text).find("caf\xE9"), std::string::npos);
}

TEST(Job, ChecksDescriptions) {
    const JobHandle job = newJob();
    EXPECT_EQ(quorvane_job_check(job.get(), QUORVANE_TEXT(wrongDescription), QUORVANE_ANY_LANGUAGE),
              QUORVANE_OK);
    EXPECT_EQ(diagnosticsOf(job), Texts{"description:3:7 wrong-value"});
    EXPECT_EQ(quorvane_job_check(job.get(), QUORVANE_TEXT(description), QUORVANE_DESCRIPTION),
              QUORVANE_OK);
    EXPECT_EQ(diagnosticsOf(job), Texts{});
}

TEST(Job, ChecksTemplatesWithAndWithoutData) {
    const JobHandle job = newJob();
    quorvane_job_check(job.get(), QUORVANE_TEXT(templateText), QUORVANE_ANY_LANGUAGE);
    EXPECT_EQ(diagnosticsOf(job), Texts{});
    quorvane_job_set_data(job.get(), QUORVANE_TEXT("{\"price\": 1}"), nullptr, 0);
    quorvane_job_check(job.get(), QUORVANE_TEXT(templateText), QUORVANE_ANY_LANGUAGE);
    EXPECT_EQ(diagnosticsOf(job), Texts{"description:6:5 missing-name"});
}

TEST(Job, ChecksStylesheetsAndRtf) {
    const JobHandle job = newJob();
    quorvane_job_check(job.get(), QUORVANE_TEXT("{ name: a; style-def: x; format: silver }"),
                       QUORVANE_STYLESHEET);
    EXPECT_EQ(diagnosticsOf(job), Texts{"stylesheet:1:23 bad-style-kind"});
    quorvane_job_check(job.get(), QUORVANE_TEXT("{\\rtf1 text"), QUORVANE_ANY_LANGUAGE);
    EXPECT_EQ(diagnosticsOf(job), Texts{"document:1:1 unclosed-group"});
}

TEST(Job, ReportsAFileNamedAsAnotherLanguage) {
    const JobHandle job = newJob();
    quorvane_job_set_path(job.get(), QUORVANE_TEXT("order.rtf"));
    quorvane_job_check(job.get(), QUORVANE_TEXT(description), QUORVANE_ANY_LANGUAGE);
    EXPECT_EQ(diagnosticsOf(job), Texts{"order.rtf:2:1 wrong-extension"});
}

TEST(Job, ReportsWhatIsNoText) {
    const JobHandle job = newJob();
    quorvane_job_check(job.get(), QUORVANE_TEXT("%PDF-1.4\n"), QUORVANE_ANY_LANGUAGE);
    EXPECT_EQ(diagnosticsOf(job), Texts{"description:1:1 not-a-text-file"});
}

TEST(Job, LeavesOutDiagnosticsAndReportsOthers) {
    const JobHandle job = newJob();
    EXPECT_EQ(quorvane_job_ignore(job.get(), QUORVANE_TEXT("wrong-value")), QUORVANE_OK);
    EXPECT_EQ(rendered(job, wrongDescription), "<none>");
    EXPECT_EQ(diagnosticsOf(job), Texts{});
    EXPECT_STREQ(quorvane_job_error(job.get())->identifier, "wrong-value");
    EXPECT_EQ(quorvane_job_ignore(job.get(), QUORVANE_TEXT("nonsense")), QUORVANE_WRONG_CONTENT);
    EXPECT_EQ(quorvane_job_enable(job.get(), QUORVANE_TEXT("nonsense")), QUORVANE_WRONG_CONTENT);
    EXPECT_EQ(quorvane_job_enable(job.get(), QUORVANE_TEXT("wrong-value")), QUORVANE_OK);
}

TEST(Job, ReportsTheStylesThatNoCheckedDescriptionUses) {
    const JobHandle job = newJob();
    const std::string sheet =
        "{ name: a; style-def: s; format: \\f0 }\n{ name: b; style-def: s; format: \\f0 }\n";
    const auto checked = [&](const char* style) {
        const std::string text =
            std::string("(doc\n(r\n(c\n(p\n(pt=x)\n(ps=") + style + ")\np)\nc)\nr)\ndoc)\n";
        EXPECT_EQ(quorvane_job_check(job.get(), QUORVANE_TEXT(text.c_str()), QUORVANE_DESCRIPTION),
                  QUORVANE_OK);
        return diagnosticsOf(job).size();
    };
    EXPECT_EQ(quorvane_job_set_stylesheet(job.get(), QUORVANE_TEXT(sheet.c_str()), nullptr, 0),
              QUORVANE_OK);
    EXPECT_EQ(checked("a"), 0U);
    EXPECT_EQ(quorvane_job_enable(job.get(), QUORVANE_TEXT("unused-style")), QUORVANE_OK);
    EXPECT_EQ(checked("a"), 1U);
    EXPECT_STREQ(quorvane_job_diagnostic(job.get(), 0)->identifier, "unused-style");
    EXPECT_EQ(checked("b"), 0U);
}

int countDiagnostic(void* user, const quorvane_diagnostic* diagnostic) {
    ++*static_cast<int*>(user);
    return diagnostic->severity == QUORVANE_WARNING ? 1 : 0;
}

TEST(Job, HandsDiagnosticsToACallbackThatCanStop) {
    const JobHandle job = newJob();
    int count = 0;
    quorvane_job_set_diagnostic_callback(job.get(), countDiagnostic, &count);
    EXPECT_EQ(rendered(job, wrongDescription), "<none>");
    EXPECT_EQ(quorvane_job_error(job.get())->status, QUORVANE_WRONG_CONTENT);
    EXPECT_EQ(count, 1);
    EXPECT_EQ(quorvane_job_check(job.get(),
                                 QUORVANE_TEXT("(doc\n(r\n(c\n(p\n(pt=<b>a</b>)\np)\nc)\nr)\ndoc)"),
                                 QUORVANE_ANY_LANGUAGE),
              QUORVANE_STOPPED);
    EXPECT_EQ(count, 2);
}

std::string formatted(const JobHandle& job, const char* text, quorvane_names names) {
    return textOf([&](char** bytes, size_t* length) {
        return quorvane_job_format(job.get(), QUORVANE_TEXT(text), QUORVANE_ANY_LANGUAGE, names,
                                   bytes, length);
    });
}

TEST(Job, FormatsDescriptionsAndStylesheets) {
    const JobHandle job = newJob();
    EXPECT_EQ(
        formatted(job, "(doc\n(r\n(c\n(p\n(pt=a)\np)\nc)\nr)\ndoc)\n", QUORVANE_NAMES_LONG),
        "(doc\n  (row\n    (cell\n      (para\n        (para-text=a)\n      para)\n    cell)\n"
        "  row)\ndoc)\n");
    EXPECT_EQ(formatted(job, "(doc\n(r\n(rb=red)\nr)\ndoc)\n", QUORVANE_NAMES_SHORT),
              "(doc\n  (r\n    (rb=red)\n  r)\ndoc)\n");
    EXPECT_EQ(formatted(job, "{name:a;style-def:s;format:\\b}", QUORVANE_NAMES_KEPT),
              "{ name: a; style-def: s; format: \\b }\n");
}

TEST(Job, DoesNotFormatOtherTexts) {
    const JobHandle job = newJob();
    EXPECT_EQ(formatted(job, "{\\rtf1 text}", QUORVANE_NAMES_KEPT), "<none>");
    EXPECT_EQ(errorOf(job), "wrong-value: The text is neither a description nor a stylesheet.");
    EXPECT_EQ(formatted(job, "caf\xE9", QUORVANE_NAMES_KEPT), "<none>");
    EXPECT_STREQ(quorvane_job_error(job.get())->identifier, "not-utf-8");
}

TEST(Job, RefusesWrongArguments) {
    const JobHandle job = newJob();
    char* bytes = nullptr;
    size_t length = 0;
    EXPECT_EQ(quorvane_job_render(job.get(), QUORVANE_TEXT(description), nullptr, &length),
              QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_job_render(job.get(), QUORVANE_TEXT(description), &bytes, nullptr),
              QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_job_render(job.get(), nullptr, 5, &bytes, &length), QUORVANE_WRONG_CALL);
    EXPECT_EQ(errorOf(job), "wrong-call: A text is null, and its length is not 0.");
    EXPECT_EQ(quorvane_job_render_to(job.get(), QUORVANE_TEXT(description), nullptr, nullptr),
              QUORVANE_WRONG_CALL);
    EXPECT_EQ(errorOf(job), "wrong-call: The argument write is null.");
    EXPECT_EQ(quorvane_job_check(job.get(), QUORVANE_TEXT("a"), 4), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_job_set_encoding(job.get(), -1), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_job_new(nullptr), QUORVANE_WRONG_CALL);
}

}  // namespace
}  // namespace quorvane::capi
