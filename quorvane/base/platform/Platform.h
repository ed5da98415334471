#pragma once

#include "quorvane/base/platform/Files.h"
#include "quorvane/base/platform/HostServices.h"

namespace quorvane {

/// All that a document needs of the operating system. Tests and hosts may put their own in its
/// place; `systemPlatform` is the real one.
class Platform : public Files, public HostServices {};

/// The platform that the library runs on.
Platform& systemPlatform();

}  // namespace quorvane
