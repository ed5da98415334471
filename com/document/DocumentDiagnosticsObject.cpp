#include "com/document/DocumentDiagnosticsObject.h"

#include <utility>

namespace quorvane::com {

std::span<const Member> DocumentDiagnosticsObject::members() {
    static constexpr Member all[] = {
        getter<&::_DocumentDiagnostics::get_Item>(DISPID_VALUE),
        getter<&::_DocumentDiagnostics::get_Count>(2),
        getter<&::_DocumentDiagnostics::get_NewEnum>(DISPID_NEWENUM),
    };
    return all;
}

void give(::_DocumentDiagnostics** result, const Ref<ReportedDiagnostics>& diagnostics) {
    *result = WrapperRegistry<DocumentDiagnosticsObject>::wrapperOf(diagnostics).detach();
}

}  // namespace quorvane::com
