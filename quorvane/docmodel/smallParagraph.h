#pragma once

#include <string_view>

namespace quorvane {

/// The format of a paragraph without text that takes hardly any room on a page.
inline constexpr std::string_view smallParagraph = R"(\pard\plain\sl-20\slmult0\fs2)";

}  // namespace quorvane
