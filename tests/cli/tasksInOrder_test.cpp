#include "cli/tasksInOrder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstddef>
#include <mutex>
#include <numeric>
#include <random>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace quorvane::cli {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Le;

std::vector<std::size_t> numbersBelow(std::size_t end) {
    std::vector<std::size_t> numbers(end);
    std::iota(numbers.begin(), numbers.end(), 0);
    return numbers;
}

/// Waits a little, so that tasks end in another order than they begin in.
void takeTime(std::size_t task) {
    std::minstd_rand random(static_cast<unsigned>(task + 1));
    std::this_thread::sleep_for(std::chrono::microseconds(random() % 200));
}

TEST(TasksInOrder, AreAllDoneAndDeliveredInTheirOrder) {
    for (const std::size_t threads : {1U, 2U, 7U}) {
        for (const std::size_t count : {0U, 1U, 2U, 100U}) {
            std::vector<int> done(count);
            std::vector<std::size_t> delivered;
            const auto work = [&](std::size_t, std::size_t task) {
                takeTime(task);
                ++done[task];
                return task % 3 == 0;
            };
            const auto deliver = [&](std::size_t task) {
                EXPECT_EQ(done[task], 1);
                delivered.push_back(task);
            };

            doInOrder({count, threads, work, deliver});

            EXPECT_EQ(delivered, numbersBelow(count));
        }
    }
}

TEST(TasksInOrder, ArePreparedInTheirOrderUntilThereAreNoMore) {
    for (const std::size_t threads : {1U, 2U, 7U}) {
        std::vector<std::size_t> prepared;
        std::vector<std::size_t> delivered;
        doInOrder({.count = 1'000'000,
                   .threads = threads,
                   .work =
                       [](std::size_t, std::size_t task) {
                           takeTime(task);
                           return false;
                       },
                   .deliver = [&](std::size_t task) { delivered.push_back(task); },
                   .prepare =
                       [&](std::size_t task) {
                           prepared.push_back(task);
                           return task < 100;
                       }});
        EXPECT_EQ(prepared, numbersBelow(101));
        EXPECT_EQ(delivered, numbersBelow(100));
    }
}

TEST(TasksInOrder, EndWithTheExceptionOfAPreparation) {
    const auto prepare = [](std::size_t task) -> bool {
        if (task == 3) {
            throw std::runtime_error("no more");
        }
        return true;
    };
    EXPECT_THROW(doInOrder({.count = 10,
                            .threads = 2,
                            .work = [](std::size_t, std::size_t) { return false; },
                            .deliver = [](std::size_t) {},
                            .prepare = prepare}),
                 std::runtime_error);
}

TEST(TasksInOrder, AreDeliveredOneAtATime) {
    std::atomic<int> delivering = 0;
    const auto deliver = [&](std::size_t task) {
        EXPECT_EQ(++delivering, 1);
        takeTime(task);
        --delivering;
    };
    doInOrder({100, 4, [](std::size_t, std::size_t) { return false; }, deliver});
    EXPECT_EQ(delivering, 0);
}

TEST(TasksInOrder, AreDoneOneAtATimeByEachThread) {
    constexpr std::size_t threads = 3;
    std::vector<std::atomic<int>> working(threads);
    const auto work = [&](std::size_t thread, std::size_t task) {
        EXPECT_EQ(++working.at(thread), 1);
        takeTime(task);
        --working[thread];
        return false;
    };
    doInOrder({100, threads, work, [](std::size_t) {}});
    for (const std::atomic<int>& tasks : working) {
        EXPECT_EQ(tasks, 0);
    }
}

TEST(TasksInOrder, DoNotRunAheadOfOneThatTakesLong) {
    constexpr std::size_t threads = 3;
    constexpr std::size_t count = 500;
    std::atomic<std::size_t> begun = 0;
    std::atomic<std::size_t> done = 0;
    std::atomic<std::size_t> delivered = 0;
    std::atomic<std::size_t> maxUnderWay = 0;
    const auto work = [&](std::size_t, std::size_t task) {
        const std::size_t underWay = ++begun - delivered;
        std::size_t most = maxUnderWay;
        while (underWay > most && !maxUnderWay.compare_exchange_weak(most, underWay)) {
        }
        // Every hundredth goes on only when all are done that can be done before it is.
        const std::size_t withIt = std::min(count - task, tasksUnderWay(threads));
        while (task % 100 == 0 && done < task + withIt - 1) {
            std::this_thread::yield();
        }
        ++done;
        return false;
    };

    doInOrder({count, threads, work, [&](std::size_t) { ++delivered; }});

    EXPECT_EQ(delivered, count);
    EXPECT_EQ(maxUnderWay, tasksUnderWay(threads));
}

TEST(TasksInOrder, WaitForTheDeliveryOfALargeResult) {
    constexpr std::size_t threads = 3;
    std::atomic<std::size_t> undelivered = 0;
    std::atomic<bool> wereTooMany = false;
    const auto work = [&](std::size_t, std::size_t task) {
        takeTime(task);
        wereTooMany = wereTooMany || ++undelivered > threads;
        return true;
    };
    doInOrder({200, threads, work, [&](std::size_t) { --undelivered; }});
    EXPECT_EQ(undelivered, 0U);
    EXPECT_FALSE(wereTooMany);
}

TEST(TasksInOrder, EndWithTheExceptionOfOneAfterThoseBeforeItAreDelivered) {
    for (const std::size_t threads : {1U, 2U, 7U}) {
        std::atomic<std::size_t> begun = 0;
        std::vector<std::size_t> delivered;
        const auto work = [&](std::size_t, std::size_t task) {
            ++begun;
            if (task == 5) {
                throw std::runtime_error("the sixth");
            }
            takeTime(task);
            return task == 3;
        };
        std::string message;
        try {
            doInOrder({100, threads, work, [&](std::size_t task) { delivered.push_back(task); }});
        } catch (const std::runtime_error& error) {
            message = error.what();
        }
        EXPECT_EQ(message, "the sixth");
        EXPECT_THAT(delivered, ElementsAre(0, 1, 2, 3, 4));
        EXPECT_THAT(begun, Le(5 + tasksUnderWay(threads)));
    }
}

TEST(TasksInOrder, EndWithTheExceptionOfADelivery) {
    for (const std::size_t threads : {1U, 2U, 7U}) {
        std::vector<std::size_t> delivered;
        const auto deliver = [&](std::size_t task) {
            if (task == 2) {
                throw std::runtime_error("the third");
            }
            delivered.push_back(task);
        };
        EXPECT_THROW(
            doInOrder({100, threads, [](std::size_t, std::size_t) { return true; }, deliver}),
            std::runtime_error);
        EXPECT_THAT(delivered, ElementsAre(0, 1));
    }
}

}  // namespace
}  // namespace quorvane::cli
