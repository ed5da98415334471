#include "tests/com/host/Outcome.h"

#include <cstdio>

#include "tests/com/host/ComPtr.h"
#include "tests/com/host/text.h"

namespace quorvane::host {

std::ostream& operator<<(std::ostream& stream, const HostError& error) {
    char number[16];
    std::snprintf(number, sizeof number, "0x%08lX", static_cast<unsigned long>(error.number));
    return stream << "error " << number << " \"" << error.description << "\" of \"" << error.source
                  << "\" with help context " << error.helpContext;
}

HostError takeErrorObject(HRESULT number) {
    HostError error{number, {}, {}, 0};
    ComPtr<IErrorInfo> info;
    if (GetErrorInfo(0, info.out()) == S_OK) {
        Bstr source;
        Bstr description;
        info->GetSource(source.out());
        info->GetDescription(description.out());
        info->GetHelpContext(&error.helpContext);
        error.source = source.utf8();
        error.description = description.utf8();
    }
    return error;
}

Outcome outcomeOf(HRESULT status) {
    Outcome outcome;
    if (FAILED(status)) {
        outcome.error = takeErrorObject(status);
    }
    return outcome;
}

}  // namespace quorvane::host
