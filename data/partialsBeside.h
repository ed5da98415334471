#pragma once

#include <string>

#include "data/Template.h"
#include "quorvane/base/platform/Platform.h"

namespace quorvane::data {

/// Returns a source that reads partials from the folder of a template and the folders in it. A name
/// that leads outside is error 5. The platform must outlive the source.
PartialSource partialsBeside(const std::string& templatePath, Platform& platform);

}  // namespace quorvane::data
