#include <gtest/gtest.h>
#include <quorvane.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <utility>

#include "tests/capi/support.h"
#include "tests/support/failingAllocations.h"

// Memory runs out at each place of a run. The call that it runs out in returns so, and the handle
// can be used again and be released.

namespace quorvane::capi {
namespace {

constexpr const char* templateText =
    "; quorvane 2\n(doc\n(row\n(cell\n(para\n(pt={{name}})\npara)\ncell)\nrow)\ndoc)\n";
constexpr const char* sheet = "{ name: normal; style-def: s; format: \\f0\\fs44 }";

/// Runs a call with its first allocation failing, then with its second, and so on until it has
/// enough memory. Returns that status; "internal error" if no allocation failed.
template <class Call>
quorvane_status withoutMemory(Call call) {
    for (long successes = 0;; ++successes) {
        failingAllocations::successesLeft = successes;
        const quorvane_status status = call();
        failingAllocations::successesLeft = -1;
        if (status != QUORVANE_OUT_OF_MEMORY) {
            return successes > 0 ? status : QUORVANE_INTERNAL_ERROR;
        }
    }
}

TEST(OutOfMemory, LeavesNoHandle) {
    quorvane_job* job = nullptr;
    EXPECT_EQ(withoutMemory([&] {
                  const quorvane_status status = quorvane_job_new(&job);
                  return (status == QUORVANE_OK) == (job != nullptr) ? status : QUORVANE_STOPPED;
              }),
              QUORVANE_OK);
    quorvane_job_free(job);
    quorvane_table* table = nullptr;
    EXPECT_EQ(withoutMemory([&] {
                  const quorvane_status status = quorvane_table_new(&table);
                  return (status == QUORVANE_OK) == (table != nullptr) ? status : QUORVANE_STOPPED;
              }),
              QUORVANE_OK);
    quorvane_table_free(table);
    quorvane_document* document = nullptr;
    EXPECT_EQ(withoutMemory([&] {
                  const quorvane_status status = quorvane_document_new(&document);
                  return (status == QUORVANE_OK) == (document != nullptr) ? status
                                                                          : QUORVANE_STOPPED;
              }),
              QUORVANE_OK);
    quorvane_document_free(document);
}

std::string renderedTemplate(const JobHandle& job) {
    return textOf([&](char** bytes, size_t* length) {
        return quorvane_job_render(job.get(), QUORVANE_TEXT(templateText), bytes, length);
    });
}

TEST(OutOfMemory, EndsTheCallsOfAJobAlone) {
    const JobHandle enough = newJob();
    quorvane_job_set_stylesheet(enough.get(), QUORVANE_TEXT(sheet), nullptr, 0);
    quorvane_job_set_data(enough.get(), QUORVANE_TEXT("{\"name\": \"Vase\"}"), nullptr, 0);
    const std::string expected = renderedTemplate(enough);

    const JobHandle job = newJob();
    EXPECT_EQ(withoutMemory([&] {
                  return quorvane_job_set_stylesheet(job.get(), QUORVANE_TEXT(sheet), nullptr, 0);
              }),
              QUORVANE_OK);
    EXPECT_EQ(withoutMemory([&] {
                  return quorvane_job_set_data(job.get(), QUORVANE_TEXT("{\"name\": \"Vase\"}"),
                                               nullptr, 0);
              }),
              QUORVANE_OK);
    char* bytes = nullptr;
    size_t length = 0;
    EXPECT_EQ(withoutMemory([&] {
                  return quorvane_job_render(job.get(), QUORVANE_TEXT(templateText), &bytes,
                                             &length);
              }),
              QUORVANE_OK);
    EXPECT_EQ(std::string(bytes, length), expected);
    quorvane_free(bytes);
    EXPECT_EQ(withoutMemory([&] {
                  return quorvane_job_check(job.get(),
                                            QUORVANE_TEXT("(doc\n(r\n(rb=x)\nr)\ndoc)\n"),
                                            QUORVANE_DESCRIPTION);
              }),
              QUORVANE_OK);
    EXPECT_EQ(withoutMemory([&] {
                  return quorvane_job_render(job.get(), QUORVANE_TEXT("; quorvane 2\n(doc\n"),
                                             &bytes, &length);
              }),
              QUORVANE_WRONG_CONTENT);
    EXPECT_EQ(renderedTemplate(job), expected);
}

TEST(OutOfMemory, IsTheErrorOfTheHandle) {
    const JobHandle job = newJob();
    failingAllocations::successesLeft = 0;
    const quorvane_status status =
        quorvane_job_set_stylesheet(job.get(), QUORVANE_TEXT(sheet), nullptr, 0);
    failingAllocations::successesLeft = -1;
    EXPECT_EQ(status, QUORVANE_OUT_OF_MEMORY);
    EXPECT_EQ(errorText(quorvane_job_error(job.get())),
              "out-of-memory: There is not enough memory.");
    EXPECT_STREQ(quorvane_job_error_text(job.get()), "There is not enough memory.");
}

/// Makes a table with its allocations failing one after the other. `prepare` is the first call.
template <class Prepare>
void expectTableWithoutHarm(Prepare prepare) {
    for (long successes = 0;; ++successes) {
        TableHandle table = newTable();
        char* bytes = nullptr;
        size_t length = 0;
        const char* const texts[] = {"a text that is too long to be kept without an allocation"};
        failingAllocations::successesLeft = successes;
        quorvane_status status = prepare(table.get());
        status = status ? status
                        : quorvane_table_add_column(table.get(), QUORVANE_TEXT("Heading"), nullptr,
                                                    0, QUORVANE_ALIGN_DEFAULT);
        status = status ? status : quorvane_table_begin(table.get());
        status = status ? status : quorvane_table_add_row(table.get(), texts, nullptr, 1);
        status = status ? status : quorvane_table_finish(table.get());
        status = status ? status : quorvane_table_take(table.get(), &bytes, &length);
        failingAllocations::successesLeft = -1;
        if (status == QUORVANE_OK) {
            EXPECT_GT(successes, 100);
            quorvane_free(bytes);
            return;
        }
        ASSERT_EQ(status, QUORVANE_OUT_OF_MEMORY);
    }
}

TEST(OutOfMemory, EndsATableWithoutHarm) {
    expectTableWithoutHarm([](quorvane_table*) { return QUORVANE_OK; });
}

TEST(OutOfMemory, EndsATableWithFittedColumnsWithoutHarm) {
    expectTableWithoutHarm(quorvane_table_fit_columns);
}

/// Makes a table of data in memory, or of a file if there is a path, with its allocations failing
/// one after the other.
void expectDataTableWithoutHarm(const char* data, const std::string& path) {
    for (long successes = 0;; ++successes) {
        TableHandle table = newTable();
        char* bytes = nullptr;
        size_t length = 0;
        failingAllocations::successesLeft = successes;
        quorvane_status status = path.empty()
                                     ? quorvane_table_set_data(table.get(), QUORVANE_TEXT(data),
                                                               QUORVANE_ANY_DATA, nullptr, 0)
                                     : quorvane_table_set_data_file(table.get(), path.data(),
                                                                    path.size(), QUORVANE_ANY_DATA);
        for (const auto& [option, value] :
             {std::pair(QUORVANE_TABLE_SORT, "a name that is not short:desc"),
              std::pair(QUORVANE_TABLE_KEEP_GOING, "yes"),
              std::pair(QUORVANE_TABLE_TOTAL, "price")}) {
            status =
                status ? status : quorvane_table_set(table.get(), option, QUORVANE_TEXT(value));
        }
        status = status ? status : quorvane_table_begin(table.get());
        status = status ? status : quorvane_table_finish(table.get());
        status = status ? status : quorvane_table_take(table.get(), &bytes, &length);
        failingAllocations::successesLeft = -1;
        if (status == QUORVANE_OK) {
            EXPECT_GT(successes, 100);
            EXPECT_EQ(quorvane_table_diagnostic_count(table.get()), 1U);
            quorvane_free(bytes);
            return;
        }
        ASSERT_EQ(status, QUORVANE_OUT_OF_MEMORY);
    }
}

TEST(OutOfMemory, EndsATableOfDataWithoutHarm) {
    const char* const csv =
        "a name that is not short,price\na text that is too long to be kept so,1\nb,2\nc\n";
    expectDataTableWithoutHarm(csv, {});
    expectDataTableWithoutHarm(
        "{\"a name that is not short\": \"a text\", \"price\": 1}\n{\"a name that is not "
        "short\": \"\\u0001\", \"price\": 2}\n",
        {});
    const std::string path = ::testing::TempDir() + "/quorvane-scarce.csv";
    std::ofstream(path) << csv;
    expectDataTableWithoutHarm(nullptr, path);
    std::filesystem::remove(path);
}

TEST(OutOfMemory, LeavesADocumentAsItWas) {
    const DocumentHandle document = newDocument();
    const char* const texts[] = {"a text that is too long to be kept without an allocation", "b"};
    const auto bytesOf = [&] {
        return textOf([&](char** bytes, size_t* length) {
            return quorvane_document_rtf(document.get(), bytes, length);
        });
    };
    const std::string empty = bytesOf();
    for (long successes = 0;; ++successes) {
        failingAllocations::successesLeft = successes;
        const quorvane_status status =
            quorvane_document_add_row(document.get(), texts, nullptr, 2, nullptr, 0, nullptr);
        failingAllocations::successesLeft = -1;
        if (status == QUORVANE_OK) {
            break;
        }
        ASSERT_EQ(status, QUORVANE_OUT_OF_MEMORY);
        ASSERT_EQ(bytesOf(), empty);
    }
    const std::string full = bytesOf();
    EXPECT_NE(full, empty);
    char* bytes = nullptr;
    size_t length = 0;
    EXPECT_EQ(withoutMemory([&] { return quorvane_document_rtf(document.get(), &bytes, &length); }),
              QUORVANE_OK);
    EXPECT_EQ(std::string(bytes, length), full);
    quorvane_free(bytes);
}

}  // namespace
}  // namespace quorvane::capi
