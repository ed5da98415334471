#pragma once

#include <sys/mman.h>

#include <cstddef>
#include <stdexcept>
#include <string_view>

namespace quorvane {

/// A text of any length that takes no memory. To read it ends the program.
class UnreadableText {
public:
    explicit UnreadableText(std::size_t length)
        : length_(length),
          start_(::mmap(nullptr, length, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1,
                        0)) {
        if (start_ == MAP_FAILED) {
            throw std::runtime_error("no room for the addresses");
        }
    }
    UnreadableText(const UnreadableText&) = delete;
    UnreadableText& operator=(const UnreadableText&) = delete;
    ~UnreadableText() { ::munmap(start_, length_); }

    std::string_view view() const { return {static_cast<const char*>(start_), length_}; }

private:
    std::size_t length_;
    void* start_;
};

}  // namespace quorvane
