#pragma once

#include <cstddef>
#include <vector>

#include "data/Template.h"
#include "data/TemplateError.h"
#include "quorvane/diagnostics/KnownStyles.h"
#include "quorvane/diagnostics/description/FilledDescriptionCheck.h"
#include "quorvane/diagnostics/engine/Diagnostic.h"
#include "quorvane/driver/PictureSource.h"

namespace quorvane::data {

/// A diagnostic about one of the texts of a template.
struct TemplateDiagnostic {
    /// The text, as in `TemplateError`.
    std::size_t source = 0;
    Diagnostic diagnostic;
};

/// The errors as diagnostics, in the order of their places, each once.
std::vector<TemplateDiagnostic> templateDiagnostics(const Template& source,
                                                    const std::vector<TemplateError>& errors);

/// What is wrong with the description that a template was filled to, at the lines of the template;
/// what stands in a partial is at the tag that takes it in. Each diagnostic once, however often its
/// line was repeated.
std::vector<Diagnostic> checkFilled(const Template& source, const FilledLines& lines,
                                    KnownStyles* styles, const PictureSource& pictures);

/// What is wrong with a template whatever it is filled with. Nothing is reported that depends on
/// which sections are shown.
std::vector<Diagnostic> checkUnfilled(const Template& source, KnownStyles* styles,
                                      const PictureSource& pictures);

}  // namespace quorvane::data
