#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/docmodel/enumerations.h"

namespace quorvane {

/// What the level is added to.
inline constexpr auto driverErrorBase = static_cast<std::int32_t>(0x80040000);

/// An error of the driver: its number is `driverErrorBase` plus the level. `line` is the 1-based
/// line of the description that it concerns, 0 for none.
RtfError driverError(tErrorLevel level, std::string description, std::string source = {},
                     int line = 0);

/// The error of a description that cannot be read from its file, `eWrongPath`, for this reason.
RtfError unreadableDescription(const std::string& path, const RtfError& reason);

/// The level of an error of the driver; nothing for any other error number.
std::optional<tErrorLevel> errorLevel(std::int32_t number);

/// The level's name, such as "eWrongValue".
std::string_view errorLevelName(tErrorLevel level);

/// Runs the body; an error that it raises and that has no line gets this one.
template <class Body>
decltype(auto) atLine(int line, Body&& body) {
    try {
        return std::forward<Body>(body)();
    } catch (RtfError& error) {
        if (error.line == 0) {
            error.line = line;
        }
        throw;
    }
}

}  // namespace quorvane
