#include "cli/tasksInOrder.h"

#include <condition_variable>
#include <exception>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace quorvane::cli {

namespace {

class Queue {
public:
    explicit Queue(const OrderedTasks& tasks)
        : tasks_(tasks), isDone_(tasksUnderWay(tasks.threads)) {}

    /// What one thread does: tasks, and deliveries for which it is the time.
    void work(std::size_t thread) noexcept {
        for (;;) {
            try {
                const std::optional<std::size_t> task = begin();
                if (!task) {
                    return;
                }
                const bool isLarge = tasks_.work(thread, *task);
                end(*task);
                if (isLarge) {
                    waitForDelivery(*task);
                }
            } catch (...) {
                fail(std::current_exception());
            }
        }
    }

    void rethrowFailure() const {
        if (failure_) {
            std::rethrow_exception(failure_);
        }
    }

private:
    /// The next task, as soon as it can be begun.
    std::optional<std::size_t> begin() {
        // Preparing may take long; deliveries need not wait for it.
        const std::lock_guard order(preparing_);
        std::unique_lock lock(mutex_);
        progress_.wait(lock, [this] { return isOver() || begun_ < delivered_ + isDone_.size(); });
        if (isOver()) {
            return std::nullopt;
        }
        if (tasks_.prepare) {
            lock.unlock();
            isEnded_ = !tasks_.prepare(begun_);
            lock.lock();
        }
        return isOver() ? std::nullopt : std::optional(begun_++);
    }

    bool isOver() const { return failure_ || isEnded_ || begun_ == tasks_.count; }

    /// Delivers the task, and those that waited for it, unless one before it is still being done
    /// or another thread is delivering, which will come to it.
    void end(std::size_t task) {
        std::unique_lock lock(mutex_);
        isDone_[task % isDone_.size()] = true;
        if (isDelivering_) {
            return;
        }
        isDelivering_ = true;
        while (isDone_[delivered_ % isDone_.size()]) {
            lock.unlock();
            tasks_.deliver(delivered_);
            lock.lock();
            isDone_[delivered_ % isDone_.size()] = false;
            ++delivered_;
            progress_.notify_all();
        }
        isDelivering_ = false;
    }

    void waitForDelivery(std::size_t task) {
        std::unique_lock lock(mutex_);
        progress_.wait(lock, [this, task] { return failure_ || delivered_ > task; });
    }

    void fail(const std::exception_ptr& failure) {
        const std::lock_guard lock(mutex_);
        if (!failure_) {
            failure_ = failure;
        }
        progress_.notify_all();
    }

    const OrderedTasks& tasks_;
    std::mutex preparing_;
    std::mutex mutex_;
    // Of the deliveries, or to a failure.
    std::condition_variable progress_;
    // Changed by the thread that prepares only, as is the next one.
    std::size_t begun_ = 0;
    bool isEnded_ = false;
    // All tasks before this one are delivered; only the thread that delivers changes it.
    std::size_t delivered_ = 0;
    bool isDelivering_ = false;
    // Of the tasks that are begun and not delivered, each at its number modulo the size.
    std::vector<bool> isDone_;
    std::exception_ptr failure_;
};

/// Threads that end when the queue is empty.
std::vector<std::jthread> startThreads(Queue& queue, std::size_t count) {
    std::vector<std::jthread> threads;
    try {
        threads.reserve(count);
        while (threads.size() < count) {
            threads.emplace_back([&queue, number = threads.size() + 1] { queue.work(number); });
        }
    } catch (const std::exception&) {
        // Without memory or threads for more, the others do the work.
    }
    return threads;
}

}  // namespace

void doInOrder(const OrderedTasks& tasks) {
    Queue queue(tasks);
    {
        const std::vector<std::jthread> others = startThreads(queue, tasks.threads - 1);
        queue.work(0);
    }
    queue.rethrowFailure();
}

}  // namespace quorvane::cli
