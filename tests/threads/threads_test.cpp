// Documents and drivers of different threads know nothing of each other, and each thread has a
// current error of its own. The thread sanitizer runs this (preset "threads").

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <string>
#include <thread>

#include "quorvane/driver/CRtfDriver.h"
#include "quorvane/support/CStringList.h"
#include "quorvane/support/currentError.h"
#include "tests/support/FakePlatform.h"

namespace quorvane {
namespace {

constexpr const char* styleSheet =
    "{ name: normal; style-def: s; format: \\f9 }{ name: strong; style-def: cs; format: \\b }"
    "{ name: shaded; style-def: cell; format: navy-blue }";

std::string descriptionOf(int number) {
    return "(doc\n(paper-width=" + std::to_string(9000 + number) +
           ")\n(r\n(rb=red)\n(c\n(cs=shaded)\n(cmf=data)\n(p\n(pt=<strong=" +
           std::to_string(number) + "> text)\np)\nc)\nr)\ndoc)";
}

/// Builds and commits a document through the object model.
std::string builtDocument(FakePlatform& platform, CRtfDoc& document, int number) {
    document.ClearStructure();
    for (int i = 0; i < 3; ++i) {
        document.TableRows()->AddTail("row" + std::to_string(i));
        const Ref<CRtfTableCells> cells = document.TableRows()->PeekTail()->TableCells();
        cells->AddTail();
        cells->AddHead();
        cells->PeekTail()->setStyle("shaded");
        cells->PeekTail()->setWidth(ePercent, 30);
        cells->PeekHead()->Paragraphs()->AddTail();
        cells->PeekHead()->Paragraphs()->PeekTail()->setText("<strong=" + std::to_string(number) +
                                                             ">");
    }
    document.Commit("document.rtf");
    return platform.files["document.rtf"];
}

/// A driver with the stylesheet.
Ref<CRtfDriver> styledDriver(FakePlatform& platform, bool erroneousInput) {
    const Ref<CRtfDriver> driver = CRtfDriver::create(platform);
    driver->setErroneousInput(erroneousInput);
    driver->LoadStyleSheetFromMemmory(styleSheet);
    return driver;
}

/// What one thread does: two documents of its own and two drivers, in turns.
void work(int number, std::string& failure) {
    FakePlatform platform;
    const std::array<Ref<CRtfDoc>, 2> documents{CRtfDoc::create(platform),
                                                CRtfDoc::create(platform)};
    const std::array<Ref<CRtfDriver>, 2> drivers{styledDriver(platform, true),
                                                 styledDriver(platform, false)};
    documents[0]->LoadStyleSheetFromMemmory(styleSheet);
    int errors = 0;
    for (const Ref<CRtfDriver>& driver : drivers) {
        driver->setNotifyErrorHandler([&errors](CRtfDriver&, const RtfError&) { ++errors; });
    }
    std::array<std::string, 4> first;
    for (int round = 0; round < 40; ++round) {
        drivers[0]->ParseFromMemmory(descriptionOf(number));
        drivers[1]->ParseFromMemmory(descriptionOf(number + 100));
        const std::array<std::string, 4> texts{builtDocument(platform, *documents[0], number),
                                               builtDocument(platform, *documents[1], number),
                                               drivers[0]->Contents(), drivers[1]->Contents()};
        if (round == 0) {
            first = texts;
        }
        const auto paperWidth = [](int of) { return "paperw" + std::to_string(9000 + of); };
        if (texts != first || texts[2].find(paperWidth(number)) == std::string::npos ||
            texts[3].find(paperWidth(number + 100)) == std::string::npos) {
            failure = "round " + std::to_string(round);
        }
        drivers[0]->ParseFromMemmory("(doc\n(r\n(rb=crimson)\n(c\nc)\nr)\ndoc)");
        if (errors != 2 * (round + 1) || !currentError() ||
            currentError()->description != "crimson isn't a recognized color.") {
            failure = "errors";
        }
        // The random numbers of sorting, the lists and the patterns are each thread's own too.
        CStringList list;
        list.AddTail("^ab");
        list.AddTail("^aa");
        list.SortBySubField("a");
        if (list.GetHead() != "^aa" || list.Find("*b") != 2) {
            failure = "list";
        }
    }
    for (const Ref<CRtfDriver>& driver : drivers) {
        driver->setNotifyErrorHandler({});
    }
}

TEST(Threads, WorkOnDocumentsOfTheirOwnWithoutKnowingOfEachOther) {
    std::array<std::string, 2> failures;
    std::thread one(work, 1, std::ref(failures[0]));
    std::thread other(work, 2, std::ref(failures[1]));
    one.join();
    other.join();

    EXPECT_EQ(failures[0], "");
    EXPECT_EQ(failures[1], "");
}

/// Raises an error, waits until the other thread raised its own, and returns the current one.
std::int32_t errorAfterTheOthers(const char* key, std::atomic<int>& raised) {
    const Ref<CRtfDoc> document = CRtfDoc::create();
    document->TableRows()->AddTail("key");
    try {
        document->TableRows()->AddTail(key ? Value(key) : Value(1));
    } catch (const RtfError&) {
        ++raised;
    }
    while (raised < 2) {
        std::this_thread::yield();
    }
    return currentError() ? currentError()->number : 0;
}

TEST(Threads, HaveEachACurrentErrorOfTheirOwn) {
    clearCurrentError();
    std::atomic<int> raised = 0;
    std::int32_t errorOfOne = 0;
    std::int32_t errorOfOther = 0;
    std::thread one([&] { errorOfOne = errorAfterTheOthers("key", raised); });
    std::thread other([&] { errorOfOther = errorAfterTheOthers(nullptr, raised); });
    one.join();
    other.join();

    EXPECT_EQ(errorOfOne, 457);
    EXPECT_EQ(errorOfOther, 13);
    EXPECT_EQ(currentError(), nullptr);
}

// The sanitizers find what is used after it was freed, and what nobody frees.
TEST(Threads, MayEndWhileAnErrorIsTheirCurrentOne) {
    constexpr int rounds = 20;
    for (int round = 0; round < rounds; ++round) {
        std::array<std::int32_t, 4> numbers{};
        std::array<std::thread, 4> threads;
        for (std::size_t i = 0; i < threads.size(); ++i) {
            threads[i] = std::thread([&number = numbers[i]] {
                const Ref<CRtfDriver> driver = CRtfDriver::create();
                try {
                    driver->ParseFile("");
                } catch (const RtfError&) {
                    number = currentError()->number;
                }
            });
        }
        for (std::thread& thread : threads) {
            thread.join();
        }
        constexpr auto wrongPath = static_cast<std::int32_t>(0x80040003U);
        EXPECT_EQ(numbers, (std::array{wrongPath, wrongPath, wrongPath, wrongPath}));
    }
}

}  // namespace
}  // namespace quorvane
