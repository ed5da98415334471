#include "quorvane/base/platform/throwUnlessAbsent.h"

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

#include "quorvane/base/values/RtfError.h"

namespace quorvane {

void throwUnlessAbsent(const std::error_code& failure) {
    constexpr std::array absences = {
        std::errc::no_such_file_or_directory, std::errc::not_a_directory,
        std::errc::permission_denied,         std::errc::filename_too_long,
        std::errc::invalid_argument,          std::errc::too_many_symbolic_link_levels};
    if (failure && std::none_of(absences.begin(), absences.end(),
                                [&](std::errc absence) { return failure == absence; })) {
        RtfError error(RunTimeError::DeviceIoError);
        error.cause = std::make_shared<RtfError>(failure.value(), failure.message());
        raise(std::move(error));
    }
}

}  // namespace quorvane
