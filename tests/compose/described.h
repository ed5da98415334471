#pragma once

#include <string>
#include <string_view>

namespace quorvane {

/// What a driver makes of a description in the extended language, without its first line and the
/// `doc` around it. Pictures come from `logoPng`. An error fails the test.
std::string described(std::string_view body, std::string_view styleSheet = {});

/// A picture of one pixel.
std::string logoPng();

}  // namespace quorvane
