#include "data/csvDelimiter.h"

#include <cstddef>
#include <tuple>

namespace quorvane::data {

namespace {

constexpr std::string_view candidates = ",;\t|";
constexpr std::size_t rowsLookedAt = 100;

/// How many rows have the delimiter as often as the first one, and how often that is.
struct Regularity {
    std::size_t alike = 0;
    std::size_t inFirst = 0;
};

Regularity regularityOf(char delimiter, std::string_view text) {
    Regularity result;
    std::size_t row = 0;
    std::size_t count = 0;
    bool isQuoted = false;
    bool isBlank = true;
    const auto endRow = [&] {
        if (isBlank) {
            return;
        }
        result.inFirst = row == 0 ? count : result.inFirst;
        result.alike += count == result.inFirst ? 1 : 0;
        ++row;
        count = 0;
        isBlank = true;
    };
    for (const char character : text) {
        if (!isQuoted && (character == '\n' || character == '\r')) {
            endRow();
            if (row == rowsLookedAt) {
                return result;
            }
            continue;
        }
        isBlank = false;
        isQuoted = isQuoted != (character == '"');
        count += !isQuoted && character == delimiter ? 1 : 0;
    }
    if (row == 0) {
        endRow();
    }
    return result;
}

}  // namespace

char csvDelimiter(std::string_view beginning) {
    char best = ',';
    Regularity most;
    for (const char candidate : candidates) {
        const Regularity found = regularityOf(candidate, beginning);
        if (found.inFirst > 0 &&
            std::tie(found.alike, found.inFirst) > std::tie(most.alike, most.inFirst)) {
            best = candidate;
            most = found;
        }
    }
    return best;
}

}  // namespace quorvane::data
