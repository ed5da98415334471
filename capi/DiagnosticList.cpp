#include "capi/DiagnosticList.h"

#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane::capi {

void DiagnosticList::clear() noexcept {
    seen_.clear();
    texts_.clear();
}

void DiagnosticList::add(const std::string& file, const std::vector<Diagnostic>& diagnostics) {
    for (const Diagnostic& each : diagnostics) {
        // The identifiers are literals.
        add(file, diagnosticRule(each.id).identifier.data(), each);
    }
}

void DiagnosticList::add(const std::string& file, const char* identifier, const Diagnostic& added) {
    const auto& [name, diagnostic] = texts_.emplace_back(Texts{file, added});
    const Place& place = diagnostic.place;
    seen_.push_back({
        diagnostic.severity == Severity::Error ? QUORVANE_ERROR : QUORVANE_WARNING,
        identifier,
        diagnostic.message.c_str(),
        diagnostic.hint.c_str(),
        name.c_str(),
        static_cast<std::size_t>(place.line),
        static_cast<std::size_t>(place.column),
        static_cast<std::size_t>(place.length),
        static_cast<std::size_t>(place.bytes.offset),
        static_cast<std::size_t>(place.bytes.length),
        diagnostic.fix ? diagnostic.fix->replacement.c_str() : nullptr,
    });
}

}  // namespace quorvane::capi
