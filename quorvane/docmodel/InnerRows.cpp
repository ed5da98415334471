#include "quorvane/docmodel/InnerRows.h"

#include <algorithm>

#include "quorvane/base/memory/largePages.h"

namespace quorvane {

namespace {

// Makes room for the rows that follow, as long as those rendered so far on the average. A text that
// grew by itself would be moved time and again; room that is not used costs no memory.
void reserveForRest(std::size_t start, std::size_t rendered, std::size_t count, std::string& rtf) {
    constexpr std::size_t roomForARow = 4096;
    constexpr std::size_t largestGrowth = 8;
    if (rtf.capacity() - rtf.size() < roomForARow) {
        const double perRow =
            static_cast<double>(rtf.size() - start) / static_cast<double>(rendered);
        const double expected = perRow * static_cast<double>(count - rendered) * 1.05;
        const double most = static_cast<double>(rtf.size() * (largestGrowth - 1));
        rtf.reserve(rtf.size() + roomForARow + static_cast<std::size_t>(std::min(expected, most)));
        preferLargePages(rtf.data(), rtf.capacity());
    }
}

}  // namespace

void retain(CRtfTableRows* rows) noexcept {
    inner(*rows).counts_.retain();
}

void release(CRtfTableRows* rows) noexcept {
    if (inner(*rows).counts_.release()) {
        delete &inner(*rows);
    }
}

void InnerRows::insertNew(const List::Place& place, TableDocument&) {
    list_.insert(place, InnerRow::create(parent_));
}

void InnerRows::render(std::string& rtf) const {
    TableRendering rendering(required(document()), rtf);
    const std::size_t start = rtf.size();
    std::size_t rendered = 0;
    for (InnerRow* row : list_) {
        row->render(rendering);
        rendering.out.flush();
        reserveForRest(start, ++rendered, list_.count(), rtf);
    }
}

}  // namespace quorvane
