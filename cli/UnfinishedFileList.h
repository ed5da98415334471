#pragma once

#include <mutex>

#include "quorvane/base/platform/UnfinishedFileWatch.h"

namespace quorvane::cli {

/// The files that the end of the process takes along. It needs no memory of its own, so that
/// nothing can fail between making a file and noting it.
class UnfinishedFileList {
public:
    void add(UnfinishedPath& file) noexcept {
        const std::lock_guard lock(mutex_);
        file.next = first_;
        first_ = &file;
    }

    void remove(UnfinishedPath& file) noexcept {
        const std::lock_guard lock(mutex_);
        // The list has one entry for each thread that is writing.
        UnfinishedPath** link = &first_;
        while (*link && *link != &file) {
            link = &(*link)->next;
        }
        if (*link) {
            *link = file.next;
        }
    }

    /// Takes no lock: no other thread may add or remove meanwhile.
    template <class Action>
    void forEach(Action action) const {
        for (const UnfinishedPath* file = first_; file; file = file->next) {
            action(file->path);
        }
    }

private:
    std::mutex mutex_;
    UnfinishedPath* first_ = nullptr;
};

}  // namespace quorvane::cli
