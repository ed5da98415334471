#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "quorvane/stylesheet/StyleList.h"

namespace quorvane {

/// The positions of the names that were looked up in a list of styles, as they were written.
class StylePositions {
public:
    /// The position of the style of a name in any case; -1 if there is none. Blanks around the name
    /// count.
    int find(const StyleList& styles, std::string_view name) const;

    /// True when every name that was looked up is kept: looking one of them up again takes no
    /// memory.
    bool areKept() const noexcept { return areKept_; }

private:
    struct TextHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const {
            return std::hash<std::string_view>{}(text);
        }
    };

    mutable std::unordered_map<std::string, int, TextHash, std::equal_to<>> positions_;
    mutable bool areKept_ = true;
};

}  // namespace quorvane
