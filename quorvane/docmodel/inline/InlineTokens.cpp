#include "quorvane/docmodel/inline/InlineTokens.h"

#include "quorvane/docmodel/inline/inlineToken.h"

namespace quorvane {

std::optional<std::string_view> InlineTokens::nameAt(std::size_t open) const {
    const std::size_t end = text_.find_first_of("=<>", open + 1);
    const bool isToken = end != std::string_view::npos && text_[end] == '=' &&
                         beginsInlineToken(text_[open + 1]) &&
                         lastClose_ != std::string_view::npos && end < lastClose_;
    return isToken ? std::optional<std::string_view>(text_.substr(open + 1, end - open - 1))
                   : std::nullopt;
}

}  // namespace quorvane
