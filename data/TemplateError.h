#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "quorvane/diagnostics/engine/DiagnosticId.h"

namespace quorvane::data {

/// Something that is wrong with a template, or with the data for it.
struct TemplateError {
    DiagnosticId id{};
    /// The text of the template that it stands in: 0 for the template itself, otherwise a partial.
    std::size_t source = 0;
    /// What is wrong: a view of that text.
    std::string_view part = {};
    /// A sentence.
    std::string message = {};
    /// What to write instead; empty when nothing is known.
    std::string hint = {};
};

}  // namespace quorvane::data
