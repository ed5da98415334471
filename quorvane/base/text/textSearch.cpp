#include "quorvane/base/text/textSearch.h"

namespace quorvane {

namespace {

// For each beginning of the pattern (index: its length less one) the length of the longest shorter
// beginning that it ends with.
std::vector<std::size_t> borderLengths(std::string_view pattern) {
    std::vector<std::size_t> borders(pattern.size());
    std::size_t border = 0;
    for (std::size_t i = 1; i < pattern.size(); ++i) {
        while (border > 0 && pattern[i] != pattern[border]) {
            border = borders[border - 1];
        }
        if (pattern[i] == pattern[border]) {
            ++border;
        }
        borders[i] = border;
    }
    return borders;
}

}  // namespace

std::vector<std::size_t> findAll(std::string_view text, std::string_view pattern,
                                 Occurrences occurrences) {
    std::vector<std::size_t> found;
    if (pattern.empty() || text.size() < pattern.size()) {
        return found;
    }
    const std::vector<std::size_t> borders = borderLengths(pattern);
    std::size_t matched = 0;
    std::size_t position = text.find(pattern.front());
    while (position < text.size()) {
        while (matched > 0 && text[position] != pattern[matched]) {
            matched = borders[matched - 1];
        }
        if (text[position] == pattern[matched]) {
            ++matched;
        }
        ++position;
        if (matched == pattern.size()) {
            found.push_back(position - matched);
            matched = occurrences == Occurrences::Overlapping ? borders[matched - 1] : 0;
        }
        if (matched == 0) {
            position = text.find(pattern.front(), position);
        }
    }
    return found;
}

}  // namespace quorvane
