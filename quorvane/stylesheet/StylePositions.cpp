#include "quorvane/stylesheet/StylePositions.h"

#include "quorvane/base/text/textCase.h"

namespace quorvane {

namespace {

// A document that names more styles than this looks them up again: what is kept stays bounded.
constexpr std::size_t maxNamesKept = 4096;

}  // namespace

int StylePositions::find(const StyleList& styles, std::string_view name) const {
    const auto known = positions_.find(name);
    if (known != positions_.end()) {
        return known->second;
    }
    if (positions_.size() >= maxNamesKept) {
        positions_.clear();
        areKept_ = false;
    }
    return positions_.emplace(std::string(name), styles.find(lowerCase(name))).first->second;
}

}  // namespace quorvane
