#pragma once

#include <string>
#include <utility>
#include <vector>

#include "com/document/CountedObject.h"
#include "quorvane/base/memory/Ref.h"
#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane::com {

/// A diagnostic that a host can hold, and the file that it is about; empty for none.
class ReportedDiagnostic : public CountedObject<ReportedDiagnostic> {
public:
    ReportedDiagnostic(std::string textFile, Diagnostic reported)
        : file(std::move(textFile)), diagnostic(std::move(reported)) {}

    const std::string file;
    const Diagnostic diagnostic;
};

/// Diagnostics that a host can hold.
class ReportedDiagnostics : public CountedObject<ReportedDiagnostics> {
public:
    ReportedDiagnostics() = default;
    ReportedDiagnostics(const std::string& file, const std::vector<Diagnostic>& diagnostics) {
        all.reserve(diagnostics.size());
        for (const Diagnostic& each : diagnostics) {
            all.emplace_back(new ReportedDiagnostic(file, each));
        }
    }

    std::vector<Ref<ReportedDiagnostic>> all;
};

}  // namespace quorvane::com
