#pragma once

#include <string>
#include <string_view>

namespace quorvane {

/// The RTF of a part of a page header or footer: `{page}` and `{pages}` are fields, `{{` and `}}`
/// are braces, and all else is shown as it is. Error 5 for other braces, and for what no document
/// can show (see `findUnshowable`).
std::string pageTextRtf(std::string_view text);

}  // namespace quorvane
