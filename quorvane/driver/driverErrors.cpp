#include "quorvane/driver/driverErrors.h"

#include <array>
#include <cstddef>
#include <memory>
#include <utility>

#include "quorvane/driver/driverFaults.h"

namespace quorvane {

namespace {

constexpr std::array<std::string_view, 11> levelNames = {
    "eNoStyleSheet",    "eWrongFileType", "eWrongPath",          "eRequiredElementMissing",
    "eWrongRootNode",   "eWrongKeyword",  "eWrongNumberOfNodes", "eWrongValue",
    "eWrongStyleSheet", "eWrongNodeType", "eSyntaxError",
};

}  // namespace

RtfError driverError(tErrorLevel level, std::string description, std::string source, int line) {
    RtfError error(driverErrorBase + level, std::move(description), std::move(source));
    error.line = line;
    return error;
}

RtfError unreadableDescription(const std::string& path, const RtfError& reason) {
    RtfError error = driverError(DriverFault::UnreadableFile, path);
    error.cause = std::make_shared<RtfError>(reason);
    return error;
}

std::optional<tErrorLevel> errorLevel(std::int32_t number) {
    const std::int64_t level = std::int64_t{number} - driverErrorBase;
    if (level < 1 || level > static_cast<std::int64_t>(levelNames.size())) {
        return std::nullopt;
    }
    return static_cast<tErrorLevel>(level);
}

std::string_view errorLevelName(tErrorLevel level) {
    return levelNames.at(static_cast<std::size_t>(level) - 1);
}

}  // namespace quorvane
