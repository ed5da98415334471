#include "quorvane/base/text/StringOutput.h"

#include <algorithm>

#include "quorvane/base/memory/largePages.h"

namespace quorvane {

void StringOutput::take(std::string_view text) {
    if (text.size() > text_.capacity() - text_.size() && partsWritten() > 0) {
        makeRoom(text.size());
    }
    text_ += text;
}

// Makes room for the parts that follow, as long as those written so far on the average. A text that
// grew by itself would be moved time and again; room that is not used costs no memory.
void StringOutput::makeRoom(std::size_t size) {
    constexpr std::size_t largestGrowth = 8;
    const std::size_t written = text_.size() + size;
    const double perPart = static_cast<double>(written) / static_cast<double>(partsWritten());
    const double expected = perPart * static_cast<double>(parts() - partsWritten() + 1) * 1.05;
    const double most = static_cast<double>(written * (largestGrowth - 1));
    text_.reserve(written + static_cast<std::size_t>(std::min(expected, most)));
    preferLargePages(text_.data(), text_.capacity());
}

}  // namespace quorvane
