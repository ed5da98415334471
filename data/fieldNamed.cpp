#include "data/fieldNamed.h"

#include <algorithm>
#include <cstdint>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/diagnostics/engine/nearestWord.h"

namespace quorvane::data {

namespace {

[[noreturn]] void refuse(const std::string& why) {
    raise(RtfError(static_cast<std::int32_t>(RunTimeError::InvalidProcedureCall), why));
}

}  // namespace

std::size_t fieldNamed(std::string_view name, const std::vector<std::string>& names) {
    const auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end()) {
        const std::vector<std::string_view> candidates(names.begin(), names.end());
        const std::string guess = didYouMean(name, candidates);
        refuse("The data has no field \"" + std::string(name) + "\"" +
               (guess.empty() ? "." : "; " + guess));
    }
    if (std::find(found + 1, names.end(), name) != names.end()) {
        refuse("The data has several fields \"" + std::string(name) + "\".");
    }
    return static_cast<std::size_t>(found - names.begin());
}

}  // namespace quorvane::data
