#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace quorvane {

/// The names of the inline styles of a text, which stand in tokens such as `<strong=Total>`.
class InlineTokens {
public:
    explicit InlineTokens(std::string_view text) : text_(text), lastClose_(text.rfind('>')) {}

    /// The name in the token that begins at a "<"; nothing where none does.
    std::optional<std::string_view> nameAt(std::size_t open) const;

private:
    std::string_view text_;
    std::size_t lastClose_;
};

}  // namespace quorvane
