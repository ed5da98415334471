// Handles of different threads share nothing. The thread sanitizer runs this (preset
// "threads").

#include <gtest/gtest.h>
#include <quorvane.h>

#include <array>
#include <cstddef>
#include <sstream>
#include <string>
#include <thread>

#include "tests/capi/support.h"

namespace quorvane::capi {
namespace {

constexpr std::size_t threadCount = 4;

/// Runs the same work on several threads and returns what each of them made.
template <class Work>
std::array<std::string, threadCount> madeByThreads(Work work) {
    std::array<std::string, threadCount> results;
    std::array<std::thread, threadCount> threads;
    for (std::size_t i = 0; i < threadCount; ++i) {
        threads[i] = std::thread([&, i] { results[i] = work(); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    return results;
}

std::string filledTemplates() {
    const JobHandle job = newJob();
    std::string all;
    for (int i = 0; i < 50; ++i) {
        const std::string data = R"({"name": "Dvořák )" + std::to_string(i) + R"("})";
        quorvane_job_set_data(job.get(), data.data(), data.size(), nullptr, 0);
        all += textOf([&](char** rtf, std::size_t* length) {
            return quorvane_job_render(
                job.get(),
                QUORVANE_TEXT("; quorvane 2\n(doc\n(row\n(cell\n(para\n(pt={{name}})\npara)\n"
                              "cell)\nrow)\ndoc)\n"),
                rtf, length);
        });
    }
    return all;
}

std::string builtDocuments() {
    std::string all;
    for (int i = 0; i < 50; ++i) {
        const DocumentHandle document = newDocument();
        const char* const texts[] = {"Mug {large}", "6"};
        quorvane_document_add_row(document.get(), texts, nullptr, 2, nullptr, 0, nullptr);
        all += textOf([&](char** rtf, std::size_t* length) {
            return quorvane_document_rtf(document.get(), rtf, length);
        });
    }
    return all;
}

std::string writtenTables() {
    std::string all;
    for (int i = 0; i < 50; ++i) {
        const TableHandle table = newTable();
        quorvane_table_add_column(table.get(), QUORVANE_TEXT("Article"), nullptr, 0,
                                  QUORVANE_ALIGN_DEFAULT);
        quorvane_table_begin(table.get());
        const char* const texts[] = {"Mug {large}"};
        quorvane_table_add_row(table.get(), texts, nullptr, 1);
        quorvane_table_finish(table.get());
        all += textOf([&](char** rtf, std::size_t* length) {
            return quorvane_table_take(table.get(), rtf, length);
        });
    }
    return all;
}

/// How many of the errors of wrong colors name the color of the thread.
std::string ownErrors() {
    std::ostringstream name;
    name << "color of " << std::this_thread::get_id();
    const std::string color = name.str();
    const DocumentHandle document = newDocument();
    const char* const texts[] = {"Mug"};
    quorvane_document_add_row(document.get(), texts, nullptr, 1, nullptr, 0, nullptr);
    int own = 0;
    for (int i = 0; i < 50; ++i) {
        quorvane_row_set_background(document.get(), 0, color.data(), color.size());
        const std::string message = quorvane_document_error(document.get())->message;
        own += message.find(color) != std::string::npos ? 1 : 0;
    }
    return std::to_string(own);
}

TEST(Threads, FillTemplatesWithJobsOfTheirOwn) {
    const std::string alone = filledTemplates();
    EXPECT_NE(alone.find("Dvo{\\uc1\\u345?}\\'E1k 49"), std::string::npos);
    for (const std::string& made : madeByThreads(filledTemplates)) {
        EXPECT_EQ(made, alone);
    }
}

TEST(Threads, BuildDocumentsOfTheirOwn) {
    const std::string alone = builtDocuments();
    EXPECT_NE(alone.find("Mug \\{large\\}"), std::string::npos);
    for (const std::string& made : madeByThreads(builtDocuments)) {
        EXPECT_EQ(made, alone);
    }
}

TEST(Threads, WriteTablesOfTheirOwn) {
    const std::string alone = writtenTables();
    EXPECT_NE(alone.find("Mug \\{large\\}"), std::string::npos);
    for (const std::string& made : madeByThreads(writtenTables)) {
        EXPECT_EQ(made, alone);
    }
}

TEST(Threads, HaveTheErrorsOfTheirOwnHandles) {
    for (const std::string& own : madeByThreads(ownErrors)) {
        EXPECT_EQ(own, "50");
    }
}

}  // namespace
}  // namespace quorvane::capi
