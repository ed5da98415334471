#include "com/document/DocumentDiagnosticObject.h"

#include <cstdint>
#include <string_view>

#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane::com {

std::span<const Member> DocumentDiagnosticObject::members() {
    static constexpr Member all[] = {
        getter<&::_DocumentDiagnostic::get_File>(1),
        getter<&::_DocumentDiagnostic::get_Line>(2),
        getter<&::_DocumentDiagnostic::get_Column>(3),
        getter<&::_DocumentDiagnostic::get_Severity>(4),
        getter<&::_DocumentDiagnostic::get_Identifier>(5),
        getter<&::_DocumentDiagnostic::get_Message>(6),
        getter<&::_DocumentDiagnostic::get_Hint>(7),
    };
    return all;
}

STDMETHODIMP DocumentDiagnosticObject::get_File(BSTR* result) {
    return fetch(result, [&] { return std::string_view(native().file); });
}

STDMETHODIMP DocumentDiagnosticObject::get_Line(LONG* result) {
    return fetch(result, [&] { return static_cast<std::int32_t>(native().diagnostic.place.line); });
}

STDMETHODIMP DocumentDiagnosticObject::get_Column(LONG* result) {
    return fetch(result,
                 [&] { return static_cast<std::int32_t>(native().diagnostic.place.column); });
}

STDMETHODIMP DocumentDiagnosticObject::get_Severity(BSTR* result) {
    return fetch(result, [&] { return severityName(native().diagnostic.severity); });
}

STDMETHODIMP DocumentDiagnosticObject::get_Identifier(BSTR* result) {
    return fetch(result, [&] { return diagnosticRule(native().diagnostic.id).identifier; });
}

STDMETHODIMP DocumentDiagnosticObject::get_Message(BSTR* result) {
    return fetch(result, [&] { return std::string_view(native().diagnostic.message); });
}

STDMETHODIMP DocumentDiagnosticObject::get_Hint(BSTR* result) {
    return fetch(result, [&] { return std::string_view(native().diagnostic.hint); });
}

void give(::_DocumentDiagnostic** result, const Ref<ReportedDiagnostic>& diagnostic) {
    *result = WrapperRegistry<DocumentDiagnosticObject>::wrapperOf(diagnostic).detach();
}

}  // namespace quorvane::com
