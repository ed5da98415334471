#include "quorvane/compose/composing.h"

#include <algorithm>

#include "quorvane/base/values/deepestCause.h"
#include "quorvane/diagnostics/engine/diagnosticRules.h"
#include "quorvane/docmodel/layout/LayoutError.h"
#include "quorvane/driver/LeafError.h"

namespace quorvane {

namespace {

std::string_view identifierOf(const RtfError& error) {
    if (const auto* const leaf = dynamic_cast<const LeafError*>(&error)) {
        return leaf->fault == DriverFault::UndefinedStyle ? "undefined-style" : "wrong-value";
    }
    if (dynamic_cast<const LayoutError*>(&error)) {
        return "wrong-document";
    }
    return error.is(RunTimeError::Overflow) ? "wrong-document" : "wrong-value";
}

}  // namespace

Error composedError(const RtfError& error) {
    return Error({.message = error.description, .identifier = std::string(identifierOf(error))});
}

Error fileError(const std::string& path, std::string_view identifier, const RtfError& error) {
    return Error({.message = deepestCause(error).description,
                  .identifier = std::string(identifier),
                  .file = path});
}

Error contentError(const std::string& file, std::vector<Diagnostic> diagnostics) {
    const auto first = std::find_if(diagnostics.begin(), diagnostics.end(), [](const auto& each) {
        return each.severity == Severity::Error;
    });
    ErrorDetails details{.message = first->message,
                         .identifier = std::string(diagnosticRule(first->id).identifier),
                         .file = file,
                         .line = first->place.line,
                         .column = first->place.column};
    details.diagnostics = std::move(diagnostics);
    return Error(std::move(details));
}

void refuseCall(std::string message) {
    throw Error({.message = std::move(message), .identifier = "wrong-call"});
}

}  // namespace quorvane
