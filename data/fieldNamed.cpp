#include "data/fieldNamed.h"

#include <algorithm>

#include "data/refuse.h"
#include "quorvane/diagnostics/engine/nearestWord.h"

namespace quorvane::data {

namespace {

/// "; its fields are: No., Name." Of many fields, the first ones.
std::string listOf(const std::vector<std::string>& names) {
    constexpr std::size_t most = 12;
    std::string list;
    for (std::size_t i = 0; i < std::min(names.size(), most); ++i) {
        list += (list.empty() ? "; its fields are: " : ", ") + names[i];
    }
    return list + (names.size() > most ? ", …" : ".");
}

}  // namespace

std::size_t fieldNamed(std::string_view name, const std::vector<std::string>& names) {
    const auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end()) {
        const std::vector<std::string_view> known(names.begin(), names.end());
        const std::string guess = didYouMean(name, known);
        refuse("The data has no field \"" + std::string(name) + "\"" +
               (guess.empty() ? listOf(names) : "; " + guess));
    }
    if (std::find(found + 1, names.end(), name) != names.end()) {
        refuse("The data has several fields \"" + std::string(name) + "\".");
    }
    return static_cast<std::size_t>(found - names.begin());
}

}  // namespace quorvane::data
