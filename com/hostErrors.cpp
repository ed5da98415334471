#include "com/hostErrors.h"

#include "com/ComPtr.h"
#include "com/hostText.h"

namespace quorvane::com {

namespace {

constexpr std::int32_t firstAutomationError = 65536;
constexpr const char* libraryName = "Quorvane";

}  // namespace

HRESULT resultOf(std::int32_t number) noexcept {
    if (number > 0 && number < firstAutomationError) {
        return MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number);
    }
    return number < 0 ? number : E_FAIL;
}

void setErrorObject(const RtfError& error, REFIID interfaceId, Source source,
                    DWORD helpContext) noexcept {
    clearErrorObject();
    try {
        ComPtr<ICreateErrorInfo> created;
        ComPtr<IErrorInfo> finished;
        const OwnedBstr description(error.description);
        const bool isAdded = source == Source::Added && error.source.empty();
        const OwnedBstr sourceText(isAdded ? libraryName : error.source);
        if (FAILED(CreateErrorInfo(created.out()))) {
            return;
        }
        created->SetGUID(interfaceId);
        created->SetDescription(description.get());
        created->SetSource(sourceText.get());
        created->SetHelpContext(helpContext);
        if (SUCCEEDED(created->QueryInterface(IID_IErrorInfo, finished.outVoid()))) {
            SetErrorInfo(0, finished.get());
        }
    } catch (const std::bad_alloc&) {
        // The number reaches the host all the same.
    }
}

void clearErrorObject() noexcept {
    SetErrorInfo(0, nullptr);
}

HRESULT plainFailure(HRESULT result) noexcept {
    clearErrorObject();
    return result;
}

}  // namespace quorvane::com
