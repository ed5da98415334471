#pragma once

#include <cstddef>
#include <functional>

namespace quorvane::cli {

/// Tasks that are done side by side and delivered one after the other.
struct OrderedTasks {
    /// The tasks are 0 to `count` - 1, unless `prepare` ends them before.
    std::size_t count;
    /// At most so many tasks are done at a time; at least 1.
    std::size_t threads;
    /// Does a task. `thread` is below `threads`, and no two calls with the same one run at a time.
    /// Returns true if the result takes much memory; the thread then begins no other task before
    /// this one is delivered.
    std::function<bool(std::size_t thread, std::size_t task)> work;
    /// Called once for each task that is done, in the order of the tasks and one at a time, from
    /// any of the threads.
    std::function<void(std::size_t task)> deliver;
    /// Called once for each task before its work, in the order of the tasks and one at a time, from
    /// any of the threads. Returns false after the last task.
    std::function<bool(std::size_t task)> prepare = {};
};

/// So many tasks can be begun that are not delivered yet. A long task holds the delivery of those
/// after it up; the others do not run ahead of it any further.
constexpr std::size_t tasksUnderWay(std::size_t threads) {
    return 16 * threads;
}

/// Does the tasks: on this thread and on new ones, as many as the system allows. When one of
/// the functions throws, no more tasks are begun, those that are begun are ended, and the exception
/// is thrown.
void doInOrder(const OrderedTasks& tasks);

}  // namespace quorvane::cli
