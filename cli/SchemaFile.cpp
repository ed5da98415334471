#include "cli/SchemaFile.h"

#include <string_view>
#include <utility>

#include "data/json.h"
#include "data/jsonDiagnostic.h"
#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/SourceText.h"
#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane::cli {

namespace {

/// Reports faults at their places in a JSON text, in the order of the places.
void reportFaults(DiagnosticId id, const std::string& bytes,
                  const std::vector<data::JsonFault>& faults,
                  std::vector<Diagnostic>& diagnostics) {
    DiagnosticEngine engine(
        [&](Diagnostic diagnostic) { diagnostics.push_back(std::move(diagnostic)); });
    const SourceText text(bytes, TextEncoding::Utf8);
    for (const data::JsonFault& fault : faults) {
        const data::JsonPlace place = data::jsonPlace(bytes, fault.pointer);
        engine.reportText(id, text.place(place.begin, place.end), fault.message);
    }
    sortByPlace(diagnostics);
}

}  // namespace

SchemaFile readSchema(const std::string& path, Platform& platform) {
    SchemaFile file{.shownName = path, .bytes = platform.readFile(path)};
    data::JsonError error;
    const std::optional<data::DataValue> value = data::readJson(file.bytes, error);
    if (!value) {
        file.diagnostics.push_back(data::jsonDiagnostic(file.bytes, error));
        return file;
    }
    data::JsonFault fault;
    file.schema = data::DataSchema::of(*value, fault);
    if (!file.schema) {
        reportFaults(DiagnosticId::WrongSchema, file.bytes, {fault}, file.diagnostics);
    }
    return file;
}

void validate(TemplateDataFile& file, const data::DataSchema& schema) {
    const std::vector<data::JsonFault> faults = schema.faultsIn(file.data->record);
    if (!faults.empty()) {
        reportFaults(DiagnosticId::SchemaMismatch, file.bytes, faults, file.diagnostics);
        file.data.reset();
    }
}

RtfError schemaMismatch(const data::JsonFault& fault, std::int64_t line) {
    const std::string_view identifier = diagnosticRule(DiagnosticId::SchemaMismatch).identifier;
    RtfError error(RunTimeError::InvalidProcedureCall,
                   fault.message + " [" + std::string(identifier) + "]");
    error.line = static_cast<int>(line);
    return error;
}

}  // namespace quorvane::cli
