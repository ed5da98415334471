#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "quorvane/base/platform/Platform.h"
#include "quorvane/compose/render.h"
#include "quorvane/diagnostics/KnownStyles.h"
#include "quorvane/diagnostics/engine/Diagnostic.h"
#include "quorvane/driver/CRtfDriver.h"
#include "quorvane/driver/PictureSource.h"

namespace quorvane {

/// How a description is read: as it stands, or as a template that was filled.
struct DescriptionReading {
    /// Builds the document of a driver.
    std::function<void(CRtfDriver&)> parse;
    /// Returns all diagnostics. The styles are null without a stylesheet.
    std::function<std::vector<Diagnostic>(KnownStyles*, const PictureSource&)> check;
};

/// Makes a document as `render` does. The text is what comments in it are taken from.
Rendering renderRead(std::string_view text, const DescriptionReading& reading,
                     const RenderOptions& options, Platform& platform);

/// The diagnostics as `check` returns them.
std::vector<Diagnostic> checkRead(std::string_view text, const DescriptionReading& reading,
                                  const RenderOptions& options, Platform& platform);

}  // namespace quorvane
