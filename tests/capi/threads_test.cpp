// Handles of different threads know nothing of each other. The thread sanitizer runs this (preset
// "threads").

#include <gtest/gtest.h>
#include <quorvane.h>

#include <array>
#include <cstddef>
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

std::string errors() {
    const DocumentHandle document = newDocument();
    std::string all;
    for (int i = 0; i < 50; ++i) {
        const std::string color = "color " + std::to_string(i);
        quorvane_row_set_background(document.get(), 0, color.data(), color.size());
        all += quorvane_document_error(document.get())->message;
    }
    return all;
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

TEST(Threads, HaveTheErrorsOfTheirOwnHandles) {
    const std::string alone = errors();
    EXPECT_FALSE(alone.empty());
    for (const std::string& made : madeByThreads(errors)) {
        EXPECT_EQ(made, alone);
    }
}

}  // namespace
}  // namespace quorvane::capi
