#pragma once

#include <string>

namespace quorvane::com {

/// Whether two paths lead to the same place, however they are spelled: upper or lower case, short
/// names, links, `\\?\` in front. A path that is not a full one leads nowhere in particular and is
/// the same as no other. Two names of one file (hard links) are two places.
bool areSamePath(const std::wstring& a, const std::wstring& b);

/// A path without the quotes around it, if any.
std::wstring withoutQuotes(const std::wstring& path);

}  // namespace quorvane::com
