#pragma once

#include <vector>

#include "quorvane/diagnostics/KnownStyles.h"
#include "quorvane/diagnostics/engine/Diagnostic.h"
#include "quorvane/diagnostics/engine/SourceText.h"
#include "quorvane/driver/PictureSource.h"
#include "quorvane/support/SourceLine.h"

namespace quorvane {

/// The lines of a template.
struct FilledLines {
    const std::vector<SourceLine>& lines;
    /// They are all lines that the description has.
    bool areComplete = true;
};

/// All diagnostics about the lines of a template of the extended language, filled from data, in the
/// order of their places in the template. The source is the template's text and includes the texts
/// of all lines. Values that are not known are not looked at. Otherwise it is as
/// `checkDescription`.
std::vector<Diagnostic> checkFilledDescription(const SourceText& source, const FilledLines& filled,
                                               KnownStyles* styles, const PictureSource& pictures);

}  // namespace quorvane
