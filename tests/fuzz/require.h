#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace quorvane {

/// Ends the fuzzer, which keeps its input, when a statement does not hold.
inline void require(bool holds, const char* statement) {
    if (!holds) {
        std::fprintf(stderr, "\nDoes not hold: %s\n", statement);
        std::abort();
    }
}

/// The same for two texts that are to be equal; shows both.
inline void requireEqual(std::string_view actual, std::string_view expected,
                         const char* statement) {
    if (actual != expected) {
        std::fprintf(stderr, "\nDoes not hold: %s\n--- is\n%.*s\n--- should be\n%.*s\n---\n",
                     statement, static_cast<int>(actual.size()), actual.data(),
                     static_cast<int>(expected.size()), expected.data());
        std::abort();
    }
}

}  // namespace quorvane
